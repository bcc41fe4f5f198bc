' Integer arithmetic widens on overflow, as Windows does.
WScript.Echo TypeName(32767 + 1), 32767 + 1        ' expect: Long 32768
WScript.Echo TypeName(2147483647 + 1)              ' expect: Double
WScript.Echo TypeName(1 + 1)                       ' expect: Integer
WScript.Echo -2 ^ 2, 2 ^ 3 ^ 2                      ' expect: 4 64
WScript.Echo 7 \ 2, 7 Mod 3, 7 / 2                 ' expect: 3 1 3,5
WScript.Echo "3" + 4, "3" & 4                      ' expect: 7 34
WScript.Echo 1 < "a", Empty = 0, Empty = ""        ' expect: Vero Vero Vero
WScript.Echo IsNull(Null + 1), Null And False      ' expect: Vero Falso
WScript.Echo &HFFFF, &H10000, &O17                 ' expect: -1 65536 15
WScript.Echo 2 + 3 * 4 - 6 / 3                     ' expect: 12
WScript.Echo Not 0, 5 And 3, 5 Or 3, 5 Xor 3       ' expect: -1 1 7 6
