' locale: en-US
Dim re, ms, m
Set re = CreateObject("VBScript.RegExp")
WScript.Echo TypeName(re), re.Pattern = "", re.Global, re.IgnoreCase, re.Multiline   ' expect: IRegExp2 True False False False
re.Pattern = "\d+"
Set ms = re.Execute("ruota 12, numeri 34 e 5")
WScript.Echo TypeName(ms), ms.Count                ' expect: IMatchCollection2 1
Set m = ms(0)
WScript.Echo TypeName(m), m, m.Value, m.FirstIndex, m.Length   ' expect: IMatch2 12 12 6 2
WScript.Echo re.Execute("nessuno").Count           ' expect: 0
WScript.Echo re.Test("a1"), re.Test("abc")         ' expect: True False
