x = ChrW(65536)                                                                      ' expect runtime error 5
