' locale: en-US
Dim x
x = CInt("abc")                                    ' expect runtime error 13
