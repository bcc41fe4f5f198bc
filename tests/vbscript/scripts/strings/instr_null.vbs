' A Null string gives Null, but only once the start and compare arguments have been checked.
WScript.Echo InStr("abc", Null), InStr(Null, "abc"), InStr(2, Null, "a")             ' expect: Null Null Null
x = InStr(0, Null, "a")                                                              ' expect runtime error 5
