' A string or array too large to build is error 7, which On Error Resume Next traps; nothing is
' allocated first, and the script goes on.
On Error Resume Next
Dim s : s = String(100000, "a")
Dim t : t = Replace(s, "a", s)
WScript.Echo Err.Number, IsEmpty(t)                        ' expect: 7 Vero
Err.Clear
t = Replace(String(1000000, "a"), "a", String(3000, "b"))
WScript.Echo Err.Number                                    ' expect: 7
Err.Clear
t = String(&H7FFFFFFF, "a")
WScript.Echo Err.Number                                    ' expect: 7
Err.Clear
t = Space(&H7FFFFFFF)
WScript.Echo Err.Number                                    ' expect: 7
Err.Clear
Dim a
ReDim a(&H7FFFFFFF)
WScript.Echo Err.Number                                    ' expect: 7
Err.Clear
ReDim a(100000, 100000)
WScript.Echo Err.Number                                    ' expect: 7
Err.Clear
' Replace still builds what fits, counting from the start it is given.
WScript.Echo Replace("abcabc", "b", "XY", 2)               ' expect: XYcaXYc
WScript.Echo Len(Replace(String(1000, "a"), "a", "bb"))    ' expect: 2000
