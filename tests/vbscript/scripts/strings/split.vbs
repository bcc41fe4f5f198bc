a = Split("1,2,,3", ",")
WScript.Echo UBound(a), a(0), "[" & a(2) & "]", a(3), TypeName(a(0))                 ' expect: 3 1 [] 3 String
a = Split("a b c")
WScript.Echo UBound(a), a(2)                                                         ' expect: 2 c
a = Split("a-b-c-d", "-", 2)
WScript.Echo UBound(a), a(1)                                                         ' expect: 1 b-c-d
a = Split("aXbxc", "x", -1, vbTextCompare)
WScript.Echo UBound(a), Split("aXbxc", "X")(1)                                       ' expect: 2 bxc
a = Split("")
WScript.Echo UBound(a), TypeName(a)                                                  ' expect: -1 Variant()
a = Split("abc", "")
WScript.Echo UBound(a), a(0), UBound(Split("a,b", ",", 0))                           ' expect: 0 abc -1
a = Split(12345, 3)
WScript.Echo a(0), a(1)                                                              ' expect: 12 45
