' locale: en-US
' After SetLocale, the objects a script made read and print numbers the new way, as the
' language itself does.
Dim fso, base, ts, re, d
Set fso = CreateObject("Scripting.FileSystemObject")
Set re = New RegExp
Set d = CreateObject("Scripting.Dictionary")
base = fso.BuildPath(fso.GetSpecialFolder(2), fso.GetTempName())
fso.CreateFolder base
Set ts = fso.CreateTextFile(base & "\numeri.txt")
ts.Write 1.5
re.Pattern = ","
WScript.Echo re.Test(2.5), fso.GetFileName(fso.BuildPath(base, 0.5)), 1.5   ' expect: False 0.5 1.5
SetLocale "it-it"
ts.Write " "
ts.Write 1.5
ts.Close
WScript.Echo fso.OpenTextFile(base & "\numeri.txt").ReadAll   ' expect: 1.5 1,5
WScript.Echo re.Test(2.5), fso.GetFileName(fso.BuildPath(base, 0.5)), 1.5   ' expect: Vero 0,5 1,5
d.Add "a", 2.5
WScript.Echo d.Item("a"), d.Exists(2.5)                       ' expect: 2,5 Falso
SetLocale "en-us"
WScript.Echo d.Item("a"), re.Test(2.5)                        ' expect: 2.5 False
fso.DeleteFolder base
