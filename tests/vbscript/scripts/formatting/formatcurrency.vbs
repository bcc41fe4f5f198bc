WScript.Echo FormatCurrency(1234.5), FormatCurrency(-2), FormatCurrency(-2, , , -1)   ' expect: € 1.234,50 -€ 2,00 (€ 2,00)
WScript.Echo FormatCurrency(CCur(0.125), 2), FormatCurrency(1234.5, 0, , , 0)        ' expect: € 0,13 € 1235
