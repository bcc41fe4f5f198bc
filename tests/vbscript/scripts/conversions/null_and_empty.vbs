' The conversion functions: Empty converts to the subtype's zero, Null is error 94.
WScript.Echo "[" & CStr(Empty) & "]", CLng(Empty), CInt(Empty), CDbl(Empty), CSng(Empty), CByte(Empty), CCur(Empty), CBool(Empty)   ' expect: [] 0 0 0 0 0 0 Falso
WScript.Echo TypeName(CLng(Empty)), TypeName(CInt(Empty)), TypeName(CDbl(Empty)), TypeName(CSng(Empty)), TypeName(CByte(Empty)), TypeName(CCur(Empty)), TypeName(CBool(Empty)), TypeName(CDate(Empty)), TypeName(CStr(Empty))   ' expect: Long Integer Double Single Byte Currency Boolean Date String
WScript.Echo CDbl(CDate(Empty))   ' expect: 0
' Hex and Oct pass Null through and give "0" for Empty; Fix, Int and Round pass Null through.
WScript.Echo TypeName(Hex(Null)), TypeName(Oct(Null)), Hex(Empty), Oct(Empty)   ' expect: Null Null 0 0
WScript.Echo TypeName(Fix(Null)), TypeName(Int(Null)), TypeName(Round(Null)), TypeName(Round(Null, 2))   ' expect: Null Null Null Null
WScript.Echo Fix(Empty), Int(Empty), Round(Empty), TypeName(Round(Empty)), Round(2.5), Round(2.567, Empty)   ' expect: 0 0 0 Integer 2 3
On Error Resume Next
x = CStr(Null): WScript.Echo Err.Number: Err.Clear    ' expect: 94
x = CLng(Null): WScript.Echo Err.Number: Err.Clear    ' expect: 94
x = CInt(Null): WScript.Echo Err.Number: Err.Clear    ' expect: 94
x = CDbl(Null): WScript.Echo Err.Number: Err.Clear    ' expect: 94
x = CSng(Null): WScript.Echo Err.Number: Err.Clear    ' expect: 94
x = CByte(Null): WScript.Echo Err.Number: Err.Clear   ' expect: 94
x = CCur(Null): WScript.Echo Err.Number: Err.Clear    ' expect: 94
x = CBool(Null): WScript.Echo Err.Number: Err.Clear   ' expect: 94
x = CDate(Null): WScript.Echo Err.Number: Err.Clear   ' expect: 94
x = Round(1.5, Null): WScript.Echo Err.Number: Err.Clear   ' expect: 94
