Sub Raddoppia(x)
  x = x * 2
End Sub
Sub PerValore(ByVal x)
  x = x * 2
End Sub
Dim a : a = 5
Raddoppia a
WScript.Echo a                                     ' expect: 10
Raddoppia (a)
WScript.Echo a                                     ' expect: 10
Call Raddoppia(a)
WScript.Echo a                                     ' expect: 20
PerValore a
WScript.Echo a                                     ' expect: 20
Function Riempi(arr)
  ReDim arr(2)
  arr(0) = "x" : arr(2) = "z"
  Riempi = UBound(arr)
End Function
Dim v
WScript.Echo Riempi(v), v(2)                       ' expect: 2 z
