' A statement that names no procedure and no variable calls a procedure that does not exist.
Dim x : x = 1
Nessuna                                                         ' expect runtime error 13
