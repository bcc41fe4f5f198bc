' archivio: reale
Option Explicit
' Real delays over the whole archive of 7,318 draws (07/01/1939 - 30/05/2026).
Sub Main
  Dim ultima, id
  ultima = EstrazioniArchivio()
  Scrivi "estrazioni: " & ultima
  ' The number drawn first on Bari in the last draw has delay 0 there.
  Scrivi "ritardo di 87 su Bari: " & EstrattoRitardo(BA_, 87)
  ' 53 on Venezia had delay 182 in the draw before 09/02/2005.
  id = DataEstrToIdEstr("09/02/2005")
  Scrivi "53 su Venezia prima del " & DataEstrazione(id) & ": " & EstrattoRitardo(VE_, 53, 1, id - 1)
End Sub
