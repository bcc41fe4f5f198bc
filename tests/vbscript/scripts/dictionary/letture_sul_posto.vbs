' An element or an item read where only its value is wanted (an operand, the right side of an
' assignment, the bounds of a For) behaves exactly as a read through the general path: a missing
' key is added with Empty, a bad index fails, text keys follow the compare mode.

Dim d, a(3), i, k, s
Set d = CreateObject("Scripting.Dictionary")

' A missing key read as an operand is added, once, in the order the operands are read.
s = d("primo") + d("secondo")
WScript.Echo s & "|" & d.Count & "|" & Join(d.Keys, ",")       ' expect: 0|2|primo,secondo
d("primo") = 5
s = d("primo") + d("primo")
WScript.Echo s & "|" & d.Count                                  ' expect: 10|2

' Whole-number keys: the item found last and the others, read and written in a loop.
d.RemoveAll
For i = 1 To 20
  k = i Mod 3
  d(k) = d(k) + i
Next
WScript.Echo d(0) & "," & d(1) & "," & d(2)                     ' expect: 63,70,77

' Text keys under text compare are found whatever their case.
d.RemoveAll
d.CompareMode = 1
d("Ruota") = 7
s = d("RUOTA") * 2
WScript.Echo s & "|" & d.Count                                  ' expect: 14|1

' An item that is an object is no number: the general rules give their error.
Set d("oggetto") = CreateObject("Scripting.Dictionary")
On Error Resume Next
s = d("oggetto") + 1
If Err.Number <> 0 Then WScript.Echo "errore"                   ' expect: errore
Err.Clear
On Error GoTo 0

' Array elements as operands, bounds of a For and conditions.
a(0) = 2 : a(1) = 4 : a(2) = "3" : a(3) = Null
s = 0
For i = a(0) To a(1)
  s = s + i
Next
WScript.Echo s                                                  ' expect: 9
WScript.Echo a(0) + a(2)                                        ' expect: 5
If IsNull(a(0) + a(3)) Then WScript.Echo "Null"                 ' expect: Null
If a(1) > a(0) Then WScript.Echo "maggiore"                     ' expect: maggiore

' An index outside the bounds fails as before, in an operand and in a condition.
On Error Resume Next
s = a(4) + 1
WScript.Echo Err.Number                                         ' expect: 9
Err.Clear
If a(7) = 1 Then WScript.Echo "dentro"                          ' expect: dentro
WScript.Echo Err.Number                                         ' expect: 9
On Error GoTo 0

' An element passed to a procedure is still passed by reference.
Sub Raddoppia(x)
  x = x * 2
End Sub
Raddoppia a(1)
WScript.Echo a(1)                                               ' expect: 8
