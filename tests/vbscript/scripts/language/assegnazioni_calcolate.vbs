' A number computed inline from plain operands and written straight into the variable: the
' variable may be an operand, may hold a string or an array before, may be a ByRef parameter, and
' the subtype follows the language's promotions.

Dim k, s, i, a(2)
k = 1000
k = k Mod 90
WScript.Echo k & " " & TypeName(k)                              ' expect: 10 Integer

s = "testo"
s = k * 3
WScript.Echo s & " " & TypeName(s)                              ' expect: 30 Integer

s = Array(1, 2)
s = k - 11
WScript.Echo s & " " & TypeName(s)                              ' expect: -1 Integer

k = 32767
k = k + 1
WScript.Echo k & " " & TypeName(k)                              ' expect: 32768 Long

k = 2147483647
k = k + 1
WScript.Echo TypeName(k)                                        ' expect: Double

s = 0
For i = 1 To 4
  s = s + i * 2
Next
WScript.Echo s                                                  ' expect: 20

Sub Azzera(ByRef x, y)
  x = y - y
End Sub
k = "abc"
Azzera k, 5
WScript.Echo k & " " & TypeName(k)                              ' expect: 0 Integer

a(1) = 7
k = a(1) * a(1)
WScript.Echo k                                                  ' expect: 49

' Operands the inline arithmetic leaves to the general rules still give their result or error.
k = "2" + 3
WScript.Echo k & " " & TypeName(k)                              ' expect: 5 Double
On Error Resume Next
k = 4
k = a(9) + 1
WScript.Echo Err.Number & " " & k                               ' expect: 9 4
