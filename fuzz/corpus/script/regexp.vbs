Set r = New RegExp
r.Pattern = "(a+)b"
r.Global = True
Set m = r.Execute("aab ab b")
n = m.Count
s = r.Replace("aab", "$1")
