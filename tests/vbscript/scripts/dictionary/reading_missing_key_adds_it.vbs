' locale: en-US
' As on Windows, reading an item that is not there adds its key with Empty.
Dim d, v
Set d = CreateObject("Scripting.Dictionary")
v = d("nobody")
WScript.Echo IsEmpty(v), d.Count, d.Exists("nobody")   ' expect: True 1 True
If d("other") = "" Then WScript.Echo d.Count        ' expect: 2
WScript.Echo d.Exists("third"), d.Count             ' expect: False 2
