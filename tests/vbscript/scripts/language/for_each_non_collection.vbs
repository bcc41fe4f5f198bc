Class Vuota
End Class
Function Fallisce()
  Err.Raise 1000
End Function
' Under On Error Resume Next a For Each over what is no collection runs its body once, as the
' statement after the failed header, and Next fails again with 451.
Sub Giro(valore)
  On Error Resume Next
  Dim x, volte
  volte = 0
  For Each x In valore
    volte = volte + 1
  Next
  WScript.Echo TypeName(valore), volte, Err.Number
End Sub
Giro Empty               ' expect: Empty 1 451
Giro 5                   ' expect: Integer 1 451
Giro "abc"               ' expect: String 1 451
Giro Nothing             ' expect: Nothing 1 451
Giro Null                ' expect: Null 1 451
Giro New Vuota           ' expect: Vuota 1 451
Giro Array()             ' expect: Variant() 0 0
Sub GiroSuErrore
  On Error Resume Next
  Dim x, numero
  For Each x In Fallisce()
    numero = Err.Number
  Next
  WScript.Echo numero, Err.Number
End Sub
GiroSuErrore             ' expect: 1000 451
Sub EsceDalCorpo
  On Error Resume Next
  Dim x
  For Each x In 7
    Exit For
  Next
  WScript.Echo Err.Number
End Sub
EsceDalCorpo             ' expect: 451
Dim y
For Each y In 42         ' expect runtime error 451
Next
