#include "vbscript/value/DateTime.h"

#include <chrono>
#include <cmath>
#include <cstdint>
#include <vector>

#include "text/Utf.h"

namespace vbs {
namespace {

// Days from 1970-01-01 to a proleptic Gregorian date (the usual era-based computation).
int64_t DaysFromCivil(int64_t y, int64_t m, int64_t d) {
  y -= m <= 2;
  const int64_t era = (y >= 0 ? y : y - 399) / 400;
  const int64_t yoe = y - era * 400;
  const int64_t doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const int64_t doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + doe - 719468;
}

void CivilFromDays(int64_t z, int& year, int& month, int& day) {
  z += 719468;
  const int64_t era = (z >= 0 ? z : z - 146096) / 146097;
  const int64_t doe = z - era * 146097;
  const int64_t yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const int64_t doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const int64_t mp = (5 * doy + 2) / 153;
  day = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  year = static_cast<int>(yoe + era * 400 + (month <= 2));
}

const int64_t kEpochDays = DaysFromCivil(1899, 12, 30);

bool IsLeap(int y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; }

int DaysInMonth(int y, int m) {
  static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return m == 2 && IsLeap(y) ? 29 : kDays[m - 1];
}

void AppendNumber(std::u16string& out, int value, int min_digits) {
  std::u16string digits;
  do {
    digits.insert(digits.begin(), static_cast<char16_t>(u'0' + value % 10));
    value /= 10;
  } while (value > 0);
  while (static_cast<int>(digits.size()) < min_digits) digits.insert(digits.begin(), u'0');
  out += digits;
}

int CurrentYear() {
  const auto today = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
  return static_cast<int>(std::chrono::year_month_day(today).year());
}

// A number as written, with its digit count (two-digit years are windowed, four-digit are not).
struct Number {
  int value;
  int digits;
};

int ExpandYear(const Number& n) {
  if (n.digits <= 2) return n.value < 30 ? 2000 + n.value : 1900 + n.value;
  return n.value;
}

std::optional<double> DayFromParts(const Number& year, int month, int day) {
  return SerialFromDate(ExpandYear(year), month, day);
}

// Month number (1-12) named by `word` in the locale or in English, else 0.
int MonthFromName(std::u16string_view word, const Locale& locale) {
  for (const Locale* l : {&locale, &EnglishLocale()}) {
    for (int m = 0; m < 12; ++m) {
      if (text::EqualsIgnoringCase(word, l->month_names[m]) ||
          text::EqualsIgnoringCase(word, l->month_abbreviations[m]))
        return m + 1;
    }
  }
  return 0;
}

bool IsDayName(std::u16string_view word, const Locale& locale) {
  for (const Locale* l : {&locale, &EnglishLocale()}) {
    for (int d = 0; d < 7; ++d) {
      if (text::EqualsIgnoringCase(word, l->day_names[d]) || text::EqualsIgnoringCase(word, l->day_abbreviations[d]))
        return true;
    }
  }
  return false;
}

enum class Meridiem { None, Am, Pm };

Meridiem MeridiemFromWord(std::u16string_view word, const Locale& locale) {
  for (const Locale* l : {&locale, &EnglishLocale()}) {
    if (!l->am.empty() && text::EqualsIgnoringCase(word, l->am)) return Meridiem::Am;
    if (!l->pm.empty() && text::EqualsIgnoringCase(word, l->pm)) return Meridiem::Pm;
  }
  if (text::EqualsIgnoringCase(word, u"a")) return Meridiem::Am;
  if (text::EqualsIgnoringCase(word, u"p")) return Meridiem::Pm;
  return Meridiem::None;
}

bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }
bool IsLetter(char16_t c) {
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= 0xC0 && c <= 0x24F && c != 0xD7 && c != 0xF7);
}

