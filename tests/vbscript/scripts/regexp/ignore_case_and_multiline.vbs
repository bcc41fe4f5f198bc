' locale: en-US
Dim re
Set re = CreateObject("VBScript.RegExp")
re.Pattern = "perché"
WScript.Echo re.Test("PERCHÉ")                     ' expect: False
re.IgnoreCase = True
WScript.Echo re.Test("PERCHÉ"), re.Execute("Xperché")(0).FirstIndex   ' expect: True 1
re.Pattern = "[a-z]+"
WScript.Echo re.Execute("12ABC")(0)                ' expect: ABC
re.IgnoreCase = False
re.Pattern = "^\w+$"
re.Global = True
WScript.Echo re.Execute("uno" & vbCrLf & "due").Count   ' expect: 0
re.Multiline = True
WScript.Echo re.Execute("uno" & vbCrLf & "due" & vbLf & "tre").Count   ' expect: 3
WScript.Echo re.Replace("uno" & vbLf & "due", "<$&>") = "<uno>" & vbLf & "<due>"   ' expect: True
