WScript.Echo Escape("a b&c/é€"), Escape("A-z_0.9@*+")                                 ' expect: a%20b%26c/%E9%u20AC A-z_0.9@*+
WScript.Echo Unescape("a%20b%u20AC%zz%4"), Unescape(Escape("perché?"))               ' expect: a b€%zz%4 perché?
WScript.Echo IsNull(Escape(Null))                                                    ' expect: Vero
