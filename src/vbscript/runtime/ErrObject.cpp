#include "vbscript/runtime/ErrObject.h"

#include <algorithm>
#include <iterator>

#include "vbscript/runtime/Interpreter.h"

namespace vbs {

namespace {

// The COM failure codes that Windows turns into the script's own error numbers when a script
// raises one (Err.Raise &H8007000E gives 7, "Out of memory"), sorted by code.
struct HresultNumber {
  uint32_t hresult;
  int32_t number;
};
constexpr HresultNumber kHresultNumbers[] = {
    {0x80004001, 445}, {0x80004002, 430}, {0x80020001, 438}, {0x80020003, 438}, {0x80020004, 448}, {0x80020005, 13},
    {0x80020006, 438}, {0x80020007, 446}, {0x80020008, 458}, {0x8002000A, 6},   {0x8002000B, 9},   {0x8002000C, 447},
    {0x8002000D, 10},  {0x8002000E, 450}, {0x8002000F, 449}, {0x80020011, 451}, {0x8002802F, 453}, {0x80028CA0, 13},
    {0x80028CA1, 9},   {0x80028CA2, 57},  {0x80028CA3, 322}, {0x80030002, 432}, {0x80030003, 76},  {0x80030004, 67},
    {0x80030005, 70},  {0x80030008, 7},   {0x80030012, 67},  {0x80030013, 70},  {0x8003001D, 57},  {0x8003001E, 57},
    {0x80030020, 75},  {0x80030021, 70},  {0x80030050, 58},  {0x80030070, 61},  {0x800300FC, 53},  {0x80030100, 70},
    {0x80030101, 70},  {0x80030103, 57},  {0x80040154, 429}, {0x800401E3, 429}, {0x800401E6, 432}, {0x800401EA, 432},
    {0x800401F3, 429}, {0x800401F5, 429}, {0x800401FE, 429}, {0x80070005, 70},  {0x8007000E, 7},   {0x80070057, 5},
    {0x800706BA, 462}, {0x80080005, 429},
};

// The number Err shows for a raised number: a code of the script engine's own facility (0x800A)
// carries the number in its low word, a known COM code has its counterpart, any other stays.
int32_t ShownNumber(int32_t raised) {
  const auto code = static_cast<uint32_t>(raised);
  if ((code >> 16) == 0x800A) return static_cast<int32_t>(code & 0xFFFF);
  const auto* found = std::lower_bound(std::begin(kHresultNumbers), std::end(kHresultNumbers), code,
                                       [](const HresultNumber& row, uint32_t c) { return row.hresult < c; });
  if (found != std::end(kHresultNumbers) && found->hresult == code) return found->number;
  return raised;
}

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
      {"HelpFile", 0, 0, &ErrObject::GetHelpFile, &ErrObject::PutHelpFile, "the help file Raise named"},
      {"HelpContext", 0, 0, &ErrObject::GetHelpContext, &ErrObject::PutHelpContext, "the help topic Raise named"},
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

Result<Variant> ErrObject::GetHelpFile(CallArgs&) { return Variant::String(m_interp.err().help_file); }

Result<Variant> ErrObject::PutHelpFile(CallArgs&, Variant value) {
  VBS_TRY_ASSIGN(auto&& text, Text(value, m_interp.locale()));
  m_interp.err().help_file = std::move(text);
  return Variant();
}

Result<Variant> ErrObject::GetHelpContext(CallArgs&) { return Variant::Long(m_interp.err().help_context); }

Result<Variant> ErrObject::PutHelpContext(CallArgs&, Variant value) {
  VBS_TRY_ASSIGN(auto&& context, value.to_long(m_interp.locale()));
  m_interp.err().help_context = context;
  return Variant();
}

Result<Variant> ErrObject::Raise(CallArgs& args) {
  VBS_TRY_ASSIGN(auto&& number, args.Long(0));
  // 0 and positive numbers past 16 bits are no error numbers: Raise itself is called wrongly.
  if (number == 0 || number > 0xFFFF) return MakeError(err::kInvalidCall);
  // What Raise is not told is kept from the Err object as it stands, as Windows does; after Clear
  // the source and the description are empty and take the engine's name and the number's text.
  const ErrState& now = m_interp.err();
  ScriptError error = MakeError(ShownNumber(number));
  error.source = now.source;
  error.description = now.description;
  error.help_file = now.help_file;
  error.help_context = now.help_context;
  if (args.Has(1)) {
    VBS_TRY_ASSIGN(auto&& source, args.String(1));
    error.source = std::move(source);
  }
  if (args.Has(2)) {
    VBS_TRY_ASSIGN(auto&& description, args.String(2));
    error.description = std::move(description);
  }
  if (args.Has(3)) {
    VBS_TRY_ASSIGN(auto&& help_file, args.String(3));
    error.help_file = std::move(help_file);
  }
  if (args.Has(4)) {
    VBS_TRY_ASSIGN(auto&& help_context, args.Long(4));
    error.help_context = help_context;
  }
  return error;
}

Result<Variant> ErrObject::Clear(CallArgs&) {
  m_interp.err() = ErrState{};
  return Variant();
}

}  // namespace vbs
