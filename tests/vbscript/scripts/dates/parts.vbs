d = #12/25/2020 14:05:09#
WScript.Echo Year(d), Month(d), Day(d), Hour(d), Minute(d), Second(d), TypeName(Year(d))   ' expect: 2020 12 25 14 5 9 Integer
WScript.Echo Year("25/12/2020"), Day(2), Year(2), Hour(2.75), Minute(2.02083)          ' expect: 2020 1 1900 18 30
WScript.Echo IsNull(Month(Null)), Day(#12/29/1899 6:00#), Hour(#12/29/1899 6:00#)    ' expect: Vero 29 6
x = Year("domani")                                                                   ' expect runtime error 13
