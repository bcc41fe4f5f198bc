WScript.Echo StrReverse("lotto"), StrReverse(123), "[" & StrReverse("") & "]"         ' expect: ottol 321 []
x = StrReverse(Null)                                                                 ' expect runtime error 94
