Function G(x)
 G = x * 2
End Function
Set r = GetRef("G")
y = r(4)
