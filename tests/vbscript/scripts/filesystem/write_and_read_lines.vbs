' locale: en-US
Dim fso, base, ts
Set fso = CreateObject("Scripting.FileSystemObject")
base = fso.BuildPath(fso.GetSpecialFolder(2), fso.GetTempName())
fso.CreateFolder base
Set ts = fso.CreateTextFile(base & "\righe.txt")
WScript.Echo TypeName(ts), ts.Line, ts.Column      ' expect: TextStream 1 1
ts.WriteLine "prima"
ts.Write "seconda"
WScript.Echo ts.Line, ts.Column                    ' expect: 2 8
ts.WriteBlankLines 2
WScript.Echo ts.Line, ts.Column                    ' expect: 4 1
ts.WriteLine
ts.Write "ultima"
ts.Close
WScript.Echo fso.GetFile(base & "\righe.txt").Size ' expect: 26
Set ts = fso.OpenTextFile(base & "\righe.txt")
WScript.Echo ts.ReadLine, ts.Line, ts.Column       ' expect: prima 2 1
WScript.Echo ts.Read(3), ts.Column, ts.AtEndOfLine ' expect: sec 4 False
ts.Skip 4
WScript.Echo ts.AtEndOfLine, ts.AtEndOfStream, ts.Column   ' expect: True False 8
ts.SkipLine
WScript.Echo "[" & ts.ReadLine & "]", ts.Line      ' expect: [] 4
ts.SkipLine
WScript.Echo ts.ReadLine, ts.AtEndOfStream         ' expect: ultima True
ts.Close
Set ts = fso.OpenTextFile(base & "\righe.txt", 1)
WScript.Echo Len(ts.ReadAll), ts.AtEndOfStream, ts.Line, ts.Column   ' expect: 26 True 5 7
ts.Close
fso.DeleteFolder base
WScript.Echo fso.FolderExists(base)                ' expect: False
