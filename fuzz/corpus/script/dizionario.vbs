Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
d("b") = 2
k = d.Keys
If d.Exists("a") Then d.Remove "a"
n = d.Count
