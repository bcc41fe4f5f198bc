' Randomize mixes its number into the current seed: the same number gives the same numbers only
' from the same state, which Rnd(-1) restores.
Rnd -1
Randomize 123
x = Rnd
WScript.Echo x                                                                       ' expect: 0,7972899
Randomize 123
WScript.Echo x = Rnd                                                                 ' expect: Falso
Rnd -1
Randomize 123
WScript.Echo x = Rnd                                                                 ' expect: Vero
