Option Explicit
Dim a
a = 1
WScript.Echo a                                     ' expect: 1
b = 2                                              ' expect runtime error 500
