Dim fso, base, ts, reader
Set fso = CreateObject("Scripting.FileSystemObject")
base = fso.BuildPath(fso.GetSpecialFolder(2), fso.GetTempName())
fso.CreateFolder base
Set ts = fso.CreateTextFile(base & "\x.txt")
ts.WriteLine "riga"
On Error Resume Next
WScript.Echo ts.ReadLine
WScript.Echo Err.Number                            ' expect: 54
Err.Clear
ts.Close
ts.Write "chiuso"
WScript.Echo Err.Number                            ' expect: 54
Err.Clear
Set reader = fso.OpenTextFile(base & "\x.txt")
reader.Write "no"
WScript.Echo Err.Number                            ' expect: 54
Err.Clear
WScript.Echo reader.ReadLine                       ' expect: riga
WScript.Echo reader.ReadLine
WScript.Echo Err.Number                            ' expect: 62
Err.Clear
reader.ReadAll
WScript.Echo Err.Number                            ' expect: 62
On Error GoTo 0
fso.DeleteFolder base
