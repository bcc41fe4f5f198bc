WScript.Echo TypeName(Date), TypeName(Time), TypeName(Now), TypeName(Timer)          ' expect: Date Date Date Single
WScript.Echo Date = Fix(Date), CDbl(Time) < 1, Timer >= 0 And Timer < 86400          ' expect: Vero Vero Vero
