' locale: en-US
' Numbers are one key whatever their subtype; a string is never equal to a number.
Dim d, o1, o2
Set d = CreateObject("Scripting.Dictionary")
d.Add 1, "integer"
WScript.Echo d.Exists(CLng(1)), d.Exists(1.0), d.Exists(CByte(1)), d.Exists(CCur(1))   ' expect: True True True True
WScript.Echo d.Exists("1"), d.Exists(1.5)          ' expect: False False
d.Add "1", "string"
WScript.Echo d.Count, d(1), d("1")                 ' expect: 2 integer string
d(CDbl(1)) = "double"
WScript.Echo d.Count, d(1)                         ' expect: 2 double
Set o1 = CreateObject("Scripting.Dictionary")
Set o2 = CreateObject("Scripting.Dictionary")
d.Add o1, "first object"
d.Add o2, "second object"
WScript.Echo d(o1), d(o2), d.Count                 ' expect: first object second object 4
d.Add Empty, "empty"
d.Add Null, "null"
WScript.Echo d(Empty), d(Null), d.Count            ' expect: empty null 6
WScript.Echo d.Exists(""), d.Exists(0)             ' expect: False False
