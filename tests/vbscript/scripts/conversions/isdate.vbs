WScript.Echo IsDate("25/12/2020"), IsDate("31/02/2020"), IsDate("4"), IsDate(4)       ' expect: Vero Falso Falso Falso
WScript.Echo IsDate(Date), IsDate(Null), IsDate(Empty), IsDate("12 gennaio 2021"), IsDate("10:30")   ' expect: Vero Falso Falso Vero Vero
