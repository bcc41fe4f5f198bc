WScript.Echo FormatPercent(0.1234), FormatPercent(0.5, 0), FormatPercent(-0.015, 1), FormatPercent(12)   ' expect: 12,34% 50% -1,5% 1.200,00%
WScript.Echo FormatPercent(0.145, 0), FormatPercent(-0.5, 0, , -1)                   ' expect: 15% (50%)
