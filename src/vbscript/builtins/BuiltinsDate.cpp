// Dates and times: the clock (Date, Time, Now, Timer), building dates (DateSerial, TimeSerial,
// DateValue, TimeValue), taking them apart (Year ... Second, Weekday, DatePart), arithmetic
// (DateAdd, DateDiff), names (WeekdayName, MonthName) and FormatDateTime.
//
// A Date before 30 December 1899 counts its days backwards but its time forwards (DateTime.h), so
// arithmetic happens on a "linear" day count, days plus the time of day, which always increases.
// Weeks start on Sunday and week 1 is the week of 1 January unless the script says otherwise. The
// system settings that Windows takes from the regional options (vbUseSystemDayOfWeek,
// vbUseSystem) follow the engine's locale: Italian weeks start on Monday and count from the first
// week with four days, as ISO 8601 does; English (United States) ones are the defaults.

#include <cmath>
#include <ctime>
#include <optional>
#include <string>
#include <utility>

#include "text/Utf.h"
#include "vbscript/builtins/Builtins.h"
#include "vbscript/runtime/RandomGenerator.h"
#include "vbscript/value/Coercion.h"
#include "vbscript/value/DateTime.h"

namespace vbs {

namespace {

constexpr int32_t kSecondsPerDay = 86400;
constexpr int kSunday = 1;
constexpr int kMonday = 2;
constexpr int kFirstJan1 = 1;
constexpr int kFirstFourDays = 2;
constexpr int kFirstFullWeek = 3;

int64_t FloorDiv(int64_t a, int64_t b) { return a / b - ((a % b != 0) && ((a < 0) != (b < 0))); }

// ---- Serials, linear time and parts ----

double Linear(double serial) {
  if (serial >= 0) return serial;
  const double day = std::trunc(serial);
  return day + (day - serial);
}

double FromLinear(double linear) {
  const double day = std::floor(linear);
  return CombineDateAndTime(day, linear - day);
}

// A day number and a second of that day, from a serial's parts (the time rounded to the second).
struct Moment {
  int64_t day;
  int64_t second;
  DateTimeParts parts;
};

Moment MomentOf(double serial) {
  const DateTimeParts p = SplitSerial(serial);
  const auto day = static_cast<int64_t>(*SerialFromDate(p.year, p.month, p.day));
  return Moment{day, p.hour * 3600 + p.minute * 60 + p.second, p};
}

int64_t TotalSeconds(const Moment& m) { return m.day * kSecondsPerDay + m.second; }

// The serial of a day number and a second of the day; error 5 outside the range of dates.
Result<double> SerialOf(int64_t day, int64_t second) {
  day += FloorDiv(second, kSecondsPerDay);
  second -= FloorDiv(second, kSecondsPerDay) * kSecondsPerDay;
  const double serial = CombineDateAndTime(static_cast<double>(day), static_cast<double>(second) / kSecondsPerDay);
  if (!IsValidDateSerial(serial)) return MakeError(err::kInvalidCall);
  return serial;
}

int WeekdayOfDay(int64_t day) { return WeekdayOfSerial(static_cast<double>(day)); }

// ---- The locale's week ----

int SystemFirstDayOfWeek(const Locale& locale) { return locale.lcid == kLcidItalian ? kMonday : kSunday; }
int SystemFirstWeekOfYear(const Locale& locale) { return locale.lcid == kLcidItalian ? kFirstFourDays : kFirstJan1; }

// An optional firstdayofweek (1-7) or firstweekofyear (1-3) argument: `fallback` when omitted, the
// system setting for 0; other values are error 5.
Result<int> WeekSetting(const CallArgs& args, size_t index, int max, int fallback, int system) {
  if (!args.Has(index)) return fallback;
  VBS_TRY_ASSIGN(auto n, args.Long(index));
  if (n < 0 || n > max) return MakeError(err::kInvalidCall);
  return n == 0 ? system : n;
}

Result<int> FirstDayOfWeek(const CallArgs& args, size_t index) {
  return WeekSetting(args, index, 7, kSunday, SystemFirstDayOfWeek(args.locale()));
}

Result<int> FirstWeekOfYear(const CallArgs& args, size_t index) {
  return WeekSetting(args, index, 3, kFirstJan1, SystemFirstWeekOfYear(args.locale()));
}

// 1 for the first day of the week, 7 for the last.
int DayOfWeek(int64_t day, int first_day) { return (WeekdayOfDay(day) - first_day + 7) % 7 + 1; }

int64_t DayOf(int year, int month, int day) { return static_cast<int64_t>(*SerialFromDate(year, month, day)); }

// The first day of week 1 of a year.
int64_t FirstWeekStart(int year, int first_day, int first_week) {
  const int64_t jan1 = DayOf(year, 1, 1);
  const int before = DayOfWeek(jan1, first_day) - 1;  // days of Jan 1's week that fall in December
  if (first_week == kFirstFullWeek && before > 0) return jan1 + 7 - before;
  if (first_week == kFirstFourDays && before > 3) return jan1 + 7 - before;
  return jan1 - before;
}

int WeekOfYear(const Moment& m, int first_day, int first_week) {
  int year = m.parts.year;
  if (first_week == kFirstFourDays && year < 9999 && m.day >= FirstWeekStart(year + 1, first_day, first_week)) return 1;
  int64_t start = FirstWeekStart(year, first_day, first_week);
  if (m.day < start && year > 100) start = FirstWeekStart(--year, first_day, first_week);
  return static_cast<int>(FloorDiv(m.day - start, 7)) + 1;
}

// ---- Reading a date argument ----

// Argument i as a Date serial, or nullopt for Null.
Result<std::optional<double>> DateOrNull(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto plain, args.Value(i));
  if (plain.is_null()) return std::optional<double>();
  VBS_TRY_ASSIGN(auto serial, plain.to_date(args.locale()));
  return std::optional<double>(serial);
}

// ---- The clock ----

DateTimeParts LocalNow() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return DateTimeParts{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
                       local.tm_hour,        local.tm_min,     local.tm_sec};
}

