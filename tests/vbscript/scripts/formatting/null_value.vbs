' A Null number is a type mismatch here, not an invalid use of Null.
x = FormatNumber(Null)                                                               ' expect runtime error 13
