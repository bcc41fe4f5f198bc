' The conversions to a number or a date, called as statements with their value thrown away: 458
' once the conversion itself succeeded, its own error before.
Sub Prova(testo)
  On Error Resume Next
  Execute testo
  WScript.Echo testo & ":", Err.Number
End Sub
Prova "Call CByte(1)"          ' expect: Call CByte(1): 458
Prova "Call CInt(-32768.5)"    ' expect: Call CInt(-32768.5): 458
Prova "Call CLng(1)"           ' expect: Call CLng(1): 458
Prova "Call CSng(1)"           ' expect: Call CSng(1): 458
Prova "Call CDbl(1)"           ' expect: Call CDbl(1): 458
Prova "Call CCur(""-1"")"      ' expect: Call CCur("-1"): 458
Prova "Call CDate(1)"          ' expect: Call CDate(1): 458
Prova "CDbl 2"                 ' expect: CDbl 2: 458
Prova "Call CByte(300)"        ' expect: Call CByte(300): 6
Prova "Call CInt(""x"")"       ' expect: Call CInt("x"): 13
Prova "Call CDate(Null)"       ' expect: Call CDate(Null): 94
Prova "Call CStr(1)"           ' expect: Call CStr(1): 0
Prova "Call CBool(1)"          ' expect: Call CBool(1): 0
Prova "Call Abs(-4)"           ' expect: Call Abs(-4): 0
Dim x
x = CByte(1) + CDate(1)
WScript.Echo x                 ' expect: 01/01/1900
Call CLng(5)                   ' expect runtime error 458
