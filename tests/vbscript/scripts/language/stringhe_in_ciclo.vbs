Dim s, i
s = ""
For i = 1 To 20000
  s = s & "ab"
Next
WScript.Echo Len(s), Mid(s, 39999, 2)              ' expect: 40000 ab