double TodaySerial(const DateTimeParts& p) { return *SerialFromDate(p.year, p.month, p.day); }
double TimeSerialOf(const DateTimeParts& p) { return *SerialFromTime(p.hour, p.minute, p.second); }

Result<Variant> DateFunction(Frame&, CallArgs&) { return Variant::Date(TodaySerial(LocalNow())); }
Result<Variant> TimeFunction(Frame&, CallArgs&) { return Variant::Date(TimeSerialOf(LocalNow())); }
Result<Variant> NowFunction(Frame&, CallArgs&) {
  const DateTimeParts now = LocalNow();
  return Variant::Date(TodaySerial(now) + TimeSerialOf(now));
}
Result<Variant> TimerFunction(Frame&, CallArgs&) { return Variant::Single(SecondsSinceMidnight()); }

// ---- Parts ----

template <int DateTimeParts::*field>
Result<Variant> PartFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto serial, DateOrNull(args, 0));
  if (!serial) return Variant::Null();
  return Variant::Integer(static_cast<int16_t>(SplitSerial(*serial).*field));
}

// Weekday(date [, firstdayofweek]): the first day is checked before a Null date gives Null.
Result<Variant> WeekdayFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto first_day, FirstDayOfWeek(args, 1));
  VBS_TRY_ASSIGN(auto serial, DateOrNull(args, 0));
  if (!serial) return Variant::Null();
  return Variant::Integer(static_cast<int16_t>(DayOfWeek(MomentOf(*serial).day, first_day)));
}

// WeekdayName(weekday [, abbreviate [, firstdayofweek]]): weekday 1 is the first day of the week.
Result<Variant> WeekdayNameFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto abbreviate, args.Boolean(1, false));
  VBS_TRY_ASSIGN(auto first_day, FirstDayOfWeek(args, 2));
  VBS_TRY_ASSIGN(auto weekday, args.Long(0));
  if (weekday < 1 || weekday > 7) return MakeError(err::kInvalidCall);
  const Locale& locale = args.locale();
  const size_t index = static_cast<size_t>(weekday - 1 + first_day - 1) % 7;
  return Variant::String(abbreviate ? locale.day_abbreviations[index] : locale.day_names[index]);
}

Result<Variant> MonthNameFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto abbreviate, args.Boolean(1, false));
  VBS_TRY_ASSIGN(auto month, args.Long(0));
  if (month < 1 || month > 12) return MakeError(err::kInvalidCall);
  const Locale& locale = args.locale();
  const auto index = static_cast<size_t>(month - 1);
  return Variant::String(abbreviate ? locale.month_abbreviations[index] : locale.month_names[index]);
}

// ---- Building dates ----

