' Ritardi e frequenze
' Mostra, su tutto l'archivio, il ritardo attuale, la frequenza e il ritardo massimo storico di
' alcuni numeri e di un ambo su una ruota, poi il numero più ritardato di ogni ruota.
' Il ritardo conta le estrazioni passate dall'ultima uscita; la frequenza quante volte è uscito;
' lo storico è il ritardo più lungo mai avuto.
' Per cambiarlo: scegli altri numeri in aNumeri, un altro ambo in aAmbo, un'altra ruota in ruota
' (BA_, CA_, FI_, GE_, MI_, NA_, PA_, RO_, TO_, VE_, NZ_ la Nazionale).
' Dal terminale: lottolab esegui 01_ritardi_frequenze.ls

Sub Main
  Dim ruota, aNumeri, aAmbo, n, r, fine
  ruota = BA_
  aNumeri = Array(17, 36, 90)
  aAmbo = Array(17, 36)
  fine = EstrazioniArchivio

  Scrivi "Archivio: " & fine & " estrazioni, l'ultima del " & DataEstrazione(fine)
  Scrivi
  Scrivi "Estratti su " & NomeRuota(ruota), True
  Scrivi "Numero  Ritardo  Frequenza  Storico"
  For Each n In aNumeri
    Scrivi FormatSpace(n, 6, True) & FormatSpace(EstrattoRitardo(ruota, n), 9, True) & _
           FormatSpace(EstrattoFrequenza(ruota, n), 11, True) & FormatSpace(EstrattoStorico(ruota, n), 9, True)
  Next

  ' Le funzioni Ambo... vogliono i due numeri separati.
  Scrivi
  Scrivi "Ambo " & StringaNumeri(aAmbo, "-") & " su " & NomeRuota(ruota), True
  Scrivi "ritardo " & AmboRitardo(ruota, aAmbo(0), aAmbo(1)) & _
         ", frequenza " & AmboFrequenza(ruota, aAmbo(0), aAmbo(1)) & _
         ", storico " & AmboStorico(ruota, aAmbo(0), aAmbo(1))
  ' RitardoCombinazione gioca l'ambo su più ruote insieme: vince quando esce su una qualsiasi.
  Scrivi "su tutte le ruote insieme: ritardo " & RitardoCombinazione(TT_, aAmbo, 2, fine)

  Scrivi
  Scrivi "Il più ritardato di ogni ruota", True
  For r = BA_ To VE_
    n = PiuRitardatario(r)
    Scrivi FormatSpace(NomeRuota(r), 10) & Format2(n) & "  ritardo " & EstrattoRitardo(r, n)
  Next
End Sub
