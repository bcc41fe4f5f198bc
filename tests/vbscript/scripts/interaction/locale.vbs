WScript.Echo GetLocale(), CStr(1.5), TypeName(GetLocale())                           ' expect: 1040 1,5 Long
' SetLocale returns the locale it replaces; what follows reads and writes in the new one.
WScript.Echo SetLocale("en-us"), CStr(1.5), GetLocale(), MonthName(1)                ' expect: 1040 1.5 1033 January
WScript.Echo SetLocale(1040), CStr(CDbl("1.234,5")), MonthName(1)                    ' expect: 1033 1234,5 gennaio
WScript.Echo SetLocale(1033), SetLocale(0), GetLocale()                              ' expect: 1040 1033 1040
x = SetLocale("xx-yy")                                                               ' expect runtime error 5
