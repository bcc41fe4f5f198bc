On Error Resume Next
Dim x
x = 1 / 0
WScript.Echo Err.Number, Err.Description           ' expect: 11 Divisione per zero
Err.Clear
WScript.Echo Err.Number                            ' expect: 0
Err.Raise 1000, "prova", "mio errore"
WScript.Echo Err.Number, Err.Source, Err.Description   ' expect: 1000 prova mio errore
On Error GoTo 0
WScript.Echo Err.Number                            ' expect: 0
