x = FormatCurrency(1000, Null)                                                       ' expect runtime error 94
