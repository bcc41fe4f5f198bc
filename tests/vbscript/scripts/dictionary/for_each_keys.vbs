Dim d, k, seen
Set d = CreateObject("Scripting.Dictionary")
d.Add "x", 10
d.Add 5, 20
d.Add "z", 30
For Each k In d
  seen = seen & k & "=" & d(k) & " "
Next
WScript.Echo seen                                  ' expect: x=10 5=20 z=30 
' Keys removed during the loop are skipped, keys added are visited.
seen = ""
For Each k In d
  If k = "x" Then d.Remove 5 : d.Add "w", 40
  seen = seen & k & " "
Next
WScript.Echo seen                                  ' expect: x z w 
