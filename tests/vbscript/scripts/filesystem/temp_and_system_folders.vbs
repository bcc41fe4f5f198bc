' locale: en-US
Dim fso, re, temp
Set fso = CreateObject("Scripting.FileSystemObject")
Set re = CreateObject("VBScript.RegExp")
re.Pattern = "^rad[0-9A-F]{5}\.tmp$"
WScript.Echo re.Test(fso.GetTempName), fso.GetTempName <> fso.GetTempName   ' expect: True True
Set temp = fso.GetSpecialFolder(2)
WScript.Echo TypeName(temp), fso.FolderExists(temp), fso.FolderExists(temp.Path)   ' expect: Folder True True
WScript.Echo fso.GetAbsolutePathName("C:\") , fso.DriveExists("C:"), fso.Drives.Count   ' expect: / True 1
WScript.Echo fso.GetAbsolutePathName("/a/b/../c/.")   ' expect: /a/c
