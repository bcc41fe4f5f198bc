Class Punto
  Public X, Y
End Class
Dim p
Set p = New Punto
With p
  .X = 3
  .Y = .X + 1
End With
WScript.Echo p.X, p.Y                              ' expect: 3 4
