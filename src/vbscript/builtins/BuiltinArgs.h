#pragma once

// What the built-in families share to read their arguments: an omitted optional argument, the
// language's conversions (CStr, CLng, CDbl rules with their error numbers) and the compare-mode
// argument of the string functions. Arguments may arrive as references; every helper looks through.

#include <span>

#include "vbscript/runtime/Interpreter.h"
#include "vbscript/value/Result.h"
#include "vbscript/value/Variant.h"

namespace vbs::builtin {

using Args = std::span<Variant>;

// Whether an optional argument was left out: `f(a, , c)` or fewer arguments than the position.
inline bool IsMissing(const Variant& value) {
  const Variant& v = value.Deref();
  return v.is_error() && v.as_error() == err::kParamNotFound;
}
inline bool IsGiven(Args args, size_t index) { return index < args.size() && !IsMissing(args[index]); }
inline bool IsNull(const Variant& value) { return value.Deref().is_null(); }

inline Result<VbString> TextArg(Frame& frame, const Variant& value) {
  return value.Deref().to_string(frame.interp.locale());
}
inline Result<int32_t> LongArg(Frame& frame, const Variant& value) {
  return value.Deref().to_long(frame.interp.locale());
}
inline Result<double> DoubleArg(Frame& frame, const Variant& value) {
  return value.Deref().to_double(frame.interp.locale());
}
inline Result<bool> BooleanArg(Frame& frame, const Variant& value) {
  return value.Deref().to_boolean(frame.interp.locale());
}

// The compare argument at `index` (binary when omitted): 0 binary, 1 text, anything else error 5.
inline Result<CompareMode> CompareArg(Frame& frame, Args args, size_t index) {
  if (!IsGiven(args, index)) return CompareMode::Binary;
  VBS_TRY_ASSIGN(auto mode, LongArg(frame, args[index]));
  if (mode == 0) return CompareMode::Binary;
  if (mode == 1) return CompareMode::Text;
  return MakeError(err::kInvalidCall);
}

}  // namespace vbs::builtin
