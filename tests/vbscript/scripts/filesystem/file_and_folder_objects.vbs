' locale: en-US
Dim fso, base, folder, f, names, item
Set fso = CreateObject("Scripting.FileSystemObject")
base = fso.BuildPath(fso.GetSpecialFolder(2), fso.GetTempName())
Set folder = fso.CreateFolder(base)
WScript.Echo TypeName(folder), folder.Files.Count, folder.SubFolders.Count   ' expect: Folder 0 0
folder.CreateTextFile("b.txt").Write "12345"
fso.CreateTextFile(base & "\A.log").Write "1"
folder.SubFolders.Add "dentro"
fso.CreateTextFile(base & "\dentro\c.txt").Write "123"
Set f = fso.GetFile(base & "\b.txt")
WScript.Echo TypeName(f), f.Name, f.Size, f.Type, f.Path = base & "/b.txt", f = f.Path   ' expect: File b.txt 5 TXT File True True
WScript.Echo f.ParentFolder.Path = folder.Path, Year(f.DateLastModified) = Year(Now)   ' expect: True True
WScript.Echo folder.Files.Count, folder.SubFolders.Count, folder.Size   ' expect: 2 1 9
For Each item In folder.Files
  names = names & item.Name & " "
Next
WScript.Echo names                                 ' expect: A.log b.txt 
f.Name = "rinominato.txt"
WScript.Echo f.Name, fso.FileExists(base & "\b.txt"), fso.FileExists(base & "\rinominato.txt")   ' expect: rinominato.txt False True
f.Copy base & "\dentro\"
f.Move base & "\spostato.txt"
WScript.Echo f.Name, fso.FileExists(base & "\dentro\rinominato.txt")   ' expect: spostato.txt True
f.Delete
WScript.Echo fso.FileExists(base & "\spostato.txt"), folder.SubFolders.Item("dentro").Files.Count   ' expect: False 2
WScript.Echo folder.IsRootFolder, fso.GetFolder("/").IsRootFolder, fso.GetFolder("/").ParentFolder Is Nothing   ' expect: False True True
folder.Delete
WScript.Echo fso.FolderExists(base)                ' expect: False
