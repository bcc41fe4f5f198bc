' locale: en-US
WScript.Echo WeekdayName(1), MonthName(2, True), Weekday(#1/1/2000#, vbUseSystemDayOfWeek)   ' expect: Sunday Feb 7
WScript.Echo DateSerial(2020, 12, 25), FormatDateTime(#12/25/2020 14:05:09#, vbLongDate)   ' expect: 12/25/2020 Friday, December 25, 2020
WScript.Echo FormatDateTime(#12/25/2020 14:05:09#), FormatDateTime(#14:05:09#, vbLongTime), FormatDateTime(#14:05:09#, vbShortTime)   ' expect: 12/25/2020 2:05:09 PM 2:05:09 PM 14:05
WScript.Echo DatePart("ww", #1/1/2021#, vbUseSystemDayOfWeek, vbUseSystem), DateValue("12/25/2020 10:30")   ' expect: 1 12/25/2020
