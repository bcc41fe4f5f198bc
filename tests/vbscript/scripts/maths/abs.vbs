WScript.Echo Abs(-5), TypeName(Abs(-5)), Abs(-2.5), TypeName(Abs(CSng(-1))), Abs(True)   ' expect: 5 Integer 2,5 Single 1
' Abs keeps the subtype, widening where the result would not fit.
WScript.Echo TypeName(Abs(CInt(-32768))), TypeName(Abs(CLng(-2147483647) - 1)), TypeName(Abs(CCur(-1)))   ' expect: Long Double Currency
WScript.Echo IsNull(Abs(Null)), TypeName(Abs(Empty)), TypeName(Abs("-3")), Abs("-3")   ' expect: Vero Integer Double 3
x = Abs("tre")                                                                       ' expect runtime error 13
