' locale: en-US
Dim d
Set d = CreateObject("Scripting.Dictionary")
WScript.Echo TypeName(d), d.Count                  ' expect: Dictionary 0
d.Add "a", "Athens"
d.Add "b", 2
WScript.Echo d.Item("a"), d("b"), d.Count          ' expect: Athens 2 2
WScript.Echo d.Exists("a"), d.Exists("z")          ' expect: True False
WScript.Echo TypeName(d("b"))                      ' expect: Integer
WScript.Echo d.Count                               ' expect: 2
