WScript.Echo StrComp("a", "b"), StrComp("b", "a"), StrComp("ABC", "abc"), StrComp("ABC", "abc", vbTextCompare)   ' expect: -1 1 -1 0
WScript.Echo StrComp("abc", "abcd"), StrComp(Empty, ""), StrComp("1", 1), TypeName(StrComp("a", "a"))   ' expect: -1 0 0 Integer
WScript.Echo IsNull(StrComp(Null, "a")), StrComp("è", "È", 1)                         ' expect: Vero 0
