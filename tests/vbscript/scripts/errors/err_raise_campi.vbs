On Error Resume Next
Dim e
Err.Raise 1000, "prova", "mio errore", "aiuto.chm", 42
WScript.Echo Err.Number, Err.Source, Err.Description, Err.HelpFile, Err.HelpContext, TypeName(Err.HelpContext)   ' expect: 1000 prova mio errore aiuto.chm 42 Long
' What Raise is not told stays as the Err object holds it.
Err.Raise 5
WScript.Echo Err.Number, Err.Source, Err.Description, Err.HelpFile, Err.HelpContext   ' expect: 5 prova mio errore aiuto.chm 42
Err.Raise 6, "altra"
WScript.Echo Err.Number, Err.Source, Err.Description   ' expect: 6 altra mio errore
' A runtime error replaces everything, help included.
e = 1 / 0
WScript.Echo Err.Number, Err.Source, Err.Description, "[" & Err.HelpFile & "]", Err.HelpContext   ' expect: 11 Errore di run-time di Microsoft VBScript Divisione per zero [] 0
Err.Clear
WScript.Echo "[" & Err.Source & "]", "[" & Err.Description & "]", "[" & Err.HelpFile & "]", Err.HelpContext   ' expect: [] [] [] 0
Err.HelpFile = "guida.chm"
Err.HelpContext = "7"
WScript.Echo Err.HelpFile, Err.HelpContext, TypeName(Err.HelpContext)   ' expect: guida.chm 7 Long
Err.Clear
' COM failure codes become the script's numbers, with their texts.
Err.Raise &H8007000E&
WScript.Echo Err.Number, Err.Source, Err.Description   ' expect: 7 Errore di run-time di Microsoft VBScript Memoria esaurita
Err.Clear
Err.Raise &H80070005
WScript.Echo Err.Number, Err.Description               ' expect: 70 Autorizzazione negata
Err.Clear
Err.Raise &H800A000D
WScript.Echo Err.Number, Err.Description               ' expect: 13 Tipo non corrispondente
Err.Clear
Err.Raise vbObjectError + 1, "mia", "mio"
WScript.Echo Err.Number = vbObjectError + 1, Err.Source   ' expect: Vero mia
Err.Clear
Err.Raise -20
WScript.Echo Err.Number                                ' expect: -20
Err.Clear
Err.Raise &H10000&
WScript.Echo Err.Number                                ' expect: 5
Err.Clear
Err.unknownIdent
WScript.Echo Err.Number, Err.Source                    ' expect: 438 Errore di run-time di Microsoft VBScript
On Error GoTo 0
Err.Raise 1000, "prova", "fine", "aiuto.chm", 1        ' expect runtime error 1000
