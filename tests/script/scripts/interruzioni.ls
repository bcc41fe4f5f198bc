Option Explicit
' Interruption records: a record with the same first two values is updated, any other is added;
' wrong values are reported with the function's name and the script goes on.
Sub Main
  ImpostaInterruzioni 1, 2, 3
  ImpostaInterruzioni 1, 2, 4
  ImpostaInterruzioni 5, 6, 7
  ImpostaInterruzioni 1, 2, 70000
  Scrivi "fine"
End Sub
