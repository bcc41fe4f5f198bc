x = MonthName(1, Null)                                                               ' expect runtime error 94
