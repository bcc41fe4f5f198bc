' locale: en-US
' Backslashes and names in another case find the same files, as on Windows.
Dim fso, base, ts
Set fso = CreateObject("Scripting.FileSystemObject")
base = fso.BuildPath(fso.GetSpecialFolder(2), fso.GetTempName())
fso.CreateFolder base
fso.CreateFolder base & "\Script"
fso.CreateFolder base & "\Script\Funzioni"
Set ts = fso.CreateTextFile(base & "\Script\Funzioni\Libreria.ls")
ts.WriteLine "Sub Prova"
ts.Close
WScript.Echo fso.FileExists(base & "\script\FUNZIONI\libreria.LS")   ' expect: True
WScript.Echo fso.FolderExists(base & "\SCRIPT\funzioni\")            ' expect: True
WScript.Echo fso.OpenTextFile(base & "\SCRIPT\funzioni\LIBRERIA.ls").ReadLine   ' expect: Sub Prova
WScript.Echo fso.GetFile(base & "\script\funzioni\libreria.ls").Name  ' expect: Libreria.ls
WScript.Echo fso.GetFolder(base & "\script").SubFolders.Item("FUNZIONI").Files.Item("libreria.ls").Name   ' expect: Libreria.ls
fso.DeleteFolder base & "\SCRIPT"
WScript.Echo fso.FolderExists(base & "\Script")    ' expect: False
fso.DeleteFolder base
