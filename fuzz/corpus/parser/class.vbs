Class Point
  Public X, Y
  Private m_name
  Public Default Property Get Name()
    Name = m_name
  End Property
  Property Let Name(v): m_name = v: End Property
  Public Property Set Obj(o): Set m_o = o: End Property
  Private Sub Class_Initialize: X = 0
  End Sub
  Function Sum(ByVal a, ByRef b, c())
    Sum = a + b: Exit Function
  End Function
End Class
Set p = New Point
With p
  .X = 1: .Name = "a" & .Y
End With
Set p = Nothing
