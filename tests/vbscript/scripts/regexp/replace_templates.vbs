Dim re
Set re = CreateObject("VBScript.RegExp")
re.Global = True
re.Pattern = "(\w+)@(\w+)"
WScript.Echo re.Replace("mario@casa luigi@ufficio", "$2:$1")   ' expect: casa:mario ufficio:luigi
WScript.Echo re.Replace("a@b", "[$&] [$$] [$3] [$0]")          ' expect: [a@b] [$] [$3] [$0]
re.Pattern = "b"
WScript.Echo re.Replace("abc", "<$`|$'>")          ' expect: a<a|c>c
re.Pattern = "(a)(b)(c)(d)(e)(f)(g)(h)(i)(j)(k)"
WScript.Echo re.Replace("abcdefghijk", "$11$10$1")   ' expect: kja
re.Pattern = "(a)"
WScript.Echo re.Replace("a", "$10")                ' expect: a0
re.Global = False
re.Pattern = "o"
WScript.Echo re.Replace("foo", "0")                ' expect: f0o
