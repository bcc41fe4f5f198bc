' archivio: reale
Option Explicit
' The first draw of Nazionale, 04/05/2005 (Nazionale 72 12 42 57 31, Roma 49 67 38 54 56), played
' for one colpo by bets placed after the draw before it. The tax was then 6%: an ambo on two numbers
' pays 250 gross, 235 net; the estratto determinato 55 gross, 51,70 net; an ambo on all the wheels
' is a tenth of a stake on each, so Roma's pays 25 gross, 23,50 net.
Sub Main
  Dim id, ambo(5), primo(6), estratto(1)
  id = DataEstrToIdEstr("04/05/2005")
  ambo(AMBO_) = 1
  primo(EDET1_) = 1
  estratto(AMBATA_) = 1
  ImpostaGiocata 1, Array(72, 12), Array(NZ_), ambo, 1
  ImpostaGiocata 2, Array(49), Array(RO_), primo, 1
  ImpostaGiocata 3, Array(90), Array(BA_), estratto, 1
  ImpostaGiocata 4, Array(38, 49), Array(TU_), ambo, 1
  Scrivi "vinta: " & Gioca(id - 1)
  Scrivi "spesa " & GetSpesa() & ", vinto netto " & GetVincita() & ", guadagno " & GetGuadagno()
  Scrivi "giocata 4: vinto netto " & GetVincita(4)
End Sub
