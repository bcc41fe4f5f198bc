Sub Inc(ByRef n)
 n = n + 1
End Sub
x = 1
Inc x
Inc (x)
Call Inc(x)
