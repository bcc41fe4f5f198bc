x = Oct("otto")                                                                      ' expect runtime error 13
