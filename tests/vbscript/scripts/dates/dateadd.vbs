d = DateSerial(2020, 1, 31)
' Adding months keeps the day, or takes the month's last one.
WScript.Echo DateAdd("m", 1, d), DateAdd("yyyy", -1, d), DateAdd("q", 1, d), DateAdd("M", 13, d)   ' expect: 29/02/2020 31/01/2019 30/04/2020 28/02/2021
' "y" and "w" add days, like "d".
WScript.Echo DateAdd("d", 1, d), DateAdd("ww", 1, d), DateAdd("w", -1, d), DateAdd("y", 1, d)   ' expect: 01/02/2020 07/02/2020 30/01/2020 01/02/2020
WScript.Echo DateAdd("h", 25, d), DateAdd("n", -1, d), DateAdd("s", 61, d)          ' expect: 01/02/2020 01:00:00 30/01/2020 23:59:00 31/01/2020 00:01:01
WScript.Echo DateAdd("d", 2.5, d), DateAdd("d", 1, #1/2/2003 18:00#), IsNull(DateAdd("d", 1, Null))   ' expect: 02/02/2020 03/01/2003 18:00:00 Vero
WScript.Echo DateAdd("d", 1, "31/12/2020"), TypeName(DateAdd("d", 1, "31/12/2020"))   ' expect: 01/01/2021 Date
x = DateAdd("x", 1, d)                                                               ' expect runtime error 5
