Dim d
Set d = CreateObject("Scripting.Dictionary")
d.Add Array(1), 1                                  ' expect runtime error 5
