' Nesting that the parser allows runs; deeper nesting is "Out of stack space" when compiled,
' which On Error Resume Next traps, never a crash.
Function Annida(apri, centro, chiudi, volte)
  Annida = Replace(Space(volte), " ", apri) & centro & Replace(Space(volte), " ", chiudi)
End Function

WScript.Echo Eval(Annida("(", "7", ")", 390))              ' expect: 7
WScript.Echo Eval(Annida("- ", "7", "", 390))             ' expect: 7
WScript.Echo Eval(Annida("Not ", "0", "", 391))           ' expect: -1
WScript.Echo Eval(Annida("Abs(", "-7", ")", 190))         ' expect: 7
ExecuteGlobal Annida("If True Then" & vbLf, "Dim dentro : dentro = 1" & vbLf, "End If" & vbLf, 300)
WScript.Echo dentro                                        ' expect: 1

On Error Resume Next
Dim v
v = Eval(Annida("(", "7", ")", 5000))
WScript.Echo Err.Number                                    ' expect: 28
Err.Clear
v = Eval(Annida("- ", "7", "", 5000))
WScript.Echo Err.Number                                    ' expect: 28
Err.Clear
v = Eval("x" & Replace(Space(5000), " ", ".y"))
WScript.Echo Err.Number                                    ' expect: 28
Err.Clear
v = Eval("x" & Replace(Space(5000), " ", "(1)"))
WScript.Echo Err.Number                                    ' expect: 28
Err.Clear
ExecuteGlobal Annida("For Each v In Array(1)" & vbLf, "", "Next" & vbLf, 5000)
WScript.Echo Err.Number                                    ' expect: 28
Err.Clear

' Eval and Execute nested through a recursive procedure stop at the stack's end too.
Function Ricorri(n)
  Ricorri = Eval("Ricorri(" & n + 1 & ")")
End Function
v = Ricorri(1)
WScript.Echo Err.Number                                    ' expect: 28
Err.Clear
Sub Esegui(n)
  Execute "Esegui n + 1"
End Sub
Esegui 1
WScript.Echo Err.Number                                    ' expect: 28
