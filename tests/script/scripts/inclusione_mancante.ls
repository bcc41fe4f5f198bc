Option Explicit
includi NonEsiste.ls

Sub Main
  Scrivi "mai"
End Sub
