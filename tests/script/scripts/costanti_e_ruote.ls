' archivio: reale
Option Explicit
' Scripts number the wheels 1..10, TU_ = TT_ = 11 for all wheels and NZ_ = 12 for the Nazionale.
Sub Main
  Dim id
  Scrivi BA_ & " " & VE_ & " " & TU_ & " " & TT_ & " " & NZ_
  Scrivi AMBATA_ & " " & CINQUINA_ & " " & EDET1_ & " " & EDET5_
  Scrivi TypeName(Nero_) & " " & Magenta_ & " " & TypeName(eu_) & " " & eu_
  id = EstrazioniArchivio()
  Scrivi DataEstrazione(id)
  Scrivi Estratto(id, NZ_, 1) & " " & Estratto(id, TU_, 1) & " " & SiglaRuota(NZ_)
End Sub
