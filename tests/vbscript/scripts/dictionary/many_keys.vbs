' Removing most keys and adding more keeps every lookup and the order right.
Dim d, i, total, ok
Set d = CreateObject("Scripting.Dictionary")
For i = 1 To 20000
  d.Add "k" & i, i
Next
For i = 1 To 20000
  If i Mod 3 <> 0 Then d.Remove "k" & i
Next
For i = 20001 To 21000
  d(i) = i
Next
WScript.Echo d.Count                               ' expect: 7666
ok = True
For i = 1 To 20000
  If d.Exists("k" & i) <> (i Mod 3 = 0) Then ok = False
Next
total = 0
For Each i In d.Items
  total = total + i
Next
WScript.Echo ok, total                             ' expect: Vero 87163833
WScript.Echo d.Keys()(0), d.Keys()(6665), d.Keys()(6666)   ' expect: k3 k19998 20001
