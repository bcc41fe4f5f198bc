Dim d
Set d = CreateObject("Scripting.Dictionary")
d.Key("none") = "other"                            ' expect runtime error 32811
