d = #12/25/2020 14:05:09#
WScript.Echo FormatDateTime(d), FormatDateTime(d, vbLongDate)                        ' expect: 25/12/2020 14:05:09 venerdì 25 dicembre 2020
WScript.Echo FormatDateTime(d, vbShortDate), FormatDateTime(d, vbLongTime), FormatDateTime(d, vbShortTime)   ' expect: 25/12/2020 14:05:09 14:05
WScript.Echo FormatDateTime("1/2/2003"), FormatDateTime(0.5), TypeName(FormatDateTime(0))   ' expect: 01/02/2003 12:00:00 String
x = FormatDateTime(d, 5)                                                             ' expect runtime error 5
