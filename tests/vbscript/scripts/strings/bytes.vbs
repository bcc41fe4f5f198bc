' The B functions count the bytes of UTF-16 text: two for each character.
WScript.Echo LenB("abc"), LeftB("abc", 4), RightB("abc", 2), MidB("abcd", 3, 4), MidB("abcd", 5)   ' expect: 6 ab c bc cd
WScript.Echo InStrB("abc", "c"), InStrB(3, "abcabc", "a"), AscB("A"), AscB(ChrW(&H1234))   ' expect: 5 7 65 52
WScript.Echo ChrB(65) = "A", IsNull(LenB(Null))                                      ' expect: Vero Vero