std::optional<double> DateFromNumbers(const std::vector<Number>& numbers, int month_name, const Locale& locale) {
  if (month_name != 0) {
    if (numbers.size() == 1) {
      // "gennaio 2000" names a month of a year; "12 gennaio" a day of this year.
      if (numbers[0].value > 31 || numbers[0].digits > 2) return DayFromParts(numbers[0], month_name, 1);
      return SerialFromDate(CurrentYear(), month_name, numbers[0].value);
    }
    if (numbers.size() == 2) {
      if (numbers[0].value > 31 || numbers[0].digits > 2) return DayFromParts(numbers[0], month_name, numbers[1].value);
      return DayFromParts(numbers[1], month_name, numbers[0].value);
    }
    return std::nullopt;
  }
  const bool day_first = locale.date_order != DateOrder::MonthDayYear;
  if (numbers.size() == 2) {
    // Either a day and month of this year, or a month and year ("1/2000").
    const int a = numbers[0].value;
    const int b = numbers[1].value;
    if (b > 31 || numbers[1].digits > 2) return DayFromParts(numbers[1], a, 1);
    const Number this_year{CurrentYear(), 4};
    auto first = day_first ? DayFromParts(this_year, b, a) : DayFromParts(this_year, a, b);
    if (first) return first;
    return day_first ? DayFromParts(this_year, a, b) : DayFromParts(this_year, b, a);
  }
  if (numbers.size() != 3) return std::nullopt;
  if (numbers[0].digits > 2 || numbers[0].value > 31) {
    return DayFromParts(numbers[0], numbers[1].value, numbers[2].value);
  }
  const int a = numbers[0].value;
  const int b = numbers[1].value;
  auto first = day_first ? DayFromParts(numbers[2], b, a) : DayFromParts(numbers[2], a, b);
  if (first) return first;
  return day_first ? DayFromParts(numbers[2], a, b) : DayFromParts(numbers[2], b, a);
}

}  // namespace

bool IsValidDateSerial(double serial) {
  return std::isfinite(serial) && serial >= kMinDateSerial && serial < 2958466.0;
}

std::optional<double> SerialFromDate(int year, int month, int day) {
  if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1 || day > DaysInMonth(year, month)) {
    return std::nullopt;
  }
  return static_cast<double>(DaysFromCivil(year, month, day) - kEpochDays);
}

std::optional<double> SerialFromTime(int hour, int minute, int second) {
  if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59) return std::nullopt;
  return (hour * 3600 + minute * 60 + second) / 86400.0;
}

double CombineDateAndTime(double day_serial, double time_fraction) {
  return day_serial < 0 ? day_serial - time_fraction : day_serial + time_fraction;
}

DateTimeParts SplitSerial(double serial) {
  const double day = std::trunc(serial);
  auto seconds = static_cast<int64_t>(std::llround(std::fabs(serial - day) * 86400.0));
  int64_t days = static_cast<int64_t>(day);
  if (seconds >= 86400) {
    seconds -= 86400;
    // 24:00 is the next calendar day; integer parts run with the calendar on both sides of 0.
    ++days;
  }
  DateTimeParts parts;
  CivilFromDays(days + kEpochDays, parts.year, parts.month, parts.day);
  parts.hour = static_cast<int>(seconds / 3600);
  parts.minute = static_cast<int>(seconds / 60 % 60);
  parts.second = static_cast<int>(seconds % 60);
  return parts;
}

int WeekdayOfSerial(double serial) {
  const DateTimeParts p = SplitSerial(serial);
  const int64_t days = DaysFromCivil(p.year, p.month, p.day);  // 1970-01-01 was a Thursday
  return static_cast<int>(((days + 4) % 7 + 7) % 7) + 1;
}

std::u16string FormatShortDate(const DateTimeParts& p, const Locale& locale) {
  const int width = locale.two_digit_day_month ? 2 : 1;
  std::u16string out;
  const auto sep = locale.date_separator;
  switch (locale.date_order) {
    case DateOrder::DayMonthYear:
      AppendNumber(out, p.day, width);
      out += sep;
      AppendNumber(out, p.month, width);
      out += sep;
      AppendNumber(out, p.year, 1);
      break;
    case DateOrder::MonthDayYear:
      AppendNumber(out, p.month, width);
      out += sep;
      AppendNumber(out, p.day, width);
      out += sep;
      AppendNumber(out, p.year, 1);
      break;
    case DateOrder::YearMonthDay:
      AppendNumber(out, p.year, 1);
      out += sep;
      AppendNumber(out, p.month, width);
      out += sep;
      AppendNumber(out, p.day, width);
      break;
  }
  return out;
}

