Dim d
Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
d.CompareMode = 1                                  ' expect runtime error 5
