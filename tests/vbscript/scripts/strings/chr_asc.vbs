WScript.Echo Chr(65), Asc("A"), Asc("abc"), Asc(3), TypeName(Asc("A"))               ' expect: A 65 97 51 Integer
' Chr and Asc use Windows-1252: 128 is the euro sign.
WScript.Echo AscW(Chr(128)), Asc(ChrW(8364)), Chr(233), Asc("é")                    ' expect: 8364 128 é 233
WScript.Echo Chr(65.5), AscW(ChrW(-1)), ChrW(65535) = ChrW(-1), AscW("€")            ' expect: B -1 Vero 8364
x = Chr(256)                                                                         ' expect runtime error 5
