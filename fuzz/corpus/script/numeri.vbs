a = CDbl("1,5")
b = Int(-2.5) + Fix(-2.5) + Round(2.5) + Abs(-3) + Sgn(-2)
c = Hex(255) & Oct(8)
d = FormatNumber(1234.5, 2)
e = 2 ^ 10 Mod 7 \ 2
f = CLng(2147483647)
