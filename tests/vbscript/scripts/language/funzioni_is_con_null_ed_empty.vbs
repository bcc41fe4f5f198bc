' The Is functions never fail: what each says of Null, Empty and a variable never assigned.
WScript.Echo IsNull(Null), IsNull(Empty), IsNull(""), IsNull(mai_assegnata)   ' expect: Vero Falso Falso Falso
WScript.Echo IsEmpty(Null), IsEmpty(Empty), IsEmpty(""), IsEmpty(0), IsEmpty(mai_assegnata)   ' expect: Falso Vero Falso Falso Vero
WScript.Echo IsNumeric(Null), IsNumeric(Empty), IsNumeric(""), IsNumeric(mai_assegnata), IsNumeric(#1/1/2000#)   ' expect: Falso Vero Falso Vero Falso
WScript.Echo IsDate(Null), IsDate(Empty), IsDate(""), IsArray(Null), IsArray(Empty), IsObject(Null), IsObject(Empty), IsObject(Nothing)   ' expect: Falso Falso Falso Falso Falso Falso Falso Vero
WScript.Echo TypeName(Null), TypeName(Empty), VarType(Null), VarType(Empty), TypeName(mai_assegnata)   ' expect: Null Empty 1 0 Empty
' UBound and LBound read an Empty dimension as 0, which does not exist.
a = Array(1, 2)
WScript.Echo UBound(a, 1), LBound(a, 1), UBound(Array())   ' expect: 1 0 -1
On Error Resume Next
x = UBound(a, Empty): WScript.Echo Err.Number: Err.Clear   ' expect: 9
x = LBound(a, Null): WScript.Echo Err.Number: Err.Clear    ' expect: 94
x = UBound(Null): WScript.Echo Err.Number: Err.Clear       ' expect: 13
