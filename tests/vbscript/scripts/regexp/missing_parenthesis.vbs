Dim re
Set re = CreateObject("VBScript.RegExp")
re.Pattern = "(ab"
WScript.Echo re.Replace("ab", "x")                 ' expect runtime error 5020
