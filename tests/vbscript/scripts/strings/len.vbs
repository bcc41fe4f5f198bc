WScript.Echo Len("lotto"), Len(12.5), IsNull(Len(Null)), Len(Empty), Len(True)       ' expect: 5 4 Vero 0 4
