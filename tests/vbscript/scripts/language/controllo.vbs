Dim i, s, n
For i = 10 To 1 Step -3
  s = s & i & " "
Next
WScript.Echo s                                     ' expect: 10 7 4 1 
n = 0
Do While n < 100
  n = n + 7
  If n > 30 Then Exit Do
Loop
WScript.Echo n                                     ' expect: 35
n = 0
Do
  n = n + 1
Loop Until n >= 3
WScript.Echo n                                     ' expect: 3
While n > 0 : n = n - 1 : Wend
WScript.Echo n                                     ' expect: 0
Select Case "b"
  Case "a", "c" : WScript.Echo "no"
  Case "b" : WScript.Echo "si"                     ' expect: si
  Case Else : WScript.Echo "altro"
End Select
If n = 0 Then WScript.Echo "zero" Else WScript.Echo "altro"   ' expect: zero
For i = 1 To 3
  If i = 2 Then Exit For
Next
WScript.Echo i                                     ' expect: 2
