' locale: en-US
WScript.Echo FormatNumber(1234.5), FormatNumber(-0.5, 1, 0), FormatPercent(0.1234)   ' expect: 1,234.50 -.5 12.34%
WScript.Echo FormatCurrency(1234.5), FormatCurrency(-1234.5), FormatCurrency(-1, , , 0)   ' expect: $1,234.50 ($1,234.50) -$1.00
