Do
Loop
