x = Cos(Null)                                                                        ' expect runtime error 94
