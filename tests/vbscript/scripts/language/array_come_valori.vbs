Dim a, b
a = Array(1, 2, 3)
b = a
b(0) = 99
WScript.Echo a(0), b(0)                            ' expect: 1 99
ReDim c(1, 2)
c(1, 2) = "ultimo"
WScript.Echo UBound(c, 1), UBound(c, 2), c(1, 2)   ' expect: 1 2 ultimo
ReDim Preserve c(1, 4)
WScript.Echo c(1, 2), UBound(c, 2)                 ' expect: ultimo 4
Dim f(3)
f(3) = 1
WScript.Echo LBound(f), UBound(f), IsArray(f)      ' expect: 0 3 Vero
Dim s, x
For Each x In Array("a", "b", "c")
  s = s & x
Next
WScript.Echo s                                     ' expect: abc
ReDim f(5)                                         ' expect runtime error 10
