' archivio: reale
Option Explicit
' Forecasts saved into the archive of forecasts beside the agenda: each gets the next number, and a
' refused argument saves nothing and leaves the script going.
Sub Main
  Scrivi "prima: " & SalvaPrevisione(Array(17, 45), Array(BA_, NZ_), 9, 7000, "ambo su Bari e Nazionale")
  Scrivi "seconda: " & SalvaPrevisione(Array(93), Array(TT_), 18)
  Scrivi "[" & SalvaPrevisione(Array(5, 5), Array(BA_), 3) & "]"
  Scrivi "[" & SalvaPrevisione(Array(5), Array(BA_), 0) & "]"
  Scrivi "[" & SalvaPrevisione(Array(5), Array(BA_), 3, 99999) & "]"
  Scrivi "[" & SalvaPrevisione(Array(5), Array(13), 3) & "]"
  Scrivi "[" & SalvaPrevisione(Array(5), Array(BA_), 3, 1, String(2001, "x")) & "]"
  Scrivi "terza: " & SalvaPrevisione(Array(1, 2, 3), Array(VE_), 1, 1)
  Scrivi "archivio: " & FileEsistente(GetDirectoryAppData & "Previsioni.db")
End Sub
