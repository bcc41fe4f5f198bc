WScript.Echo Fix(-2.5), Int(-2.5), Fix(2.7), Int(2.7), Int(-0.5)                     ' expect: -2 -3 2 2 -1
' Both keep the subtype; a string becomes a Double, a Boolean an Integer.
WScript.Echo TypeName(Int(CCur(-0.99))), Int(CCur(-0.99)), Fix(CCur(-0.99)), TypeName(Fix("1,5"))   ' expect: Currency -1 0 Double
WScript.Echo TypeName(Int(True)), Int(True), TypeName(Fix(CSng(1.5))), TypeName(Int(Empty)), IsNull(Fix(Null))   ' expect: Integer -1 Single Integer Vero
WScript.Echo Int(#1/2/2003 18:00#), TypeName(Fix(#1/2/2003 18:00#))                   ' expect: 02/01/2003 Date
