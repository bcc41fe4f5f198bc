Dim re
Set re = CreateObject("VBScript.RegExp")
re.Pattern = "ab)"
WScript.Echo re.Test("ab")                         ' expect runtime error 5017
