x = Log(0)                                                                           ' expect runtime error 5
