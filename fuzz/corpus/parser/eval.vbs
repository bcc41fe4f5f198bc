x = Eval("1 + 2 * 3")
Execute "y = x * 2"
ExecuteGlobal "Sub S : z = 1 : End Sub"
S
