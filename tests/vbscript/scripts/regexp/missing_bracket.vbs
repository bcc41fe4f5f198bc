Dim re
Set re = CreateObject("VBScript.RegExp")
re.Pattern = "[abc"
re.Execute "a"                                     ' expect runtime error 5019
