WScript.Echo UCase("perché è così"), LCase("ÀÉÌ Lotto")                              ' expect: PERCHÉ È COSÌ àéì lotto
WScript.Echo UCase(1.5), UCase(True), IsNull(LCase(Null))                            ' expect: 1,5 VERO Vero
