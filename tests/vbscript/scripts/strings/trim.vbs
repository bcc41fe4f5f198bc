WScript.Echo "[" & Trim("  a b  ") & "]", "[" & LTrim("  a ") & "]", "[" & RTrim(" a  ") & "]"   ' expect: [a b] [a ] [ a]
' Only spaces are trimmed.
WScript.Echo Len(Trim(vbTab & "a" & vbTab)), IsNull(Trim(Null))                      ' expect: 3 Vero
