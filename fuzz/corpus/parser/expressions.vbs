x = -3^2 + 2^-1 * 4 / 5 \ 6 Mod 7 - &HFFFF + &O17 + &17& + 1.5E-3 + .5 + 10.
y = a & b = c Is Nothing Or Not d And e Xor f Eqv g Imp h
z = (a <> b) >= (c =< d) > e < f <= g
w = f(a, , c).d(1)(2).e
v = [bracketed name] + Me.Class.Step.Property + #2003-01-02# + #10:30#
