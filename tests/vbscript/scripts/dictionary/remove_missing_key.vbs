Dim d
Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
d.Remove "a"
WScript.Echo d.Count                               ' expect: 0
d.Remove "a"                                       ' expect runtime error 32811
