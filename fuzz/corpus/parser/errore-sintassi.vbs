If x Then
 y = 1
