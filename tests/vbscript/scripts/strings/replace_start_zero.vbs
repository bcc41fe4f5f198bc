x = Replace("abc", "a", "b", 0)                                                      ' expect runtime error 5
