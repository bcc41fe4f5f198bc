' Each interval counts the boundaries crossed, not whole periods.
WScript.Echo DateDiff("yyyy", #12/31/2019#, #1/1/2020#), DateDiff("m", #1/31/2020#, #2/1/2020#), DateDiff("d", #1/1/2020 23:00#, #1/2/2020 1:00#)   ' expect: 1 1 1
WScript.Echo DateDiff("h", #1/1/2020 10:59#, #1/1/2020 11:00#), DateDiff("n", #1/1/2020#, #1/1/2020 1:30#), DateDiff("s", #1/1/2020#, #1/1/2020 0:01#)   ' expect: 1 90 60
WScript.Echo DateDiff("d", #1/10/2020#, #1/1/2020#), DateDiff("w", #1/1/2020#, #1/20/2020#), DateDiff("q", #1/1/2020#, #12/31/2020#)   ' expect: -9 2 3
' 4 January 2020 was a Saturday: a week starting on Sunday begins the next day.
WScript.Echo DateDiff("ww", #1/4/2020#, #1/5/2020#), DateDiff("ww", #1/4/2020#, #1/5/2020#, vbMonday), TypeName(DateDiff("d", 1, 2))   ' expect: 1 0 Long
WScript.Echo IsNull(DateDiff("d", Null, Date)), DateDiff("d", "1/1/2020", "1/2/2020")   ' expect: Vero 31
