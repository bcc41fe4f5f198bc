Dim fso, base
Set fso = CreateObject("Scripting.FileSystemObject")
base = fso.BuildPath(fso.GetSpecialFolder(2), fso.GetTempName())
fso.CreateFolder base
fso.CreateTextFile(base & "\x.txt").Close
fso.CreateTextFile(base & "\y.txt").Close
On Error Resume Next
fso.CreateFolder base
WScript.Echo Err.Number                            ' expect: 58
Err.Clear
fso.CopyFile base & "\x.txt", base & "\y.txt", False
WScript.Echo Err.Number                            ' expect: 58
Err.Clear
fso.MoveFile base & "\x.txt", base & "\y.txt"
WScript.Echo Err.Number                            ' expect: 58
Err.Clear
fso.DeleteFile base & "\manca.txt"
WScript.Echo Err.Number                            ' expect: 53
Err.Clear
fso.DeleteFile base & "\*.log"
WScript.Echo Err.Number                            ' expect: 53
Err.Clear
fso.DeleteFolder base & "\manca"
WScript.Echo Err.Number                            ' expect: 76
Err.Clear
fso.GetFile base & "\manca.txt"
WScript.Echo Err.Number                            ' expect: 53
Err.Clear
fso.GetFolder base & "\manca"
WScript.Echo Err.Number                            ' expect: 76
Err.Clear
fso.CopyFile base & "\x.txt", base & "\manca\"
WScript.Echo Err.Number                            ' expect: 76
Err.Clear
fso.GetFolder(base).Files.Item("manca.txt")
WScript.Echo Err.Number                            ' expect: 53
On Error GoTo 0
fso.DeleteFolder base