// DateSerial(year, month, day): years 0-29 are 2000-2029 and 30-99 are 1930-1999; months and days
// beyond their range carry over (month 14 is February of the next year, day 0 the last of the
// month before). Error 5 outside the range of dates.
Result<Variant> DateSerialFunction(Frame&, CallArgs& args) {
  int32_t values[3];
  for (size_t i = 0; i < 3; ++i) {
    VBS_TRY_ASSIGN(auto n, args.Long(i));
    values[i] = n;
  }
  int64_t year = values[0];
  if (year >= 0 && year <= 29) year += 2000;
  if (year >= 30 && year <= 99) year += 1900;
  const int64_t months = year * 12 + values[1] - 1;
  const int64_t whole_year = FloorDiv(months, 12);
  if (whole_year < 100 || whole_year > 9999) return MakeError(err::kInvalidCall);
  const int64_t first = DayOf(static_cast<int>(whole_year), static_cast<int>(months - whole_year * 12) + 1, 1);
  VBS_TRY_ASSIGN(auto serial, SerialOf(first + values[2] - 1, 0));
  return Variant::Date(serial);
}

// TimeSerial(hour, minute, second): any values, carried over into days (25:00 is 1:00 of
// 31 December 1899, -1:00 is 23:00 of 29 December 1899).
Result<Variant> TimeSerialFunction(Frame&, CallArgs& args) {
  int64_t seconds = 0;
  for (size_t i = 0; i < 3; ++i) {
    VBS_TRY_ASSIGN(auto n, args.Long(i));
    seconds = seconds * 60 + n;
  }
  VBS_TRY_ASSIGN(auto serial, SerialOf(0, seconds));
  return Variant::Date(serial);
}

Result<Variant> DateValueFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto serial, DateOrNull(args, 0));
  if (!serial) return Variant::Null();
  return Variant::Date(static_cast<double>(MomentOf(*serial).day));
}

Result<Variant> TimeValueFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto serial, DateOrNull(args, 0));
  if (!serial) return Variant::Null();
  return Variant::Date(static_cast<double>(MomentOf(*serial).second) / kSecondsPerDay);
}

// ---- Intervals ----

enum class Interval { Year, Quarter, Month, DayOfYear, Day, Weekday, Week, Hour, Minute, Second };

// The interval argument ("yyyy", "q", "m", "y", "d", "w", "ww", "h", "n", "s", in any case):
// error 94 for Null, 5 for anything else.
Result<Interval> IntervalArg(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto text, args.Text(i));
  static constexpr std::pair<std::u16string_view, Interval> kNames[] = {
      {u"yyyy", Interval::Year}, {u"q", Interval::Quarter}, {u"m", Interval::Month}, {u"y", Interval::DayOfYear},
      {u"d", Interval::Day},     {u"w", Interval::Weekday}, {u"ww", Interval::Week}, {u"h", Interval::Hour},
      {u"n", Interval::Minute},  {u"s", Interval::Second},
  };
  for (const auto& [name, interval] : kNames)
    if (text::EqualsIgnoringCase(text.view(), name)) return interval;
  return MakeError(err::kInvalidCall);
}

Result<double> AddMonths(double serial, int64_t months) {
  const double linear = Linear(serial);
  const double day = std::floor(linear);
  const DateTimeParts p = SplitSerial(day);
  const int64_t total = int64_t{p.year} * 12 + p.month - 1 + months;
  const int64_t year = FloorDiv(total, 12);
  if (year < 100 || year > 9999) return MakeError(err::kInvalidCall);
  const int month = static_cast<int>(total - year * 12) + 1;
  int day_of_month = p.day;
  while (!SerialFromDate(static_cast<int>(year), month, day_of_month)) --day_of_month;
  const double result = FromLinear(*SerialFromDate(static_cast<int>(year), month, day_of_month) + (linear - day));
  if (!IsValidDateSerial(result)) return MakeError(err::kInvalidCall);
  return result;
}

// DateAdd(interval, number, date): the number is rounded to a whole one; adding months keeps the
// day where the month has it and takes the month's last day otherwise (31 January + 1 month is
// 28 or 29 February). "y" and "w" add days, as on Windows.
Result<Variant> DateAddFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto interval, IntervalArg(args, 0));
  VBS_TRY_ASSIGN(auto number, args.Double(1));
  VBS_TRY_ASSIGN(auto serial, DateOrNull(args, 2));
  if (!serial) return Variant::Null();
  const double n = RoundHalfEven(number);
  if (std::fabs(n) > 1e12) return MakeError(err::kInvalidCall);
  const auto count = static_cast<int64_t>(n);
  Result<double> result = 0.0;
  switch (interval) {
    case Interval::Year: result = AddMonths(*serial, count * 12); break;
    case Interval::Quarter: result = AddMonths(*serial, count * 3); break;
    case Interval::Month: result = AddMonths(*serial, count); break;
    case Interval::DayOfYear:
    case Interval::Day:
    case Interval::Weekday:
    case Interval::Week: {
      const double linear = Linear(*serial) + static_cast<double>(interval == Interval::Week ? count * 7 : count);
      const double shifted = FromLinear(linear);
      result = IsValidDateSerial(shifted) ? Result<double>(shifted) : Result<double>(MakeError(err::kInvalidCall));
      break;
    }
    case Interval::Hour:
    case Interval::Minute:
    case Interval::Second: {
      const int64_t unit = interval == Interval::Hour ? 3600 : (interval == Interval::Minute ? 60 : 1);
      const Moment m = MomentOf(*serial);
      result = SerialOf(m.day, m.second + count * unit);
      break;
    }
  }
  if (!result) return std::move(result).error();
  return Variant::Date(*result);
}

