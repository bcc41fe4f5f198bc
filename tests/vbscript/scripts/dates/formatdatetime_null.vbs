' A Null date is a type mismatch here, not an invalid use of Null.
x = FormatDateTime(Null)                                                             ' expect runtime error 13
