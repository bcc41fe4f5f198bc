Do While True
 Exit Do
Loop
Function F
 Exit Function
End Function
F
