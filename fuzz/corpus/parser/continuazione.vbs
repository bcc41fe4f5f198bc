x = 1 + _
  2
Call F(1, _
 2)