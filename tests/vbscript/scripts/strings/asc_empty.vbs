x = Asc("")                                                                          ' expect runtime error 5
