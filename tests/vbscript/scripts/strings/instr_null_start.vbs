x = InStr(Null, "abc", "a")                                                          ' expect runtime error 94
