' Giocate e resoconto: una prova sul passato
' Per ognuna delle ultime estrazioni fa una previsione (i due numeri più ritardati di una ruota),
' la gioca per ambata e per ambo nei colpi seguenti e alla fine scrive il conto estrazione per
' estrazione (ScriviResoconto) e il riepilogo (Output). Le giocate si sovrappongono nel tempo:
' il resoconto le somma.
' Per cambiarlo: la ruota, quante estrazioni provare (prove), i colpi, le poste (aPoste(1) è
' l'ambata, aPoste(2) l'ambo, fino a 5 la cinquina; in euro su tutte le ruote giocate), o la
' previsione stessa in Previsione.
' Dal terminale: lottolab esegui 06_giocate_resoconto.ls

' I numeri da giocare dopo l'estrazione idEstr: i due più ritardati della ruota in quel momento.
Function Previsione(ruota, idEstr)
  Dim aRet
  PiuRitardatari ruota, 2, aRet, idEstr
  Previsione = Array(aRet(1), aRet(2))
End Function

Sub Main
  Dim ruota, prove, colpi, aPoste(2), idEstr, primo
  ruota = RO_
  prove = 10
  colpi = 3
  aPoste(1) = 1
  aPoste(2) = 0.5
  ' Si gioca fino a colpi estrazioni dopo l'ultima prova, così ogni giocata è conclusa.
  primo = EstrazioniArchivio - colpi - prove + 1

  For idEstr = primo To primo + prove - 1
    ImpostaGiocata 1, Previsione(ruota, idEstr), Array(ruota), aPoste, colpi
    ' Gioca scrive una riga per giocata: con False la lasciamo al resoconto.
    Gioca idEstr, False
  Next

  Scrivi "Resoconto", True
  ScriviResoconto
  Scrivi
  Output "Previsioni sui ritardatari di " & NomeRuota(ruota)
  Scrivi "Spesa " & FormatNumber(GetSpesa, 2) & ", vinto " & FormatNumber(GetVincita, 2) & _
         ", saldo " & FormatNumber(GetGuadagno, 2) & " euro"
End Sub
