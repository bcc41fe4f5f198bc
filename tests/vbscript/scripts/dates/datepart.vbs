d = #12/31/2020 13:45:10#
WScript.Echo DatePart("yyyy", d), DatePart("q", d), DatePart("m", d), DatePart("y", d), DatePart("d", d)   ' expect: 2020 4 12 366 31
' 31 December 2020 was a Thursday.
WScript.Echo DatePart("w", d), DatePart("w", d, vbMonday), DatePart("h", d), DatePart("n", d), DatePart("s", d)   ' expect: 5 4 13 45 10
WScript.Echo TypeName(DatePart("d", d)), IsNull(DatePart("d", Null))                  ' expect: Integer Vero
x = DatePart("d", d, 8)                                                              ' expect runtime error 5
