a = Chr(65) & ChrW(8364) & Asc("a") & AscW("€")
b = String(5, "x") & Space(3) & StrReverse("abc")
c = StrComp("a", "B", 1)
