Dim d, k, i
Set d = CreateObject("Scripting.Dictionary")
d.Add "c", 3
d.Add "a", 1
d.Add "b", 2
k = d.Keys
i = d.Items
WScript.Echo LBound(k), UBound(k), Join(k, ","), Join(i, ",")   ' expect: 0 2 c,a,b 3,1,2
d.Remove "c"
d.Add "c", 30
WScript.Echo Join(d.Keys, ","), Join(d.Items, ",")  ' expect: a,b,c 1,2,30
d.RemoveAll
WScript.Echo d.Count, UBound(d.Keys), UBound(d.Items)   ' expect: 0 -1 -1
