Class C
 Private m
 Public Property Get V
  V = m
 End Property
 Public Property Let V(x)
  m = x
 End Property
 Public Function F(n)
  If n <= 0 Then F = 0 Else F = n + F(n - 1)
 End Function
End Class
Set o = New C
o.V = 5
r = o.F(10)
