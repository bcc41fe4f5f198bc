' uno
Rem due
x = 1 ' tre