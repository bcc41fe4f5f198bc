Function F(n)
 F = F(n + 1)
End Function
On Error Resume Next
x = F(1)
