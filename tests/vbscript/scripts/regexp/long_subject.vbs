' A subject of a million characters neither overflows the stack nor takes long.
Dim re, s
s = String(1000000, "a") & "b"
Set re = CreateObject("VBScript.RegExp")
re.Pattern = "(a|c)*b"
WScript.Echo re.Execute(s)(0).Length               ' expect: 1000001
re.Pattern = "^.*b$"
WScript.Echo re.Test(s)                            ' expect: Vero
re.Pattern = "a+?b"
WScript.Echo re.Execute(s)(0).FirstIndex           ' expect: 0
