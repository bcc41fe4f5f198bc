Function Saluto(nome)
  Saluto = "Ciao " & nome
End Function
