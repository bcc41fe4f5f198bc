x = Weekday(Null, 8)                                                                 ' expect runtime error 5
