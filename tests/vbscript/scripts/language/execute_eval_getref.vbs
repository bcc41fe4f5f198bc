Dim x
x = 3
WScript.Echo Eval("x * 2 = 6")                     ' expect: Vero
Execute "x = x + 1"
WScript.Echo x                                     ' expect: 4
ExecuteGlobal "Function Piu(a, b) : Piu = a + b : End Function"
WScript.Echo Piu(2, 3)                             ' expect: 5
Function Locale()
  Dim y
  y = 10
  Execute "y = y * 3"
  Locale = Eval("y + 1")
End Function
WScript.Echo Locale()                              ' expect: 31
Dim f
Set f = GetRef("Piu")
WScript.Echo f(4, 5)                               ' expect: 9
