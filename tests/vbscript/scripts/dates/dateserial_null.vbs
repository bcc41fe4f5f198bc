x = DateSerial(2020, Null, 1)                                                        ' expect runtime error 94
