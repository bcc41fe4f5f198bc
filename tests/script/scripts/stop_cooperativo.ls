Option Explicit
' A loop that honours the stop: here the script asks for it itself after 1000 rounds.
Sub Main
  Dim giri
  Do Until ScriptInterrotto()
    giri = giri + 1
    If giri = 1000 Then StopProcess
  Loop
  Scrivi "fermato dopo " & giri & " giri"
  AzzeraFlagStopProcess
  Scrivi ScriptInterrotto()
End Sub
