WScript.Echo InStrRev("abcabc", "bc"), InStrRev("abcabc", "bc", 4), InStrRev("abcabc", "bc", 2)   ' expect: 5 2 0
WScript.Echo InStrRev("abcABC", "b", -1, vbTextCompare), InStrRev("abc", "", 2), InStrRev("abc", "c", 9)   ' expect: 5 2 0
WScript.Echo InStrRev(1234, 34), InStrRev("", "a")                                   ' expect: 3 0