// DateDiff(interval, date1, date2 [, firstdayofweek [, firstweekofyear]]): how many interval
// boundaries lie between the dates ("yyyy" from 31 December to 1 January is 1); "w" counts whole
// weeks, "ww" the weeks' first days. A Long; error 6 when it does not fit.
Result<Variant> DateDiffFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto interval, IntervalArg(args, 0));
  VBS_TRY_ASSIGN(auto first_day, FirstDayOfWeek(args, 3));
  VBS_TRY(FirstWeekOfYear(args, 4));
  VBS_TRY_ASSIGN(auto d1, DateOrNull(args, 1));
  VBS_TRY_ASSIGN(auto d2, DateOrNull(args, 2));
  if (!d1 || !d2) return Variant::Null();
  const Moment a = MomentOf(*d1);
  const Moment b = MomentOf(*d2);
  int64_t difference = 0;
  switch (interval) {
    case Interval::Year: difference = b.parts.year - a.parts.year; break;
    case Interval::Quarter:
      difference = (b.parts.year * 4 + (b.parts.month - 1) / 3) - (a.parts.year * 4 + (a.parts.month - 1) / 3);
      break;
    case Interval::Month: difference = (b.parts.year * 12 + b.parts.month) - (a.parts.year * 12 + a.parts.month); break;
    case Interval::DayOfYear:
    case Interval::Day: difference = b.day - a.day; break;
    case Interval::Weekday: difference = (b.day - a.day) / 7; break;
    case Interval::Week:
      difference = ((b.day - DayOfWeek(b.day, first_day) + 1) - (a.day - DayOfWeek(a.day, first_day) + 1)) / 7;
      break;
    case Interval::Hour: difference = FloorDiv(TotalSeconds(b), 3600) - FloorDiv(TotalSeconds(a), 3600); break;
    case Interval::Minute: difference = FloorDiv(TotalSeconds(b), 60) - FloorDiv(TotalSeconds(a), 60); break;
    case Interval::Second: difference = TotalSeconds(b) - TotalSeconds(a); break;
  }
  if (difference < INT32_MIN || difference > INT32_MAX) return MakeError(err::kOverflow);
  return Variant::Long(static_cast<int32_t>(difference));
}

// DatePart(interval, date [, firstdayofweek [, firstweekofyear]]): one part of a date, an Integer.
// With vbFirstFourDays the last days of December may be week 1 of the next year, and the first
// days of January the last week of the year before.
Result<Variant> DatePartFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto interval, IntervalArg(args, 0));
  VBS_TRY_ASSIGN(auto first_day, FirstDayOfWeek(args, 2));
  VBS_TRY_ASSIGN(auto first_week, FirstWeekOfYear(args, 3));
  VBS_TRY_ASSIGN(auto serial, DateOrNull(args, 1));
  if (!serial) return Variant::Null();
  const Moment m = MomentOf(*serial);
  const DateTimeParts& p = m.parts;
  int part = 0;
  switch (interval) {
    case Interval::Year: part = p.year; break;
    case Interval::Quarter: part = (p.month - 1) / 3 + 1; break;
    case Interval::Month: part = p.month; break;
    case Interval::DayOfYear: part = static_cast<int>(m.day - DayOf(p.year, 1, 1)) + 1; break;
    case Interval::Day: part = p.day; break;
    case Interval::Weekday: part = DayOfWeek(m.day, first_day); break;
    case Interval::Week: part = WeekOfYear(m, first_day, first_week); break;
    case Interval::Hour: part = p.hour; break;
    case Interval::Minute: part = p.minute; break;
    case Interval::Second: part = p.second; break;
  }
  return Variant::Integer(static_cast<int16_t>(part));
}

// ---- FormatDateTime ----

