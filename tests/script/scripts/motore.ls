' Code of another file added while the script runs, objects that may be missing and a line in
' the status band.
Sub Main
  Call Includi("Raddoppia.ls")
  Scrivi Raddoppia(21)
  Scrivi CreateObjectX("Scripting.Dictionary") Is Nothing
  Scrivi CreateObjectX("Excel.Application") Is Nothing
  TestoInBandaPassante "Analisi in corso"
  Call Includi("NonCe.ls")
  Scrivi "dopo"
End Sub
