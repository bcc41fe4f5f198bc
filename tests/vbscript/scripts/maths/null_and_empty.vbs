' The mathematical functions: Abs passes Null through, the others stop with error 94; Empty is 0.
WScript.Echo TypeName(Abs(Null)), Abs(Empty), TypeName(Abs(Empty)), Sgn(Empty), TypeName(Sgn(Empty))   ' expect: Null 0 Integer 0 Integer
WScript.Echo Sqr(Empty), Exp(Empty), Cos(Empty), Sin(Empty), Atn(Empty), Tan(Empty), TypeName(Sqr(Empty))   ' expect: 0 1 1 0 0 0 Double
On Error Resume Next
x = Sgn(Null): WScript.Echo Err.Number: Err.Clear   ' expect: 94
x = Sqr(Null): WScript.Echo Err.Number: Err.Clear   ' expect: 94
x = Exp(Null): WScript.Echo Err.Number: Err.Clear   ' expect: 94
x = Log(Null): WScript.Echo Err.Number: Err.Clear   ' expect: 94
x = Atn(Null): WScript.Echo Err.Number: Err.Clear   ' expect: 94
x = Log(Empty): WScript.Echo Err.Number: Err.Clear  ' expect: 5
