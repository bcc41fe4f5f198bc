' locale: en-US
Dim re, m, s, out
Set re = CreateObject("VBScript.RegExp")
re.Pattern = "(\d+)-(\d+)(-(\d+))?"
Set m = re.Execute("estratti 7-45 fine")(0)
Set s = m.SubMatches
WScript.Echo TypeName(s), s.Count, s(0), s.Item(1)  ' expect: ISubMatches 4 7 45
WScript.Echo IsEmpty(s(2)), IsEmpty(s(3))          ' expect: True True
For Each out In re.Execute("1-2-3")(0).SubMatches
  WScript.Echo out
Next
' expect: 1
' expect: 2
' expect: -3
' expect: 3
re.Pattern = "(?:ab)+(c)"
WScript.Echo re.Execute("ababc")(0).SubMatches.Count   ' expect: 1
