' archivio: reale
Option Explicit
' The draws that open and close a period given by dates, and the last draw of each month.
Sub Main
  Dim ini, fin, id, mesi
  ini = EstrazioneIni("01/01/2020")
  fin = EstrazioneFin("31/12/2020")
  Scrivi ini & " " & DataEstrazione(ini) & " - " & fin & " " & DataEstrazione(fin)
  Scrivi EstrazioneIni("02/01/2020") = EstrazioneIni("03/01/2020")
  Scrivi EstrazioneIni("01/01/2099") & " " & EstrazioneFin("01/01/1900")
  Scrivi EstrazioneFin(DataEstrazione(ini)) = ini
  mesi = 0
  For id = ini To fin
    If IsUltimaDelMese(id) Then mesi = mesi + 1
  Next
  Scrivi "mesi del 2020 chiusi: " & mesi
  Scrivi IsUltimaDelMese(EstrazioniArchivio())
  Scrivi EstrazioneIni("31/02/2020")
  On Error Resume Next
  Scrivi IsUltimaDelMese(0)
  Scrivi "IdEstr 0: " & Err.Number
End Sub
