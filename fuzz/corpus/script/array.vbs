Dim a(3)
a(0) = 1
ReDim Preserve a(10)
b = Array(1, "x", Array(2))
c = UBound(b(2))
Erase a
