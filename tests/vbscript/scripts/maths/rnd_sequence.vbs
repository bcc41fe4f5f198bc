' Without Randomize every run draws Windows' sequence from seed 327680; Rnd(0) repeats the last.
WScript.Echo Rnd(0)                                                                  ' expect: 0,01953125
WScript.Echo Rnd, Rnd(), Rnd(5)                                                      ' expect: 0,7055475 0,533424 0,5795186
WScript.Echo Rnd(0), Rnd(0), TypeName(Rnd)                                           ' expect: 0,5795186 0,5795186 Single
