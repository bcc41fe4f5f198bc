x = Join(Array("a", Null))                                                           ' expect runtime error 94
