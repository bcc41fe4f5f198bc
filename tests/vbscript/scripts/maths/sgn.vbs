WScript.Echo Sgn(-2.5), Sgn(0), Sgn(7), Sgn(True), Sgn(Empty), TypeName(Sgn(7.5))    ' expect: -1 0 1 -1 0 Integer
x = Sgn(Null)                                                                        ' expect runtime error 94