std::u16string FormatLongTime(const DateTimeParts& p, const Locale& locale) {
  std::u16string out;
  int hour = p.hour;
  if (!locale.hour24) {
    hour = hour % 12;
    if (hour == 0) hour = 12;
  }
  AppendNumber(out, hour, locale.two_digit_hour ? 2 : 1);
  out += locale.time_separator;
  AppendNumber(out, p.minute, 2);
  out += locale.time_separator;
  AppendNumber(out, p.second, 2);
  if (!locale.hour24) {
    out += u' ';
    out += p.hour < 12 ? locale.am : locale.pm;
  }
  return out;
}

std::u16string FormatDateTime(double serial, const Locale& locale) {
  const DateTimeParts parts = SplitSerial(serial);
  const bool has_date = !(parts.year == 1899 && parts.month == 12 && parts.day == 30);
  const bool has_time = parts.hour != 0 || parts.minute != 0 || parts.second != 0;
  if (!has_date) return FormatLongTime(parts, locale);
  if (!has_time) return FormatShortDate(parts, locale);
  return FormatShortDate(parts, locale) + u' ' + FormatLongTime(parts, locale);
}

std::optional<double> ParseDateTime(std::u16string_view text, const Locale& locale) {
  std::vector<Number> numbers;
  std::vector<int> times;
  int month_name = 0;
  Meridiem meridiem = Meridiem::None;
  bool in_time = false;
  size_t i = 0;
  while (i < text.size()) {
    const char16_t c = text[i];
    if (IsDigit(c)) {
      Number n{0, 0};
      while (i < text.size() && IsDigit(text[i])) {
        if (n.digits >= 5) return std::nullopt;
        n.value = n.value * 10 + (text[i] - u'0');
        ++n.digits;
        ++i;
      }
      const bool starts_time = i < text.size() && text[i] == u':';
      if (in_time || starts_time) {
        if (!in_time && !times.empty()) return std::nullopt;  // a second time
        in_time = starts_time;
        times.push_back(n.value);
        if (starts_time) ++i;
      } else {
        numbers.push_back(n);
      }
      continue;
    }
    if (in_time) return std::nullopt;  // "10:" followed by no number
    if (IsLetter(c)) {
      const size_t start = i;
      while (i < text.size() && IsLetter(text[i])) ++i;
      if (i < text.size() && text[i] == u'.') ++i;  // "gen." and "a.m" style abbreviations
      std::u16string_view word = text.substr(start, i - start);
      if (word.back() == u'.') word.remove_suffix(1);
      if (const int m = MonthFromName(word, locale); m != 0 && month_name == 0) {
        month_name = m;
      } else if (const Meridiem mer = MeridiemFromWord(word, locale); mer != Meridiem::None && !times.empty()) {
        meridiem = mer;
      } else if (!IsDayName(word, locale)) {
        return std::nullopt;
      }
      continue;
    }
    if (c == u'/' || c == u'-' || c == u'.' || c == u',' || c == u' ' || c == u'\t') {
      ++i;
      continue;
    }
    return std::nullopt;
  }
  if (in_time || times.size() > 3 || (times.size() == 1)) return std::nullopt;

  double time = 0;
  if (!times.empty()) {
    int hour = times[0];
    if (meridiem != Meridiem::None) {
      if (hour < 1 || hour > 12) return std::nullopt;
      hour = hour % 12 + (meridiem == Meridiem::Pm ? 12 : 0);
    }
    auto t = SerialFromTime(hour, times[1], times.size() == 3 ? times[2] : 0);
    if (!t) return std::nullopt;
    time = *t;
  }
  if (numbers.empty() && month_name == 0) {
    if (times.empty()) return std::nullopt;
    return time;
  }
  auto day = DateFromNumbers(numbers, month_name, locale);
  if (!day) return std::nullopt;
  return CombineDateAndTime(*day, time);
}

}  // namespace vbs
