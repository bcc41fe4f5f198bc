Option Explicit
' Functions shared by the test scripts.
Function Somma2(a, b)
  Somma2 = a + b
End Function
