#pragma once

// Dates as Windows keeps them: an OLE serial, the number of days since 30 December 1899 with the
// time of day as the fraction. Before that day the integer part counts backwards but the fraction
// still counts forwards (-1.25 is 29 December 1899, 06:00). Here are the conversions between
// serials and calendar parts, and the text forms CDate reads and CStr writes for a locale.

#include <optional>
#include <string>
#include <string_view>

#include "vbscript/value/Locale.h"

namespace vbs {

// 1 January 100 and the last second of 31 December 9999: the range a Date may hold.
inline constexpr double kMinDateSerial = -657434.0;
inline constexpr double kMaxDateSerial = 2958465.999988426;

struct DateTimeParts {
  int year = 1899;
  int month = 12;
  int day = 30;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

bool IsValidDateSerial(double serial);
// The serial of a calendar day; nullopt when the day does not exist or lies outside 100-9999.
std::optional<double> SerialFromDate(int year, int month, int day);
// The fraction of a day for a time; nullopt outside 00:00:00-23:59:59.
std::optional<double> SerialFromTime(int hour, int minute, int second);
// A day serial plus a time fraction, counting the fraction forwards for days before 1899-12-30.
double CombineDateAndTime(double day_serial, double time_fraction);
// Calendar parts of a valid serial, the time rounded to the second.
DateTimeParts SplitSerial(double serial);
// 1 for Sunday ... 7 for Saturday.
int WeekdayOfSerial(double serial);

// CStr of a Date: the locale's short date, its long time, or both; a serial whose day is
// 30 December 1899 prints the time alone, one without a time of day prints the date alone.
std::u16string FormatDateTime(double serial, const Locale& locale);
std::u16string FormatShortDate(const DateTimeParts& parts, const Locale& locale);
std::u16string FormatLongTime(const DateTimeParts& parts, const Locale& locale);

// What CDate and IsDate accept: numeric dates in the locale's order (the other order when the
// locale's gives no valid date), ISO year-first dates, month names in the locale or English, a
// time with ':' and an optional AM/PM, or both. A day and month alone take the current year.
std::optional<double> ParseDateTime(std::u16string_view text, const Locale& locale);

}  // namespace vbs
