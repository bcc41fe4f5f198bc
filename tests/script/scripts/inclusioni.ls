Option Explicit
includi Somme.ls                         ' from Script/Funzioni
Includi "GetDirectoryAppData\Saluti.ls"  ' from the application data folder

Sub Main
  Scrivi Somma(2, 3)
  Scrivi Saluto("Lotto")
End Sub
