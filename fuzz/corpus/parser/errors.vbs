x = (1
If x Then
Sub a
Sub b
Loop
Next
Const c = d
f(a, b)
x = "unterminated
