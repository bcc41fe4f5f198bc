' 1 January 2021 was a Friday. By default weeks start on Sunday and week 1 holds 1 January.
WScript.Echo DatePart("ww", #1/1/2021#), DatePart("ww", #1/2/2021#), DatePart("ww", #1/3/2021#)   ' expect: 1 1 2
' ISO weeks: Monday first, week 1 has four days of the year.
WScript.Echo DatePart("ww", #1/1/2021#, vbMonday, vbFirstFourDays), DatePart("ww", #1/4/2021#, vbMonday, vbFirstFourDays), DatePart("ww", #12/31/2024#, vbMonday, vbFirstFourDays)   ' expect: 53 1 1
WScript.Echo DatePart("ww", #1/3/2021#, vbMonday, vbFirstFullWeek), DatePart("ww", #1/4/2021#, vbMonday, vbFirstFullWeek)   ' expect: 52 1
' The system settings are the Italian ones: ISO weeks.
WScript.Echo DatePart("ww", #1/1/2021#, vbUseSystemDayOfWeek, vbUseSystem)           ' expect: 53
x = DatePart("ww", #1/1/2021#, vbMonday, 4)                                          ' expect runtime error 5
