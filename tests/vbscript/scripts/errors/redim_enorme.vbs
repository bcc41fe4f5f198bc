Dim a
ReDim a(2000000000)                                ' expect runtime error 7
