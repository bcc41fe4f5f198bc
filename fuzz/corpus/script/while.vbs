i = 0
While i < 5
 i = i + 1
Wend
