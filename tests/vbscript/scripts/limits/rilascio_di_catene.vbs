' Dropping a value that holds a deep nesting of arrays, or a long chain of objects, releases it in
' constant stack: each link dies in turn, and each Class_Terminate runs.
Dim a, i
For i = 1 To 300000
  a = Array(a)
Next
a = Empty
WScript.Echo "array liberato"                              ' expect: array liberato

Dim terminati : terminati = 0
Class Anello
  Public seguente
  Private Sub Class_Terminate
    terminati = terminati + 1
  End Sub
End Class
Dim primo, nuovo
Set primo = Nothing
For i = 1 To 300000
  Set nuovo = New Anello
  Set nuovo.seguente = primo
  Set primo = nuovo
Next
Set nuovo = Nothing
Set primo = Nothing
WScript.Echo terminati                                     ' expect: 300000

' A short chain still dies from the head down, as it always has.
Dim ordine : ordine = ""
Class Nodo
  Public nome, seguente
  Private Sub Class_Terminate
    ordine = ordine & nome
  End Sub
End Class
Dim n1, n2, n3
Set n3 = New Nodo : n3.nome = "c" : Set n3.seguente = Nothing
Set n2 = New Nodo : n2.nome = "b" : Set n2.seguente = n3
Set n1 = New Nodo : n1.nome = "a" : Set n1.seguente = n2
Set n2 = Nothing : Set n3 = Nothing
Set n1 = Nothing
WScript.Echo ordine                                        ' expect: abc
