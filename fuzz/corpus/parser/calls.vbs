f a, b
f(a)
f (a), b
f (a) + 1, b
Call f(a, b)
Call (New C).m()
obj.m a
obj.m(a)
f .x
If a Then If b Then c Else d
If a Then f 1: g 2 Else h
x = 1 + _
  2
Sub s(x): Exit Sub: End Sub
Function g: g = Eval("1"): End Function
ExecuteGlobal "Dim q"
