' 1 January 2000 was a Saturday; the Italian week starts on Monday.
WScript.Echo Weekday(#1/1/2000#), Weekday(#1/1/2000#, vbMonday), Weekday(#1/1/2000#, vbUseSystemDayOfWeek), TypeName(Weekday(1))   ' expect: 7 6 6 Integer
WScript.Echo WeekdayName(1), WeekdayName(2, True), WeekdayName(1, False, vbMonday), WeekdayName(1, True, vbUseSystemDayOfWeek)   ' expect: domenica lun lunedì lun
WScript.Echo MonthName(1), MonthName(12, True), MonthName(8.4), IsNull(Weekday(Null))   ' expect: gennaio dic agosto Vero
x = WeekdayName(8)                                                                   ' expect runtime error 5
