Function Giu(n)
  Giu = Giu(n + 1)                                 ' expect runtime error 28
End Function
WScript.Echo Giu(1)
