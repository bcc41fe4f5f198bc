' Mod and \ on whole numbers of every sign and subtype: the remainder takes the dividend's sign,
' the quotient is truncated, two Integers give an Integer, an Integer and a Long a Long, and a
' result too large for the subtype widens or overflows as the general rules say.
Dim a, b, c
a = 7 : b = -3 : c = CLng(-7)
WScript.Echo a Mod b & " " & TypeName(a Mod b)                ' expect: 1 Integer
WScript.Echo c Mod 3 & " " & TypeName(c Mod 3)                ' expect: -1 Long
WScript.Echo a \ b & " " & c \ b & " " & TypeName(c \ b)      ' expect: -2 2 Long
a = -32768 : b = -1
WScript.Echo a \ b & " " & TypeName(a \ b)                    ' expect: 32768 Long
c = CLng(-2147483647) - 1
WScript.Echo c Mod b & " " & TypeName(c Mod b)                ' expect: 0 Long
a = 7.6 : b = 2.5
WScript.Echo a Mod b & " " & a \ b                            ' expect: 0 4
a = 5 : b = 0
WScript.Echo a Mod b                                          ' expect runtime error 11
