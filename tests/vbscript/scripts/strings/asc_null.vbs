x = Asc(Null)                                                                        ' expect runtime error 94
