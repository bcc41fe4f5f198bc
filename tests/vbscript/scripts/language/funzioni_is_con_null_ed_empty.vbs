' The Is functions never fail: what each says of Null, Empty and a variable never assigned.
WScript.Echo IsNull(Null), IsNull(Empty), IsNull(""), IsNull(mai_assegnata)   ' expect: Vero Falso Falso Falso
WScript.Echo IsEmpty(Null), IsEmpty(Empty), IsEmpty(""), IsEmpty(0), IsEmpty(mai_assegnata)   ' expect: Falso Vero Falso Falso Vero
WScript.Echo IsNumeric(Null), IsNumeric(Empty), IsNumeric(""), IsNumeric(mai_assegnata), IsNumeric(#1/1/2000#)   ' expect: Falso Vero Falso Vero Falso
WScript.Echo IsDate(Null), IsDate(Empty), IsDate(""), IsArray(Null), IsArray(Empty), IsObject(Null), IsObject(Empty), IsObject(Nothing)   ' expect: Falso Falso Falso Falso Falso Falso Falso Vero
WScript.Echo TypeName(Null), TypeName(Empty), VarType(Null), VarType(Empty), TypeName(mai_assegnata)   ' expect: Null Empty 1 0 Empty
