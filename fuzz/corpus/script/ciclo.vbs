Dim i, s
For i = 1 To 10
  s = s & i
Next
