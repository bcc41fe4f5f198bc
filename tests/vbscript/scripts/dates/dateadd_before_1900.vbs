' Before 30 December 1899 the days count backwards but the hours still forwards.
WScript.Echo DateAdd("h", 6, #12/29/1899#), DateAdd("h", -6, #12/30/1899#), DateAdd("d", -2, #12/31/1899 12:00#)   ' expect: 29/12/1899 06:00:00 29/12/1899 18:00:00 29/12/1899 12:00:00
x = DateAdd("yyyy", 1, #12/31/9999#)                                                 ' expect runtime error 5
