x = Hex(2147483647.5)                                                                ' expect runtime error 6
