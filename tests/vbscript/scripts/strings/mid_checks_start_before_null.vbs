x = Mid(Null, 0)                                                                     ' expect runtime error 5
