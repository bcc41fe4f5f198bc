Class Risorsa
  Public Nome
  Private Sub Class_Initialize
    Nome = "nuova"
    WScript.Echo "init"
  End Sub
  Private Sub Class_Terminate
    WScript.Echo "fine " & Nome
  End Sub
End Class
Dim r, s
Set r = New Risorsa                                ' expect: init
r.Nome = "r"
Set s = r
Set r = Nothing
WScript.Echo "ancora viva"                         ' expect: ancora viva
Set s = Nothing                                    ' expect: fine r
WScript.Echo TypeName(s), s Is Nothing             ' expect: Nothing Vero
