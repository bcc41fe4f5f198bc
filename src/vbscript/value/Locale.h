#pragma once

// The regional settings that change how values read and print: CStr(0.5) is "0,5" on Italian
// Windows and "0.5" on English, CDbl("1.5") is 15 on Italian Windows (the period groups thousands
// there). A Locale is plain data; each engine holds its own copy of the current one, which
// SetLocale overwrites, so two engines can run with different settings side by side.

#include <array>
#include <cstdint>
#include <string_view>

#include "vbscript/value/ErrorTable.h"
#include "vbscript/value/Result.h"

namespace vbs {

enum class DateOrder { DayMonthYear, MonthDayYear, YearMonthDay };

struct Locale {
  uint32_t lcid;
  Language language;  // of error texts and of the Boolean words
  char16_t decimal_separator;
  char16_t thousands_separator;
  std::u16string_view currency_symbol;
  // Short date: order, separator, and whether day and month print with two digits.
  DateOrder date_order;
  char16_t date_separator;
  bool two_digit_day_month;
  // Long time: separator, 24-hour clock, two-digit hour; AM/PM designators for the 12-hour clock.
  char16_t time_separator;
  bool hour24;
  bool two_digit_hour;
  std::u16string_view am;
  std::u16string_view pm;
  // What CStr(True)/CStr(False) give, as Windows' own conversion of Booleans does for the locale.
  std::u16string_view true_text;
  std::u16string_view false_text;
  std::array<std::u16string_view, 12> month_names;
  std::array<std::u16string_view, 12> month_abbreviations;
  std::array<std::u16string_view, 7> day_names;  // Sunday first, as Weekday() counts
  std::array<std::u16string_view, 7> day_abbreviations;
};

inline constexpr uint32_t kLcidItalian = 1040;
inline constexpr uint32_t kLcidEnglishUs = 1033;

const Locale& ItalianLocale();
const Locale& EnglishLocale();
// The locale with the given LCID, or error 5 when the engine does not know it.
Result<const Locale*> LocaleFromLcid(int32_t lcid);

}  // namespace vbs
