' locale: en-US
Dim d
Set d = CreateObject("Scripting.Dictionary")
WScript.Echo d.CompareMode                         ' expect: 0
d.Add "Key", 1
WScript.Echo d.Exists("KEY")                       ' expect: False
d.RemoveAll
d.CompareMode = vbTextCompare
d.Add "Città", 1
WScript.Echo d.CompareMode, d.Exists("CITTÀ"), d("cittÀ")   ' expect: 1 True 1
d("CITTÀ") = 2
WScript.Echo d.Count, d.Keys()(0), d("città")      ' expect: 1 Città 2
