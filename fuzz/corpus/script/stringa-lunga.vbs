On Error Resume Next
s = "ab"
For i = 1 To 16
 s = s & s
Next
