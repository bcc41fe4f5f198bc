WScript.Echo Hex(255), Hex(&HDEADBEEF), Hex(Empty), Hex("17"), TypeName(Hex(1))        ' expect: FF DEADBEEF 0 11 String
' Integers print 16 bits, Longs 32: the literal -32768 is a Long.
WScript.Echo Hex(-1), Hex(CLng(-1)), Hex(-32768), Hex(CInt(-32768)), Hex(True)        ' expect: FFFF FFFFFFFF FFFF8000 8000 FFFF
WScript.Echo Hex(228.5), Hex(229.5), Hex(-2147483647.5)                                ' expect: E4 E6 80000000
WScript.Echo Oct(8), Oct(-1), Oct(-32768), Oct(9.5), IsNull(Oct(Null))                ' expect: 10 177777 37777700000 12 Vero
