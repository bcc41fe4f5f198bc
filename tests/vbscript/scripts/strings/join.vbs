WScript.Echo Join(Array(1, 2, 3)), Join(Array("a", "b"), ", "), "[" & Join(Array()) & "]"   ' expect: 1 2 3 a, b []
WScript.Echo Join(Split("3 5 8"), "-"), Join(Array(1.5, True), "|")                  ' expect: 3-5-8 1,5|Vero
Dim numbers(2)
numbers(0) = 90
WScript.Echo "[" & Join(numbers, ";") & "]"                                          ' expect: [90;;]
x = Join("abc")                                                                      ' expect runtime error 13
