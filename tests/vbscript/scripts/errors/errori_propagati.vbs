Sub Interna
  Dim a(2)
  a(5) = 1
  WScript.Echo "non raggiunto"
End Sub
Sub Esterna
  On Error Resume Next
  Interna
  WScript.Echo "dopo", Err.Number                  ' expect: dopo 9
End Sub
Esterna
Dim o
o.Metodo                                           ' expect runtime error 424
