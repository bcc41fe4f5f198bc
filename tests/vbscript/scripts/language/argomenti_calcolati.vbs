' Arguments that are operations or calls reach the parameters as values, even ByRef ones.
Sub Cambia(x) : x = 99 : End Sub
Sub Aggiungi(x, y) : x = x + y : End Sub
Function Somma(a, b) : Somma = a + b : End Function
Function Fib(n)
  If n < 2 Then Fib = n Else Fib = Fib(n - 1) + Fib(n - 2)
End Function
Dim a, r
a = 1 : Cambia a + 1 : WScript.Echo a                          ' expect: 1
Cambia (a) : WScript.Echo a                                    ' expect: 1
a = 1 : Aggiungi a, a * 10 : WScript.Echo a                    ' expect: 11
WScript.Echo Somma(a + 1, Somma(2, Len("abc")))                ' expect: 17
WScript.Echo Fib(20), Fib(1.5 + 1)                             ' expect: 6765 2
WScript.Echo TypeName(Somma(CInt(1), 1)), Somma("2" & "", 1)   ' expect: Integer 3

' An error in an argument or in the call leaves the stack as it was: the next calls run.
Function Dividi(n) : Dividi = 10 / n : End Function
Function Giu(n) : Giu = Giu(n + 1) : End Function
On Error Resume Next
r = Dividi(1 - 1) : WScript.Echo Err.Number, IsEmpty(r)        ' expect: 11 Vero
Err.Clear
r = Dividi(1 / 0) : WScript.Echo Err.Number, IsEmpty(r)        ' expect: 11 Vero
Err.Clear
r = Giu(1 + 0) : WScript.Echo Err.Number, IsEmpty(r)           ' expect: 28 Vero
Err.Clear
WScript.Echo Dividi(1 + 1), Fib(10)                            ' expect: 5 55
On Error GoTo 0

' The callee's objects end with its frame.
Class Traccia
  Private Sub Class_Terminate() : WScript.Echo "fine" : End Sub
End Class
Function Crea(n)
  Dim o : Set o = New Traccia
  Crea = n * 2
End Function
r = Crea(1 + 1)                                                ' expect: fine
WScript.Echo r                                                 ' expect: 4
