WScript.Echo Sqr(16), Exp(0), Log(1), Atn(0), Cos(0), Sin(0), Tan(0)                 ' expect: 4 1 0 0 1 0 0
WScript.Echo Round(Atn(1) * 4, 6), Round(Log(Exp(2)), 6), Sqr("2,25"), TypeName(Sqr(4))   ' expect: 3,141593 2 1,5 Double
WScript.Echo Round(Sin(Atn(1) * 2), 6), Round(Cos(Atn(1) * 4), 6), Round(Tan(Atn(1)), 6)   ' expect: 1 -1 1
