x = DateDiff("s", #1/1/100#, #12/31/9999#)                                           ' expect runtime error 6
