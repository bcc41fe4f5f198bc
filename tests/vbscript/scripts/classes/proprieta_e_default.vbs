Class Conto
  Private m_saldo
  Public Default Property Get Saldo
    Saldo = m_saldo
  End Property
  Public Property Let Saldo(v)
    If v < 0 Then Err.Raise 5                      ' expect runtime error 5
    m_saldo = v
  End Property
  Public Function Versa(n)
    Me.Saldo = m_saldo + n
    Set Versa = Me
  End Function
End Class
Dim c
Set c = New Conto
c.Saldo = 10
c.Versa(5).Versa 7
WScript.Echo c.Saldo, c, TypeName(c)               ' expect: 22 22 Conto
Dim v : v = c
WScript.Echo v + 1                                 ' expect: 23
c.Saldo = -1
