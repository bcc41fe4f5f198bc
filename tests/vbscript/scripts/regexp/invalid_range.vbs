Dim re
Set re = CreateObject("VBScript.RegExp")
re.Pattern = "[z-a]"
WScript.Echo re.Test("b")                          ' expect runtime error 5021
