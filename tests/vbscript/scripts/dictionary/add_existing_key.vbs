Dim d
Set d = CreateObject("SCRIPTING.DICTIONARY")
d.Add "k", 1
d.Add "K", 2
WScript.Echo d.Count                               ' expect: 2
d.Add "k", 3                                       ' expect runtime error 457
