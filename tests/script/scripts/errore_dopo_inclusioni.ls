Option Explicit
includi Somme.ls
includi Somme2.ls

Sub Main
  Scrivi Somma(1, 1)
  Scrivi Somma(1)
End Sub
