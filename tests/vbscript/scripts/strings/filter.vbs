a = Filter(Array("Roma", "Bari", "Torino"), "r")
WScript.Echo UBound(a), Join(a)                                                      ' expect: 1 Bari Torino
WScript.Echo Join(Filter(Array("Roma", "Bari", "Torino"), "r", True, vbTextCompare))   ' expect: Roma Bari Torino
WScript.Echo Join(Filter(Array("Roma", "Bari", "Torino"), "r", False))               ' expect: Roma
WScript.Echo UBound(Filter(Array("a"), "z")), Join(Filter(Array(10, 21, 30), 1))     ' expect: -1 10 21
x = Filter("Roma", "r")                                                              ' expect runtime error 13
