' archivio: reale
Option Explicit
' Figures of the whole real archive, the expected ones counted apart from the program over the
' results file, draws held over two days joined as the import joins them.
Sub Main
  Scrivi "53 su Venezia: frequenza " & EstrattoFrequenza(VE_, 53) & ", storico " & EstrattoStorico(VE_, 53) & _
    ", incremento " & EstrattoIncrStorico(VE_, 53)
  Scrivi "90 su tutte le ruote: frequenza " & EstrattoFrequenza(TU_, 90) & ", Turbo " & EstrattoFrequenzaTurbo(TU_, 90) & _
    ", storico " & EstrattoStoricoTurbo(TU_, 90)
  Dim rit, massimo, incr, freq
  StatAmbo BA_, 1, 90, , , rit, massimo, incr, freq
  Scrivi "ambo 1-90 su Bari: ritardo " & rit & ", storico " & massimo & ", frequenza " & freq & _
    ", storico Turbo " & AmboStoricoTurbo(BA_, 1, 90)
  Dim ruote, numeri
  ruote = Array(NA_, RO_)
  numeri = Array(1, 2, 3)
  Scrivi "1 2 3 per ambo su Napoli e Roma: ritardo " & SerieRitardo(ruote, numeri, AMBO_) & _
    ", frequenza " & SerieFreqTurbo(ruote, numeri, AMBO_) & ", storico " & SerieStorico(ruote, numeri, AMBO_)
  Scrivi "  prima vincita il " & DataEstrazione(SeriePrima(ruote, numeri, AMBO_)) & _
    ", ultima il " & DataEstrazione(SerieUltima(ruote, numeri, AMBO_)) & _
    ", storico raggiunto il " & DataEstrazione(SerieEstrazioneStorico(ruote, numeri, AMBO_))
End Sub
