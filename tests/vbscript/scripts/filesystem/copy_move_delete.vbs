' locale: en-US
Dim fso, base
Set fso = CreateObject("Scripting.FileSystemObject")
base = fso.BuildPath(fso.GetSpecialFolder(2), fso.GetTempName())
fso.CreateFolder base
fso.CreateFolder base & "\da"
fso.CreateFolder base & "\da\sotto"
fso.CreateFolder base & "\a"
fso.CreateTextFile(base & "\da\uno.txt").Write "1"
fso.CreateTextFile(base & "\da\due.TXT").Write "22"
fso.CreateTextFile(base & "\da\tre.log").Write "333"
fso.CreateTextFile(base & "\da\sotto\quattro.txt").Write "4444"
fso.CopyFile base & "\da\*.txt", base & "\a\"
WScript.Echo fso.GetFolder(base & "\a").Files.Count   ' expect: 2
fso.CopyFile base & "\da\tre.log", base & "\a\copia.log"
fso.MoveFile base & "\a\copia.log", base & "\a\mossa.log"
WScript.Echo fso.FileExists(base & "\a\copia.log"), fso.GetFile(base & "\a\mossa.log").Size   ' expect: False 3
fso.DeleteFile base & "\a\*.TXT"
WScript.Echo fso.GetFolder(base & "\a").Files.Count   ' expect: 1
fso.CopyFolder base & "\da", base & "\copia"
WScript.Echo fso.GetFolder(base & "\copia").Size, fso.FileExists(base & "\copia\sotto\quattro.txt")   ' expect: 10 True
fso.MoveFolder base & "\copia", base & "\a\"
WScript.Echo fso.FolderExists(base & "\copia"), fso.GetFolder(base & "\a\copia").Size   ' expect: False 10
fso.DeleteFolder base & "\a\c*"
WScript.Echo fso.GetFolder(base & "\a").SubFolders.Count   ' expect: 0
fso.DeleteFolder base
WScript.Echo fso.FolderExists(base)                ' expect: False
