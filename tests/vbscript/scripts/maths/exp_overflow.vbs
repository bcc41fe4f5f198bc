x = Exp(1000)                                                                        ' expect runtime error 6
