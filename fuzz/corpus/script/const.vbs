Const A = 5, B = "x"
Dim c : c = A & B & vbCrLf & vbTab
