WScript.Echo DateValue("25/12/2020 10:30"), TimeValue("25/12/2020 10:30"), TypeName(DateValue("1/1/2000"))   ' expect: 25/12/2020 10:30:00 Date
WScript.Echo DateValue(#1/2/2003 4:05:06 PM#), TimeValue(#1/2/2003 4:05:06 PM#), TimeValue("16:05")   ' expect: 02/01/2003 16:05:06 16:05:00
WScript.Echo IsNull(DateValue(Null)), IsNull(TimeValue(Null))                         ' expect: Vero Vero
x = DateValue("non una data")                                                        ' expect runtime error 13
