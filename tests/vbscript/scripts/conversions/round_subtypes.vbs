WScript.Echo TypeName(Round(3)), TypeName(Round(3.3)), TypeName(Round("2")), TypeName(Round(True)), Round(True)   ' expect: Integer Double Double Boolean Vero
WScript.Echo TypeName(Round(CCur(1.25), 1)), Round(CCur(1.25), 1), Round(CCur(1.35), 1), Round(CCur(-1.25), 1)   ' expect: Currency 1,2 1,4 -1,2
WScript.Echo TypeName(Round(CSng(2.5))), Round(CSng(2.5)), TypeName(Round(Empty)), IsNull(Round(Null))   ' expect: Single 2 Integer Vero
