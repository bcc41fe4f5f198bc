x = Left("abc", Null)                                                                ' expect runtime error 94
