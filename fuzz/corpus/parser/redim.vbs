Dim m()
ReDim m(2, 3)
m(1, 2) = 5
ReDim Preserve m(2, 5)
n = UBound(m, 2)
