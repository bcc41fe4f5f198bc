WScript.Echo "[" & Space(3) & "]", "[" & Space(2.5) & "]", Len(Space(0))             ' expect: [   ] [  ] 0
WScript.Echo String(3, "xy"), String(2, 65), String(2, 321), IsNull(String(2, Null))   ' expect: xxx AA AA Vero
WScript.Echo String(2, 128) = ChrW(8364) & ChrW(8364)                                ' expect: Vero
x = String(0, "")                                                                    ' expect runtime error 5
