WScript.Echo Replace("xx testxx(xx)", "xx", "!")                                     ' expect: ! test!(!)
' The result starts at the start position: what lies before it is dropped.
WScript.Echo Replace("xx testxx(xx)", "xx", "!", 2), "[" & Replace("abc", "b", "x", 9) & "]"   ' expect: x test!(!) []
WScript.Echo Replace("xx testxx(xx)", "xx", "!", 1, 1), Replace("xx", "x", "y", 1, 0)   ' expect: ! testxx(xx) xx
WScript.Echo Replace("Aa testAAa", "aa", "!", 1, -1, vbTextCompare), Replace("xxx", "", "y")   ' expect: ! test!a xxx
WScript.Echo Replace(123, 2, 6), Replace("a" & Chr(0) & "b", Chr(0), "-")             ' expect: 163 a-b
