On Error Resume Next
x = 1 / 0
y = Err.Number
Err.Clear
z = CInt("abc")
Err.Raise 5
On Error GoTo 0
