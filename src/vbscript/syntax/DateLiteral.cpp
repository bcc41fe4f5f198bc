#include "vbscript/syntax/DateLiteral.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <vector>

#include "text/AsciiCase.h"

namespace vbs {
namespace {

enum class PartKind { Number, Month, AmPm, Colon };

struct Part {
  PartKind kind;
  int32_t value = 0;   // the number, the month (1-12), or 1 for PM and 0 for AM
  int32_t digits = 0;  // of a number: tells a year (3+ digits) from a day or month
};

constexpr std::array<std::u16string_view, 12> kMonthNames = {u"january",   u"february", u"march",    u"april",
                                                             u"may",       u"june",     u"july",     u"august",
                                                             u"september", u"october",  u"november", u"december"};

bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }
bool IsLetter(char16_t c) { return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'); }

// A month is named in full or by any prefix of at least three letters ("Sep", "Sept").
std::optional<Part> ReadWord(std::u16string_view word) {
  std::u16string lower;
  for (char16_t c : word) lower.push_back(text::LowerAscii(c));
  if (lower == u"am" || lower == u"a") return Part{PartKind::AmPm, 0};
  if (lower == u"pm" || lower == u"p") return Part{PartKind::AmPm, 1};
  if (lower.size() < 3) return std::nullopt;
  for (size_t i = 0; i < kMonthNames.size(); ++i) {
    if (kMonthNames[i].substr(0, lower.size()) == lower) return Part{PartKind::Month, static_cast<int32_t>(i + 1)};
  }
  return std::nullopt;
}

std::optional<std::vector<Part>> Split(std::u16string_view text) {
  std::vector<Part> parts;
  size_t i = 0;
  while (i < text.size()) {
    char16_t c = text[i];
    if (IsDigit(c)) {
      Part part{PartKind::Number};
      for (; i < text.size() && IsDigit(text[i]); ++i) {
        if (part.digits == 9) return std::nullopt;
        part.value = part.value * 10 + (text[i] - u'0');
        ++part.digits;
      }
      parts.push_back(part);
    } else if (IsLetter(c)) {
      size_t start = i;
      while (i < text.size() && IsLetter(text[i])) ++i;
      auto word = ReadWord(text.substr(start, i - start));
      if (!word) return std::nullopt;
      parts.push_back(*word);
    } else if (c == u':') {
      parts.push_back(Part{PartKind::Colon});
      ++i;
    } else if (c == u'/' || c == u'-' || c == u'.' || c == u',' || c == u' ' || c == u'\t') {
      ++i;
    } else {
      return std::nullopt;
    }
  }
  return parts;
}

struct TimeOfDay {
  int32_t seconds = 0;
};

// Takes "h:mm[:ss] [AM|PM]" or "h AM|PM" out of `parts`; nullopt when what is there is malformed.
std::optional<TimeOfDay> TakeTime(std::vector<Part>& parts, bool& found) {
  found = false;
  for (size_t i = 0; i < parts.size(); ++i) {
    if (parts[i].kind != PartKind::Number) continue;
    bool has_colon = i + 1 < parts.size() && parts[i + 1].kind == PartKind::Colon;
    bool has_am_pm = i + 1 < parts.size() && parts[i + 1].kind == PartKind::AmPm;
    if (!has_colon && !has_am_pm) continue;
    found = true;
    int32_t fields[3] = {parts[i].value, 0, 0};
    size_t end = i + 1;
    for (int field = 1; field < 3 && end < parts.size() && parts[end].kind == PartKind::Colon; ++field) {
      if (end + 1 >= parts.size() || parts[end + 1].kind != PartKind::Number) return std::nullopt;
      fields[field] = parts[end + 1].value;
      end += 2;
    }
    int32_t hour = fields[0];
    if (end < parts.size() && parts[end].kind == PartKind::AmPm) {
      if (hour < 1 || hour > 12) return std::nullopt;
      hour = (hour % 12) + (parts[end].value == 1 ? 12 : 0);
      ++end;
    }
    if (hour > 23 || fields[1] > 59 || fields[2] > 59) return std::nullopt;
    parts.erase(parts.begin() + static_cast<ptrdiff_t>(i), parts.begin() + static_cast<ptrdiff_t>(end));
    return TimeOfDay{hour * 3600 + fields[1] * 60 + fields[2]};
  }
  return TimeOfDay{};
}

// Days from 1 March of year 0 in the proleptic Gregorian calendar, shifted so that 30/12/1899 is 0.
int64_t DaysFromCivil(int64_t year, int64_t month, int64_t day) {
  year -= month <= 2 ? 1 : 0;
  int64_t era = (year >= 0 ? year : year - 399) / 400;
  int64_t year_of_era = year - era * 400;
  int64_t day_of_year = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
  int64_t day_of_era = year_of_era * 365 + year_of_era / 4 - year_of_era / 100 + day_of_year;
  return era * 146097 + day_of_era - 693899;
}

bool IsLeap(int32_t year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int32_t DaysInMonth(int32_t year, int32_t month) {
  constexpr std::array<int32_t, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeap(year) ? 29 : kDays[static_cast<size_t>(month - 1)];
}

int32_t CurrentYear() {
  auto today = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
  return static_cast<int32_t>(std::chrono::year_month_day(today).year());
}

bool LooksLikeYear(const Part& part) { return part.digits >= 3 || part.value > 31; }

int32_t FullYear(const Part& part) {
  if (part.digits > 2) return part.value;
  return part.value < 30 ? 2000 + part.value : 1900 + part.value;
}

struct Ymd {
  int32_t year = 0, month = 0, day = 0;
};

// Month before day: the order of source code, independent of the locale. A first number that can
// only be a year gives year-month-day; a month over 12 with a day that fits is read as day/month.
std::optional<Ymd> ReadDate(const std::vector<Part>& parts) {
  std::vector<Part> numbers;
  int32_t month_name = 0;
  for (const Part& part : parts) {
    if (part.kind == PartKind::Number) {
      numbers.push_back(part);
    } else if (part.kind == PartKind::Month && month_name == 0) {
      month_name = part.value;
    } else {
      return std::nullopt;
    }
  }
  Ymd date;
  if (month_name != 0) {
    date.month = month_name;
    if (numbers.size() == 1) {
      if (LooksLikeYear(numbers[0])) {
        date = {FullYear(numbers[0]), month_name, 1};
      } else {
        date = {CurrentYear(), month_name, numbers[0].value};
      }
    } else if (numbers.size() == 2) {
      bool year_first = LooksLikeYear(numbers[0]) && !LooksLikeYear(numbers[1]);
      const Part& day = year_first ? numbers[1] : numbers[0];
      const Part& year = year_first ? numbers[0] : numbers[1];
      date = {FullYear(year), month_name, day.value};
    } else {
      return std::nullopt;
    }
  } else if (numbers.size() == 3) {
    if (LooksLikeYear(numbers[0])) {
      date = {FullYear(numbers[0]), numbers[1].value, numbers[2].value};
    } else {
      date = {FullYear(numbers[2]), numbers[0].value, numbers[1].value};
      if (date.month > 12 && date.day <= 12) std::swap(date.month, date.day);
    }
  } else if (numbers.size() == 2) {
    if (LooksLikeYear(numbers[0])) {
      date = {FullYear(numbers[0]), numbers[1].value, 1};
    } else if (LooksLikeYear(numbers[1])) {
      date = {FullYear(numbers[1]), numbers[0].value, 1};
    } else {
      date = {CurrentYear(), numbers[0].value, numbers[1].value};
      if (date.month > 12 && date.day <= 12) std::swap(date.month, date.day);
    }
  } else {
    return std::nullopt;
  }
  if (date.year < 100 || date.year > 9999 || date.month < 1 || date.month > 12) return std::nullopt;
  if (date.day < 1 || date.day > DaysInMonth(date.year, date.month)) return std::nullopt;
  return date;
}

}  // namespace

std::optional<double> ParseDateLiteral(std::u16string_view text) {
  auto parts = Split(text);
  if (!parts || parts->empty()) return std::nullopt;
  bool has_time = false;
  auto time = TakeTime(*parts, has_time);
  if (!time) return std::nullopt;
  double fraction = time->seconds / 86400.0;
  if (parts->empty()) return has_time ? std::optional<double>(fraction) : std::nullopt;
  auto date = ReadDate(*parts);
  if (!date) return std::nullopt;
  auto days = static_cast<double>(DaysFromCivil(date->year, date->month, date->day));
  // OLE dates before 30/12/1899 count the day backwards but the time of day forwards.
  return days >= 0 ? days + fraction : days - fraction;
}

}  // namespace vbs
