Function Raddoppia(x)
  Raddoppia = x * 2
End Function
