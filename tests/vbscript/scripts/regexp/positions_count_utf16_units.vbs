' Positions and lengths count UTF-16 code units, as Windows does: a character outside the
' Basic Multilingual Plane counts two.
Dim re, m, smile
smile = ChrW(&HD83D) & ChrW(&HDE00)
Set re = CreateObject("VBScript.RegExp")
re.Pattern = "b."
Set m = re.Execute("a" & smile & "bèc")(0)
WScript.Echo m.FirstIndex, m.Length, m.Value      ' expect: 3 2 bè
re.Pattern = "^.$"
WScript.Echo re.Test(smile)                        ' expect: Falso
