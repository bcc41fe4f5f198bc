' locale: en-US
Dim re
Set re = CreateObject("VBScript.RegExp")
Function First(pattern, text)
  re.Pattern = pattern
  Dim ms
  Set ms = re.Execute(text)
  If ms.Count = 0 Then First = "(none)" Else First = ms(0).Value
End Function
WScript.Echo First("<.+?>", "<a><b>"), First("<.+>", "<a><b>")   ' expect: <a> <a><b>
WScript.Echo First("a{2,3}", "aaaa"), First("a{2,}?", "aaaa"), First("a{2}", "a")   ' expect: aaa aa (none)
WScript.Echo First("(\w)\1", "abccd"), First("(a)|\1b", "b")     ' expect: cc b
WScript.Echo First("\d+(?=€)", "10$ 20€"), First("\b\d+\b(?!%)", "5% 7")   ' expect: 20 7
WScript.Echo First("[^\s,]+", ", ,abc,"), First("[\d-]+", "x1-2y")   ' expect: abc 1-2
WScript.Echo First("\x41\u0042\103", "ABC"), First("a\.b", "axb a.b")   ' expect: ABC a.b
WScript.Echo First("a{,2}", "a{,2}"), First("\Bb", "ab b")        ' expect: a{,2} b
WScript.Echo First("(a*)*b", "aaab"), First("(a|ab)(c|bcd)(d*)", "abcd")   ' expect: aaab abcd
WScript.Echo First("[]a]", "]"), First("[^]", "x")                ' expect: (none) x
