Dim fso, base, path, ts
Set fso = CreateObject("Scripting.FileSystemObject")
base = fso.BuildPath(fso.GetSpecialFolder(2), fso.GetTempName())
fso.CreateFolder base
path = fso.BuildPath(base, "log.txt")
Set ts = fso.OpenTextFile(path, 8, True)
ts.WriteLine "uno"
ts.Close
Set ts = fso.OpenTextFile(path, 8)
ts.WriteLine "due"
ts.Close
WScript.Echo fso.OpenTextFile(path).ReadAll = "uno" & vbCrLf & "due" & vbCrLf   ' expect: Vero
Set ts = fso.OpenTextFile(path, 2)
ts.Write "tre"
ts.Close
WScript.Echo fso.OpenTextFile(path).ReadAll        ' expect: tre
Set ts = fso.CreateTextFile(path, True)
ts.Close
WScript.Echo fso.GetFile(path).Size                ' expect: 0
fso.DeleteFolder base
