Dim re
Set re = CreateObject("VBScript.RegExp")
re.Pattern = "a**"
WScript.Echo re.Pattern                            ' expect: a**
WScript.Echo re.Test("a")                          ' expect runtime error 5018
