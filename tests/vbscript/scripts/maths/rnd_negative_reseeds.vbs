' A negative argument starts the sequence that belongs to it, whatever came before.
x = Rnd
WScript.Echo Rnd(-1), Rnd(-1), Rnd                                                   ' expect: 0,224007 0,224007 0,03584582
WScript.Echo Rnd(-5)                                                                 ' expect: 0,8383257
