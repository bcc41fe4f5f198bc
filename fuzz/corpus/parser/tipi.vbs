a = TypeName(Null) & VarType(Empty) & IsNumeric("1e3") & IsDate("x") & IsArray(Array())
b = CBool("True") And CByte(255) Or CCur(1.5) Xor 1 Eqv 0 Imp 1
