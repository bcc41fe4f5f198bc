' archivio: reale
Option Explicit
' Ranking by delay, delays on one position, formations and relative delays over the whole real
' archive of 7,318 draws (07/01/1939 - 30/05/2026), each figure counted apart from the draws.
Sub Main
  Dim a, i, riga, rit, ritmax, incr, freq, ultima, id
  ultima = EstrazioniArchivio()
  Scrivi "il piu' ritardatario su Bari: " & PiuRitardatario(BA_) & " (Turbo " & PiuRitardatarioTurbo(BA_) & ")"
  ElencoRitardi BA_, a
  Scrivi "il suo ritardo: " & a(PiuRitardatario(BA_))
  PiuRitardatari TU_, 5, a
  riga = ""
  For i = 1 To 5
    riga = riga & " " & a(i)
  Next
  Scrivi "i cinque piu' ritardatari su tutte le ruote:" & riga
  Scrivi "53 su Venezia e' al posto " & PosNumeroRit(VE_, 53) & ", al posto 10 c'e' " & NumeroPosRit(VE_, 10)
  Scrivi "ritardo di 7 come primo estratto su Napoli: " & RitPos(NA_, 7, 1)
  GetRitardoEstratti ultima, RO_, a
  Scrivi "ritardi degli estratti di Roma nell'ultima estrazione: " & a(1) & " " & a(2) & " " & a(3) & " " & a(4) & " " & a(5)
  id = AddItemFormazioneMultipla(Array(1, 2, 3))
  StatisticaFormazione GetElementiFormazione(id), Array(BA_, CA_), AMBO_, rit, ritmax, incr, freq
  Scrivi "1-2-3 per ambo su Bari e Cagliari: ritardo " & rit & ", massimo " & ritmax & ", incremento " & incr & ", frequenza " & freq
  Scrivi "eventi del gruppo: " & InitCalcoloRitRel(Array(BA_, NA_, NZ_), Array(3, 17, 28, 44, 59, 61, 72, 86, 90), AMBO_)
  Scrivi "3-17: " & GetRitRel(Array(3, 17)) & " su " & GetRitRelMax(Array(3, 17))
  Scrivi "44-90: " & GetRitRel(Array(44, 90)) & " su " & GetRitRelMax(Array(44, 90))
  Scrivi "59-61: " & GetRitRel(Array(59, 61)) & " su " & GetRitRelMax(Array(59, 61))
  AddNumeriToGruppoStatistico Array(45, 88)
  AddItemFormazione AddItemFormazione(0, 10), 20
  StatisticaGruppoFormazioni Array(BA_, NZ_), AMBATA_, 7000
End Sub
