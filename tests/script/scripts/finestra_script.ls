Option Explicit
' The script window's members answer from the command line too: a script written for the desktop
' runs unchanged, and a wrong value is refused where it is given.
Sub Main
  F_Script.Caption = "Ricerca ambi " & 2026
  Scrivi F_Script.Caption
  Caption = "globale"
  Scrivi Caption
  F_Script.Avanzamento = 40.5
  Scrivi F_Script.Avanzamento
  VisualizzaFormProgress False
  DoEventsEx
  F_Script.PulisciOutput
  F_Script.PulisciDisegno
  On Error Resume Next
  F_Script.Avanzamento = 150
  Scrivi "150: " & Err.Number
  Err.Clear
  F_Script.Avanzamento = "molto"
  Scrivi "molto: " & Err.Number
  Err.Clear
  F_Script.Inesistente = 1
  Scrivi "inesistente: " & Err.Number
  On Error GoTo 0
  Scrivi ApriDirectory(GetDirectoryTemp() & "non_esiste_cartella")
End Sub
