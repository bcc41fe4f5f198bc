' Only binary (0) and text (1) comparisons exist.
x = InStr(1, "abc", "a", vbDatabaseCompare)                                          ' expect runtime error 5
