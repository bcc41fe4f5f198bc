' What each string function makes of Null, Empty and an omitted argument.
' A Null string passes through the functions that document it...
WScript.Echo TypeName(Len(Null)), TypeName(LenB(Null)), TypeName(Left(Null, 1)), TypeName(Right(Null, 1)), TypeName(Mid(Null, 1)), TypeName(Mid(Null, 1, 1))   ' expect: Null Null Null Null Null Null
WScript.Echo TypeName(LCase(Null)), TypeName(UCase(Null)), TypeName(LTrim(Null)), TypeName(RTrim(Null)), TypeName(Trim(Null))   ' expect: Null Null Null Null Null
WScript.Echo TypeName(InStr(Null, "a")), TypeName(InStr("a", Null)), TypeName(InStr(2, "abcd", Null, 0)), TypeName(StrComp(Null, "a")), TypeName(StrComp("a", Null, 1)), TypeName(StrComp(Null, Null))   ' expect: Null Null Null Null Null Null
WScript.Echo TypeName(LeftB(Null, 1)), TypeName(RightB(Null, 1)), TypeName(MidB(Null, 1)), TypeName(InStrB(Null, "a")), LenB(Empty)   ' expect: Null Null Null Null 0
' ...and String's count and character alike.
WScript.Echo TypeName(String(Null, "x")), TypeName(String(3, Null))   ' expect: Null Null
' Empty reads as "" where a string is wanted and as 0 where a number is.
WScript.Echo Len(Empty), "[" & Left(Empty, 2) & Right(Empty, 2) & Mid(Empty, 1) & LCase(Empty) & UCase(Empty) & Trim(Empty) & StrReverse(Empty) & "]"   ' expect: 0 []
WScript.Echo InStr(Empty, "a"), InStr("abc", Empty), InStr(2, "abc", Empty), InStrRev(Empty, "a"), InStrRev("abc", Empty)   ' expect: 0 1 2 0 3
WScript.Echo StrComp(Empty, ""), StrComp(Empty, "a"), StrComp("a", Empty), InStr(1, "aBc", "b", Empty)   ' expect: 0 -1 1 0
WScript.Echo "[" & Left("abc", Empty) & Right("abc", Empty) & Mid("abc", 2, Empty) & Space(Empty) & String(Empty, "x") & "]", AscW(Chr(Empty))   ' expect: [] 0
WScript.Echo "[" & Replace(Empty, "a", "b") & "]", Replace("abc", Empty, "x"), Replace("abc", "b", Empty), UBound(Split(Empty)), Join(Array("a", "b"), Empty), UBound(Filter(Array("a", "b"), Empty))   ' expect: [] abc ac -1 ab 1
WScript.Echo UBound(Split("a b", Empty)), UBound(Filter(Array("ab", "cd"), "a", Empty))   ' expect: 0 0
' Omitted optional arguments take their documented defaults.
WScript.Echo Mid("abc", 2), InStrRev("abcabc", "b"), Replace("aXbXc", "X", "-"), Join(Array("a", "b")), UBound(Split("a b c")), UBound(Filter(Array("ab", "cd"), "a"))   ' expect: bc 5 a-b-c a b 2 0
' A Null anywhere else is error 94, a start of Empty (0) error 5.
On Error Resume Next
x = Left("abc", Null): WScript.Echo Err.Number: Err.Clear           ' expect: 94
x = Right("abc", Null): WScript.Echo Err.Number: Err.Clear          ' expect: 94
x = Mid("abc", Null): WScript.Echo Err.Number: Err.Clear            ' expect: 94
x = Mid("abc", 1, Null): WScript.Echo Err.Number: Err.Clear         ' expect: 94
x = Mid("abc", Empty): WScript.Echo Err.Number: Err.Clear           ' expect: 5
x = InStr(Null, "abcd", "a"): WScript.Echo Err.Number: Err.Clear   ' expect: 94
x = InStr(1, "abcd", "a", Null): WScript.Echo Err.Number: Err.Clear ' expect: 94
x = InStr(Empty, "abcd", "a"): WScript.Echo Err.Number: Err.Clear  ' expect: 5
x = InStrRev("abcd", Null): WScript.Echo Err.Number: Err.Clear      ' expect: 94
x = InStrRev("abcd", "a", Null): WScript.Echo Err.Number: Err.Clear ' expect: 94
x = InStrRev("abcd", "a", Empty): WScript.Echo Err.Number: Err.Clear ' expect: 5
x = StrReverse(Null): WScript.Echo Err.Number: Err.Clear            ' expect: 94
x = Space(Null): WScript.Echo Err.Number: Err.Clear                 ' expect: 94
x = Chr(Null): WScript.Echo Err.Number: Err.Clear                   ' expect: 94
x = ChrW(Null): WScript.Echo Err.Number: Err.Clear                  ' expect: 94
x = AscW(Null): WScript.Echo Err.Number: Err.Clear                  ' expect: 94
x = Asc(Empty): WScript.Echo Err.Number: Err.Clear                  ' expect: 5
x = Replace(Null, "x", "y"): WScript.Echo Err.Number: Err.Clear     ' expect: 94
x = Replace("xx", Null, "y"): WScript.Echo Err.Number: Err.Clear    ' expect: 94
x = Replace("xx", "x", Null): WScript.Echo Err.Number: Err.Clear    ' expect: 94
x = Replace("xx", "x", "y", Null): WScript.Echo Err.Number: Err.Clear          ' expect: 94
x = Replace("xx", "x", "y", 1, Null): WScript.Echo Err.Number: Err.Clear       ' expect: 94
x = Replace("xx", "x", "y", 1, 1, Null): WScript.Echo Err.Number: Err.Clear    ' expect: 94
x = Replace("xx", "x", "y", Empty): WScript.Echo Err.Number: Err.Clear         ' expect: 5
x = Split(Null): WScript.Echo Err.Number: Err.Clear                 ' expect: 94
x = Split("a-b", Null): WScript.Echo Err.Number: Err.Clear          ' expect: 94
x = Split("a-b", "-", Null): WScript.Echo Err.Number: Err.Clear     ' expect: 94
x = Split("a-b", "-", -1, Null): WScript.Echo Err.Number: Err.Clear ' expect: 94
x = Filter(Null, "a"): WScript.Echo Err.Number: Err.Clear           ' expect: 94
x = Filter(Array("a"), "a", Null): WScript.Echo Err.Number: Err.Clear ' expect: 94
x = AscB(Null): WScript.Echo Err.Number: Err.Clear                  ' expect: 94
x = Join("a"): WScript.Echo Err.Number: Err.Clear                   ' expect: 13
