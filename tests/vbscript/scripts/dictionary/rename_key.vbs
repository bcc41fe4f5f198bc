' locale: en-US
Dim d
Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
d.Add "b", 2
d.Add "c", 3
d.Key("b") = "beta"
WScript.Echo Join(d.Keys, ","), d("beta"), d.Exists("b")   ' expect: a,beta,c 2 False
d.Key("a") = "c"                                   ' expect runtime error 457
