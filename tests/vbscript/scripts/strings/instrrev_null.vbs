' Unlike InStr, InStrRev does not pass Null through.
x = InStrRev(Null, "a")                                                              ' expect runtime error 94
