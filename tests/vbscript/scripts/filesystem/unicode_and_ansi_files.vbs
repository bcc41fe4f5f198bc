' Text goes out as Windows-1252 unless Unicode is asked for (UTF-16LE with a byte-order mark),
' and comes back the same either way.
Dim fso, base, ts, text
Set fso = CreateObject("Scripting.FileSystemObject")
base = fso.BuildPath(fso.GetSpecialFolder(2), fso.GetTempName())
fso.CreateFolder base
text = "perché 5€"
Set ts = fso.CreateTextFile(base & "\ansi.txt")
ts.Write text
ts.Close
WScript.Echo fso.GetFile(base & "\ansi.txt").Size  ' expect: 9
Set ts = fso.CreateTextFile(base & "\unicode.txt", True, True)
ts.Write text
ts.Close
WScript.Echo fso.GetFile(base & "\unicode.txt").Size   ' expect: 20
WScript.Echo fso.OpenTextFile(base & "\ansi.txt").ReadAll = text   ' expect: Vero
WScript.Echo fso.OpenTextFile(base & "\unicode.txt").ReadAll = text   ' expect: Vero
WScript.Echo fso.OpenTextFile(base & "\unicode.txt", 1, False, -1).ReadAll = text   ' expect: Vero
' Appending to a Unicode file keeps it Unicode.
Set ts = fso.OpenTextFile(base & "\unicode.txt", 8)
ts.Write "!"
ts.Close
WScript.Echo fso.GetFile(base & "\unicode.txt").Size, fso.OpenTextFile(base & "\unicode.txt").ReadAll   ' expect: 22 perché 5€!
fso.DeleteFolder base
