WScript.Echo Left("lotto", 3), Right("lotto", 2), Mid("lotto", 2, 3), Mid("lotto", 4)   ' expect: lot to ott to
WScript.Echo Left("ab", 5), "[" & Mid("ab", 5) & "]", Right("ab", 9)                 ' expect: ab [] ab
WScript.Echo Left(12345, 2), Left("123456", 2.5), Left("123456", 1.5)                ' expect: 12 12 12
WScript.Echo IsNull(Left(Null, 1)), IsNull(Right(Null, 0)), IsNull(Mid(Null, 1))     ' expect: Vero Vero Vero
