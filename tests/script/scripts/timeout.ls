' opzioni: --timeout 0.005
Sub Main
  Scrivi "inizio"
  Do
  Loop
End Sub
