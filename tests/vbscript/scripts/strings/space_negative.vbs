x = Space(-1)                                                                        ' expect runtime error 5
