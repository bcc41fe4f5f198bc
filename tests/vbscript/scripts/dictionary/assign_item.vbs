' locale: en-US
Dim d, inner
Set d = CreateObject("Scripting.Dictionary")
d("x") = 1
d.Item("x") = d("x") + 10
d("y") = "new"
WScript.Echo d("x"), d("y"), d.Count               ' expect: 11 new 2
Set inner = CreateObject("Scripting.Dictionary")
inner.Add "deep", 42
Set d("obj") = inner
WScript.Echo TypeName(d("obj")), d("obj")("deep")  ' expect: Dictionary 42
d("obj").Add "more", 1
WScript.Echo inner.Count                           ' expect: 2
d("arr") = Array(1, 2, 3)
WScript.Echo UBound(d("arr")), d("arr")(2)         ' expect: 2 3
