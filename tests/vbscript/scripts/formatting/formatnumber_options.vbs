' Leading zero, parentheses for negatives, grouping: -2 the locale's setting, -1 yes, 0 no.
WScript.Echo FormatNumber(0.25, 2, 0), FormatNumber(0.25, 2, -1), FormatNumber(0.25, 2, vbUseDefault)   ' expect: ,25 0,25 0,25
WScript.Echo FormatNumber(-3, 0, , -1), FormatNumber(-3, 0, , 0), FormatNumber(1234567, 0, , , 0)   ' expect: (3) -3 1234567
WScript.Echo FormatNumber(-0.001, 2)                                                  ' expect: 0,00
x = FormatNumber(1, -2)                                                              ' expect runtime error 5
