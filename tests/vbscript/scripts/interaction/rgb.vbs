WScript.Echo RGB(255, 0, 0), RGB(0, 0, 255), RGB(1, 256, 300), RGB(0.5, 1.5, 0), TypeName(RGB(1, 2, 3))   ' expect: 255 16711680 16776961 512 Long
x = RGB(-1, 0, 0)                                                                    ' expect runtime error 5
