x = 3
Select Case x
 Case 1, 2
  y = 1
 Case Is > 2
  y = 2
 Case Else
  y = 3
End Select
