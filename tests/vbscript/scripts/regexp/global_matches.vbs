Dim re, m, out
Set re = New RegExp
re.Pattern = "\d+"
re.Global = True
For Each m In re.Execute("12, 34 e 5")
  out = out & m.Value & "@" & m.FirstIndex & " "
Next
WScript.Echo out                                   ' expect: 12@0 34@4 5@9 
' An empty match moves the next search on by one character.
re.Pattern = "x*"
WScript.Echo re.Execute("axxb").Count              ' expect: 4
WScript.Echo re.Replace("axxb", "-")               ' expect: -a--b-
