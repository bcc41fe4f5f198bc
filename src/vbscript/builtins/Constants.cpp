// The language's named constants. They compile to their values, as literals do.

#include <unordered_map>

#include "vbscript/builtins/Builtins.h"
#include "vbscript/runtime/Interpreter.h"

namespace vbs {

namespace {

struct NamedConstant {
  std::string_view name;
  Variant (*make)();
};

template <int16_t V>
Variant Int() {
  return Variant::Integer(V);
}
template <int32_t V>
Variant Lng() {
  return Variant::Long(V);
}

const NamedConstant kConstants[] = {
    {"vbCr", [] { return Variant::String(u"\r"); }},
    {"vbLf", [] { return Variant::String(u"\n"); }},
    {"vbCrLf", [] { return Variant::String(u"\r\n"); }},
    {"vbNewLine", [] { return Variant::String(u"\r\n"); }},
    {"vbTab", [] { return Variant::String(u"\t"); }},
    {"vbFormFeed", [] { return Variant::String(u"\f"); }},
    {"vbVerticalTab", [] { return Variant::String(u"\v"); }},
    {"vbNullChar", [] { return Variant::String(std::u16string(1, u'\0')); }},
    {"vbNullString", [] { return Variant::String(u""); }},
    {"vbEmpty", &Int<0>},
    {"vbNull", &Int<1>},
    {"vbInteger", &Int<2>},
    {"vbLong", &Int<3>},
    {"vbSingle", &Int<4>},
    {"vbDouble", &Int<5>},
    {"vbCurrency", &Int<6>},
    {"vbDate", &Int<7>},
    {"vbString", &Int<8>},
    {"vbObject", &Int<9>},
    {"vbError", &Int<10>},
    {"vbBoolean", &Int<11>},
    {"vbVariant", &Int<12>},
    {"vbDataObject", &Int<13>},
    {"vbDecimal", &Int<14>},
    {"vbByte", &Int<17>},
    {"vbArray", &Int<8192>},
    {"vbBinaryCompare", &Int<0>},
    {"vbTextCompare", &Int<1>},
    {"vbDatabaseCompare", &Int<2>},
    {"vbUseSystemDayOfWeek", &Int<0>},
    {"vbSunday", &Int<1>},
    {"vbMonday", &Int<2>},
    {"vbTuesday", &Int<3>},
    {"vbWednesday", &Int<4>},
    {"vbThursday", &Int<5>},
    {"vbFriday", &Int<6>},
    {"vbSaturday", &Int<7>},
    {"vbUseSystem", &Int<0>},
    {"vbFirstJan1", &Int<1>},
    {"vbFirstFourDays", &Int<2>},
    {"vbFirstFullWeek", &Int<3>},
    {"vbGeneralDate", &Int<0>},
    {"vbLongDate", &Int<1>},
    {"vbShortDate", &Int<2>},
    {"vbLongTime", &Int<3>},
    {"vbShortTime", &Int<4>},
    {"vbOKOnly", &Int<0>},
    {"vbOKCancel", &Int<1>},
    {"vbAbortRetryIgnore", &Int<2>},
    {"vbYesNoCancel", &Int<3>},
    {"vbYesNo", &Int<4>},
    {"vbRetryCancel", &Int<5>},
    {"vbCritical", &Int<16>},
    {"vbQuestion", &Int<32>},
    {"vbExclamation", &Int<48>},
    {"vbInformation", &Int<64>},
    {"vbDefaultButton1", &Int<0>},
    {"vbDefaultButton2", &Int<256>},
    {"vbDefaultButton3", &Int<512>},
    {"vbDefaultButton4", &Int<768>},
    {"vbApplicationModal", &Int<0>},
    {"vbSystemModal", &Int<4096>},
    {"vbMsgBoxHelpButton", &Lng<16384>},
    {"vbMsgBoxSetForeground", &Lng<65536>},
    {"vbMsgBoxRight", &Lng<524288>},
    {"vbMsgBoxRtlReading", &Lng<1048576>},
    {"vbOK", &Int<1>},
    {"vbCancel", &Int<2>},
    {"vbAbort", &Int<3>},
    {"vbRetry", &Int<4>},
    {"vbIgnore", &Int<5>},
    {"vbYes", &Int<6>},
    {"vbNo", &Int<7>},
    {"vbBlack", &Lng<0x000000>},
    {"vbRed", &Lng<0x0000FF>},
    {"vbGreen", &Lng<0x00FF00>},
    {"vbYellow", &Lng<0x00FFFF>},
    {"vbBlue", &Lng<0xFF0000>},
    {"vbMagenta", &Lng<0xFF00FF>},
    {"vbCyan", &Lng<0xFFFF00>},
    {"vbWhite", &Lng<0xFFFFFF>},
    {"vbObjectError", &Lng<static_cast<int32_t>(0x80040000u)>},
    {"vbUseDefault", &Int<-2>},
    {"vbTrue", &Int<-1>},
    {"vbFalse", &Int<0>},
};

}  // namespace

std::optional<Variant> NamedConstantValue(std::string_view folded_name) {
  static const std::unordered_map<std::string, Variant (*)()> kByName = [] {
    std::unordered_map<std::string, Variant (*)()> map;
    for (const NamedConstant& c : kConstants) map[Interpreter::Fold(c.name)] = c.make;
    return map;
  }();
  auto it = kByName.find(std::string(folded_name));
  if (it == kByName.end()) return std::nullopt;
  return it->second();
}

}  // namespace vbs
