Option Explicit
' Functions shared by the test scripts.
Function Somma(a, b)
  Somma = a + b
End Function
