' Half to even, at the given number of decimals.
WScript.Echo Round(2.5), Round(3.5), Round(-2.5), Round(-3.5), Round(0.5)              ' expect: 2 4 -2 -4 0
WScript.Echo Round(0.125, 2), Round(1234.5678, 2), Round(12.5, 0), Round(7, 3)        ' expect: 0,12 1234,57 12 7
' The decimals are scaled in binary: 1.005 is really 1.00499999999999989...
WScript.Echo Round(1.005, 2), Round(0.285, 2)                                         ' expect: 1 0,28
x = Round(1.5, -1)                                                                   ' expect runtime error 5
