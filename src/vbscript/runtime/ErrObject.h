#pragma once

// The Err object: the error that "On Error Resume Next" caught last, and Raise to start one.

#include "vbscript/HostObject.h"

namespace vbs {

class Interpreter;

class ErrObject final : public HostObject<ErrObject> {
 public:
  explicit ErrObject(Interpreter& interp);
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"ErrObject"; }

 private:
  Result<Variant> GetNumber(CallArgs& args);
  Result<Variant> PutNumber(CallArgs& args, Variant value);
  Result<Variant> GetDescription(CallArgs& args);
  Result<Variant> PutDescription(CallArgs& args, Variant value);
  Result<Variant> GetSource(CallArgs& args);
  Result<Variant> PutSource(CallArgs& args, Variant value);
  Result<Variant> GetHelpFile(CallArgs& args);
  Result<Variant> PutHelpFile(CallArgs& args, Variant value);
  Result<Variant> GetHelpContext(CallArgs& args);
  Result<Variant> PutHelpContext(CallArgs& args, Variant value);
  Result<Variant> Raise(CallArgs& args);
  Result<Variant> Clear(CallArgs& args);

  Interpreter& m_interp;
};

}  // namespace vbs
