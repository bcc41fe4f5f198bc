Function Doppio(tutto, numero, posizione, testo)
  Doppio = "[" & (numero * 2) & "@" & posizione & "]"
End Function
Dim re
Set re = CreateObject("VBScript.RegExp")
re.Pattern = "(\d+)"
re.Global = True
WScript.Echo re.Replace("a1 b20", GetRef("Doppio"))   ' expect: a[2@1] b[40@4]
