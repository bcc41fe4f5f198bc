x = FormatPercent("molto")                                                           ' expect runtime error 13
