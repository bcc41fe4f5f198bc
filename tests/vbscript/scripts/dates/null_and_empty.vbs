' The parts of a date pass Null through; Empty is day zero, 30 December 1899 at midnight.
WScript.Echo TypeName(Year(Null)), TypeName(Month(Null)), TypeName(Day(Null)), TypeName(Weekday(Null)), TypeName(Hour(Null)), TypeName(Minute(Null)), TypeName(Second(Null))   ' expect: Null Null Null Null Null Null Null
WScript.Echo TypeName(TimeValue(Null)), TypeName(DateAdd("d", 1, Null)), TypeName(Weekday(Null, vbMonday))   ' expect: Null Null Null
WScript.Echo Year(Empty), Month(Empty), Day(Empty), Hour(Empty), Minute(Empty), Second(Empty), Weekday(Empty)   ' expect: 1899 12 30 0 0 0 7
WScript.Echo DateSerial(Empty, Empty, Empty), TimeSerial(Empty, Empty, Empty), DatePart("d", Empty), DateDiff("d", Empty, Empty)   ' expect: 30/11/1999 00:00:00 30 0
' An omitted first day of the week is Sunday.
WScript.Echo Weekday(DateSerial(2000, 1, 1)), Weekday(DateSerial(2000, 1, 1), vbMonday)   ' expect: 7 6
On Error Resume Next
x = DateAdd("d", Null, Now): WScript.Echo Err.Number: Err.Clear          ' expect: 94
x = Weekday(Now, Null): WScript.Echo Err.Number: Err.Clear               ' expect: 94
