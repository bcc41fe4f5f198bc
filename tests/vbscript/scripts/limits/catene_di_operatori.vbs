' Long left-associative chains, as generated code writes them, compile and run whatever their
' length; they are built here at run time and handed to Eval and Execute.
Dim somma : somma = "1" & Replace(Space(40000), " ", " + 1")
WScript.Echo Eval(somma)                                   ' expect: 40001
ExecuteGlobal "Dim x : x = " & somma
WScript.Echo x                                             ' expect: 40001

' Operators of different precedence: each product is evaluated before it is added.
Dim misto : misto = "0" & Replace(Space(20000), " ", " + 2 * 3")
WScript.Echo Eval(misto)                                   ' expect: 120000
Dim potenze : potenze = "2" & Replace(Space(30000), " ", " ^ 1")
WScript.Echo Eval(potenze)                                 ' expect: 2
Dim concatenate : concatenate = """a""" & Replace(Space(30000), " ", " & ""b""")
WScript.Echo Len(Eval(concatenate))                        ' expect: 30001

' Left to right, as a short chain: "1" + 1 is 2, then & "x" gives "2x", - 1 is a type mismatch.
Dim ordine : ordine = """1""" & Replace(Space(20), " ", " + 1") & " & ""x"""
WScript.Echo Eval(ordine)                                  ' expect: 21x
On Error Resume Next
Dim errata : errata = "1" & Replace(Space(20000), " ", " + 1") & " - ""x""" & Replace(Space(100), " ", " + 1")
Dim r : r = Eval(errata)
WScript.Echo Err.Number                                    ' expect: 13
Err.Clear
Dim oggetti : oggetti = "Nothing Is Nothing" & Replace(Space(30), " ", " = True")
WScript.Echo Eval(oggetti)                                 ' expect: Vero
