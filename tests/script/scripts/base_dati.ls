' archivio: reale
Option Explicit
' A script builds an archive file of chosen draws and studies it in place of the configured one.
Sub Main
  Dim file, ultima
  file = GetDirectoryAppData() & "scelte.dat"
  ultima = EstrazioniArchivio()
  Scrivi SalvaEstrazione(file, 1) & " " & SalvaEstrazione(file, 2) & " " & SalvaEstrazione(file, ultima)
  Scrivi SalvaEstrazione(file, 3, 2)
  Scrivi SalvaEstrazione(file, 3, 9)
  Scrivi ApriFileBaseDati(file) & " = " & EstrazioniArchivio()
  Scrivi DataEstrazione(1) & " " & DataEstrazione(2) & " " & DataEstrazione(3) & " " & Estratto(3, BA_, 1)
  Scrivi EstrattoRitardo(BA_, Estratto(3, BA_, 1), 1, 3)
  Scrivi ApriFileBaseDati(GetDirectoryAppData() & "manca.dat")
  Scrivi EstrazioniArchivio()
  On Error Resume Next
  Scrivi SalvaEstrazione(file, ultima + 1)
  Scrivi "fuori: " & Err.Number
End Sub
