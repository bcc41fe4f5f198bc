Option Explicit
Dim a, b(3), c()
Const k = -1, s = "x""y", d = #1/2/2003 10:30 PM#
ReDim Preserve c(5)
For i = 1 To 10 Step 2
  If a Then b = 1 Else b = 2 End If
Next i
For Each x In c: Exit For: Next
Do While a < 3: a = a + 1: Loop
Do: Loop Until a
While a: Wend
Select Case a
Case 1, 2: b = 3
case 4  b = 5
Case Else
End Select
If a Then
  b
ElseIf c Then d
Else
  e
End If
On Error Resume Next
On Error GoTo 0
Erase c
' comment
Rem comment
Stop
