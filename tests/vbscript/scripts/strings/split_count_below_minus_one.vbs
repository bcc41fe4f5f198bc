a = Split("a,b", ",", -2)                                                            ' expect runtime error 5
