#include "vbscript/runtime/ErrObject.h"

#include "vbscript/runtime/Interpreter.h"

namespace vbs {

namespace {

Result<std::u16string> Text(const Variant& value, const Locale& locale) {
  VBS_TRY_ASSIGN(auto&& text, value.to_string(locale));
  return text.ToU16String();
}

}  // namespace

ErrObject::ErrObject(Interpreter& interp) : HostObject(interp.locale()), m_interp(interp) {}

std::span<const ErrObject::Member> ErrObject::Members() {
  static const Member kMembers[] = {
      {"Number", 0, 0, &ErrObject::GetNumber, &ErrObject::PutNumber, "the error's number; 0 for none", true},
      {"Description", 0, 0, &ErrObject::GetDescription, &ErrObject::PutDescription, "the error's text"},
      {"Source", 0, 0, &ErrObject::GetSource, &ErrObject::PutSource, "who raised the error"},
      {"HelpFile", 0, 0, &ErrObject::GetHelpFile, nullptr, "always empty"},
      {"HelpContext", 0, 0, &ErrObject::GetHelpContext, nullptr, "always 0"},
      {"Raise", 1, 5, &ErrObject::Raise, nullptr, "Number[, Source, Description, HelpFile, HelpContext]"},
      {"Clear", 0, 0, &ErrObject::Clear, nullptr, "forgets the error"},
  };
  return kMembers;
}

Result<Variant> ErrObject::GetNumber(CallArgs&) { return Variant::Long(m_interp.err().number); }

Result<Variant> ErrObject::PutNumber(CallArgs&, Variant value) {
  VBS_TRY_ASSIGN(auto&& number, value.to_long(m_interp.locale()));
  m_interp.err().number = number;
  return Variant();
}

Result<Variant> ErrObject::GetDescription(CallArgs&) { return Variant::String(m_interp.err().description); }

Result<Variant> ErrObject::PutDescription(CallArgs&, Variant value) {
  VBS_TRY_ASSIGN(auto&& text, Text(value, m_interp.locale()));
  m_interp.err().description = std::move(text);
  return Variant();
}

Result<Variant> ErrObject::GetSource(CallArgs&) { return Variant::String(m_interp.err().source); }

Result<Variant> ErrObject::PutSource(CallArgs&, Variant value) {
  VBS_TRY_ASSIGN(auto&& text, Text(value, m_interp.locale()));
  m_interp.err().source = std::move(text);
  return Variant();
}

Result<Variant> ErrObject::GetHelpFile(CallArgs&) { return Variant::String(u""); }

Result<Variant> ErrObject::GetHelpContext(CallArgs&) { return Variant::Long(0); }

Result<Variant> ErrObject::Raise(CallArgs& args) {
  VBS_TRY_ASSIGN(auto&& number, args.Long(0));
  // 0 and positive numbers past 16 bits are no error numbers: Raise itself is called wrongly.
  if (number == 0 || number > 0xFFFF) return MakeError(err::kInvalidCall);
  ScriptError error = MakeError(number);
  // What Raise is not told is kept from the Err object as it stands, as Windows does.
  error.source = m_interp.err().source;
  if (args.Has(1)) {
    VBS_TRY_ASSIGN(auto&& source, args.String(1));
    error.source = std::move(source);
  }
  if (args.Has(2)) {
    VBS_TRY_ASSIGN(auto&& description, args.String(2));
    error.description = std::move(description);
  }
  return error;
}

Result<Variant> ErrObject::Clear(CallArgs&) {
  m_interp.err() = ErrState{};
  return Variant();
}

}  // namespace vbs
