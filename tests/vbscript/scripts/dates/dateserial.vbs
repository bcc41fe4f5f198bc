WScript.Echo DateSerial(2020, 12, 25), TypeName(DateSerial(2020, 12, 25))               ' expect: 25/12/2020 Date
' Months and days out of their range carry over.
WScript.Echo DateSerial(2000, 14, 2), DateSerial(2021, 3, 0), DateSerial(2020, -1, 15), DateSerial(2020, 1, 366)   ' expect: 02/02/2001 28/02/2021 15/11/2019 31/12/2020
' Years 0-29 are 2000-2029, 30-99 are 1930-1999.
WScript.Echo DateSerial(0, 1, 1), DateSerial(29, 1, 1), DateSerial(30, 1, 1), DateSerial(100, 1, 1)   ' expect: 01/01/2000 01/01/2029 01/01/1930 01/01/100
x = DateSerial(10000, 1, 1)                                                          ' expect runtime error 5
