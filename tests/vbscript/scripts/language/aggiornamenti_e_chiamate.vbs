' Counters and sums updated in place follow the same rules as any other arithmetic.
Dim n, s, d, t, i, c, x, y
n = CInt(32766) : n = n + 1 : WScript.Echo TypeName(n), n      ' expect: Integer 32767
n = n + 1 : WScript.Echo TypeName(n), n                         ' expect: Long 32768
n = 2147483647 : n = n + 1 : WScript.Echo TypeName(n)           ' expect: Double
n = -2147483647 : n = n - 2 : WScript.Echo TypeName(n)          ' expect: Double
n = Empty : n = n + 1 : WScript.Echo TypeName(n), n             ' expect: Integer 1
s = "4" : s = s * 2 : WScript.Echo TypeName(s), s               ' expect: Double 8
s = "a" : s = s + "b" : WScript.Echo s                          ' expect: ab
t = Null : t = t + 1 : WScript.Echo IsNull(t)                   ' expect: Vero
d = 1.5 : d = d * 2 : d = d - 0.5 : WScript.Echo TypeName(d), d ' expect: Double 2,5
n = 7 : WScript.Echo n * 2 = 14, n < 7.5, TypeName(n * 2)       ' expect: Vero Vero Integer

' The variable's value is taken before the right side runs.
Function Cambia() : s = 100 : Cambia = 1 : End Function
s = 5 : s = s + Cambia() : WScript.Echo s                      ' expect: 6
s = 5 : x = s + Cambia() : WScript.Echo x                      ' expect: 6

' A counter that outgrows Integer becomes Long.
c = 0
For i = 1 To 40000 : c = c + 1 : Next
WScript.Echo TypeName(i), i, c                                  ' expect: Long 40001 40000

' Plain variables and constants passed straight into the parameters.
Sub Raddoppia(a, ByVal b) : a = a * 2 : b = b * 2 : End Sub
x = 3 : y = 4 : Raddoppia x, y : WScript.Echo x, y              ' expect: 6 4
Raddoppia 5, y : WScript.Echo y                                 ' expect: 4
Function Conta(k) : If k = 0 Then Conta = 0 Else Conta = 1 + Conta(k - 1)
End Function
WScript.Echo Conta(500)                                         ' expect: 500

d = 1E308 : d = d * 10                                          ' expect runtime error 6
