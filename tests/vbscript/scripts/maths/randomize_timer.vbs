Randomize
x = Rnd
WScript.Echo x >= 0 And x < 1, TypeName(x)                                           ' expect: Vero Single
