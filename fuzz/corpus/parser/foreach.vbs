For Each x In Array(1, 2, 3)
 s = s + x
Next
For i = 10 To 1 Step -3
Next