std::u16string LongDate(const DateTimeParts& p, double serial, const Locale& locale) {
  const std::u16string_view weekday = locale.day_names[static_cast<size_t>(WeekdayOfSerial(serial) - 1)];
  const std::u16string_view month = locale.month_names[static_cast<size_t>(p.month - 1)];
  const std::u16string day = FormatInteger(p.day);
  const std::u16string year = FormatInteger(p.year);
  if (locale.date_order == DateOrder::MonthDayYear)
    return std::u16string(weekday) + u", " + std::u16string(month) + u' ' + day + u", " + year;
  return std::u16string(weekday) + u' ' + day + u' ' + std::u16string(month) + u' ' + year;
}

std::u16string ShortTime(const DateTimeParts& p, const Locale& locale) {
  std::u16string out;
  for (int value : {p.hour, p.minute}) {
    if (!out.empty()) out += locale.time_separator;
    out += static_cast<char16_t>(u'0' + value / 10);
    out += static_cast<char16_t>(u'0' + value % 10);
  }
  return out;
}

// FormatDateTime(date [, format]): 0 as CStr, 1 the long date, 2 the short date, 3 the long time,
// 4 hours and minutes on the 24-hour clock. A Null date is error 13, not 94.
Result<Variant> FormatDateTimeFunction(Frame&, CallArgs& args) {
  int32_t format = 0;
  if (args.Has(1)) {
    VBS_TRY_ASSIGN(auto n, args.Long(1));
    if (n < 0 || n > 4) return MakeError(err::kInvalidCall);
    format = n;
  }
  VBS_TRY_ASSIGN(auto serial, DateOrNull(args, 0));
  if (!serial) return MakeError(err::kTypeMismatch);
  const Locale& locale = args.locale();
  const DateTimeParts p = SplitSerial(*serial);
  switch (format) {
    case 1: return Variant::String(LongDate(p, *serial, locale));
    case 2: return Variant::String(FormatShortDate(p, locale));
    case 3: return Variant::String(FormatLongTime(p, locale));
    case 4: return Variant::String(ShortTime(p, locale));
    default: return Variant::String(FormatDateTime(*serial, locale));
  }
}

const Builtin kDate[] = {
    {"Date", 0, 0, &DateFunction, "Date: today, without a time"},
    {"Time", 0, 0, &TimeFunction, "Time: the time of day, to the second"},
    {"Now", 0, 0, &NowFunction, "Now: today and the time, to the second"},
    {"Timer", 0, 0, &TimerFunction, "Timer: seconds since midnight, a Single with the milliseconds"},
    {"Year", 1, 1, &PartFunction<&DateTimeParts::year>, "Year(date): the year"},
    {"Month", 1, 1, &PartFunction<&DateTimeParts::month>, "Month(date): the month, 1-12"},
    {"Day", 1, 1, &PartFunction<&DateTimeParts::day>, "Day(date): the day of the month"},
    {"Hour", 1, 1, &PartFunction<&DateTimeParts::hour>, "Hour(date): the hour, 0-23"},
    {"Minute", 1, 1, &PartFunction<&DateTimeParts::minute>, "Minute(date): the minute"},
    {"Second", 1, 1, &PartFunction<&DateTimeParts::second>, "Second(date): the second"},
    {"Weekday", 1, 2, &WeekdayFunction, "Weekday(date [, firstdayofweek]): the day of the week, 1-7"},
    {"WeekdayName", 1, 3, &WeekdayNameFunction,
     "WeekdayName(weekday [, abbreviate [, firstdayofweek]]): the day's name"},
    {"MonthName", 1, 2, &MonthNameFunction, "MonthName(month [, abbreviate]): the month's name"},
    {"DateSerial", 3, 3, &DateSerialFunction,
     "DateSerial(year, month, day): a date, carrying over out-of-range months and days"},
    {"TimeSerial", 3, 3, &TimeSerialFunction, "TimeSerial(hour, minute, second): a time, carrying over into days"},
    {"DateValue", 1, 1, &DateValueFunction, "DateValue(date): the date without its time"},
    {"TimeValue", 1, 1, &TimeValueFunction, "TimeValue(date): the time without its date"},
    {"DateAdd", 3, 3, &DateAddFunction, "DateAdd(interval, number, date): the date moved by a number of intervals"},
    {"DateDiff", 3, 5, &DateDiffFunction,
     "DateDiff(interval, date1, date2 [, firstdayofweek [, firstweekofyear]]): intervals between"},
    {"DatePart", 2, 4, &DatePartFunction,
     "DatePart(interval, date [, firstdayofweek [, firstweekofyear]]): one part of a date"},
    {"FormatDateTime", 1, 2, &FormatDateTimeFunction,
     "FormatDateTime(date [, format]): the date as the locale writes it"},
};

}  // namespace

std::span<const Builtin> DateBuiltins() { return kDate; }

}  // namespace vbs
