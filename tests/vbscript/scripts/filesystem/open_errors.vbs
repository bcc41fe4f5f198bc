Dim fso, base, ts
Set fso = CreateObject("Scripting.FileSystemObject")
base = fso.BuildPath(fso.GetSpecialFolder(2), fso.GetTempName())
fso.CreateFolder base
fso.CreateTextFile(base & "\c'è.txt").Close
On Error Resume Next
Set ts = fso.OpenTextFile(base & "\manca.txt")
WScript.Echo Err.Number                            ' expect: 53
Err.Clear
Set ts = fso.OpenTextFile(base & "\manca\x.txt", 2, True)
WScript.Echo Err.Number                            ' expect: 76
Err.Clear
Set ts = fso.CreateTextFile(base & "\c'è.txt", False)
WScript.Echo Err.Number                            ' expect: 58
Err.Clear
Set ts = fso.OpenTextFile(base)
WScript.Echo Err.Number                            ' expect: 70
Err.Clear
Set ts = fso.OpenTextFile(base & "\c'è.txt", 3)
WScript.Echo Err.Number                            ' expect: 5
Err.Clear
Set ts = fso.OpenTextFile(base & "\c'è.txt", 1, False, 7)
WScript.Echo Err.Number                            ' expect: 5
On Error GoTo 0
fso.DeleteFolder base
