' With no user to answer, asking is refused.
MsgBox "ciao"                                                                        ' expect runtime error 70
