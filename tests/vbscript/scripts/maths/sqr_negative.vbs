x = Sqr(-1)                                                                          ' expect runtime error 5
