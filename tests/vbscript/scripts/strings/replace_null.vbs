' Unlike most string functions, Replace does not pass Null through.
x = Replace(Null, "a", "b")                                                          ' expect runtime error 94
