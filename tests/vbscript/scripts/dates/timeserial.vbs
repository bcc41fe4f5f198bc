WScript.Echo TimeSerial(10, 2, 1), TimeSerial(10, 60, 2), TimeSerial(10, 0, -1), TypeName(TimeSerial(0, 0, 0))   ' expect: 10:02:01 11:00:02 09:59:59 Date
' Beyond 24 hours the time carries into the days after 30 December 1899.
WScript.Echo TimeSerial(25, 2, 1), CDbl(TimeSerial(48, 0, 0))                        ' expect: 31/12/1899 01:02:01 2
