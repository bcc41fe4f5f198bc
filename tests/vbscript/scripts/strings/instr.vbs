WScript.Echo InStr("abcabc", "bc"), InStr(3, "abcabc", "bc"), InStr("abc", "x")      ' expect: 2 5 0
WScript.Echo InStr(1, "ABCabc", "bc", vbTextCompare), InStr(1, "ABCabc", "bc")       ' expect: 2 5
WScript.Echo InStr(2.4, "abcd", "bc"), InStr(2.6, "abcd", "bc")                      ' expect: 2 0
WScript.Echo InStr(1, 23456, 45), TypeName(InStr("a", "a"))                         ' expect: 3 Long
WScript.Echo InStr(4, "abcdef", ""), InStr(7, "abcdef", ""), InStr(1, "", "")        ' expect: 4 0 0
