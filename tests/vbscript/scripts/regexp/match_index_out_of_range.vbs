Dim re, ms
Set re = CreateObject("VBScript.RegExp")
re.Pattern = "a"
Set ms = re.Execute("a")
WScript.Echo ms.Item(0)                            ' expect: a
WScript.Echo ms.Item(1)                            ' expect runtime error 5
