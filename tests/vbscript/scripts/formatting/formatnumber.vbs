WScript.Echo FormatNumber(1234.5), FormatNumber(-1234.567, 1), FormatNumber(1234567.891, 0)   ' expect: 1.234,50 -1.234,6 1.234.568
' The decimal digits round half away from zero, unlike Round.
WScript.Echo FormatNumber(0.5, 0), FormatNumber(2.5, 0), FormatNumber(1.005, 2), FormatNumber(-0.125, 2)   ' expect: 1 3 1,01 -0,13
WScript.Echo FormatNumber(1E+20, 0), FormatNumber(0.000001, 6), FormatNumber(12, -1)   ' expect: 100.000.000.000.000.000.000 0,000001 12,00
WScript.Echo FormatNumber("1,5"), FormatNumber(True), FormatNumber(Empty), FormatNumber(CCur(2.5), 0), TypeName(FormatNumber(1))   ' expect: 1,50 -1,00 0,00 3 String
