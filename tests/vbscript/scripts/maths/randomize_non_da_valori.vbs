' Randomize is a statement: asked for a value it is a type mismatch.
Randomize 1
WScript.Echo "seminato"                            ' expect: seminato
x = Randomize(0)                                   ' expect runtime error 13
