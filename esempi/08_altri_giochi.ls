' Altri giochi: SuperEnalotto e 10eLotto
' Ogni funzione del Lotto ha la sua forma per gli altri giochi, con lo stesso nome e la sigla in
' fondo (SE SuperEnalotto, DL 10eLotto, WF Win for Life, FT archivio generico) e senza la ruota:
' EstrattoRitardoDL(Numero) come EstrattoRitardo(Ruota, Numero). Contano solo i numeri principali:
' Jolly, SuperStar e Numero Oro hanno funzioni loro. L'archivio del SuperEnalotto si riempie con
' lottolab --gioco SE importa FILE; il 10eLotto serale, senza un archivio suo, viene dal Lotto.
' Per cambiarlo: altri numeri in aSE e aDL, quanti ritardatari mostrare in quanti.
' Dal terminale: lottolab esegui 08_altri_giochi.ls

' I quanti numeri più ritardati di un elenco di ritardi aRit(1..massimo), in ordine.
Function PiuRitardati(aRit, massimo, quanti)
  Dim testo, k, n, migliore
  For k = 1 To quanti
    migliore = 1
    For n = 2 To massimo
      If aRit(n) > aRit(migliore) Then migliore = n
    Next
    testo = testo & Format2(migliore) & " (" & aRit(migliore) & ") "
    aRit(migliore) = -1
  Next
  PiuRitardati = RTrim(testo)
End Function

Sub Main
  Dim aSE, aDL, aRit, ultima, n

  ultima = EstrazioniArchivioSE
  Scrivi "SuperEnalotto: " & ultima & " concorsi", True
  ScriviEstrazioneSE ultima
  ElencoRitardiSE aRit
  Scrivi "Più ritardati: " & PiuRitardati(aRit, 90, 5)
  aSE = Array(7, 21, 45)
  Scrivi "Ambo " & aSE(0) & "-" & aSE(1) & ": ritardo " & AmboRitardoSE(aSE(0), aSE(1)) & _
         ", frequenza " & AmboFrequenzaSE(aSE(0), aSE(1))
  Scrivi "Terno " & StringaNumeri(aSE) & ": ritardo " & RitardoCombinazioneSE(aSE, TERNO_, ultima)

  ultima = EstrazioniArchivioDL
  Scrivi
  Scrivi "10eLotto serale: " & ultima & " estrazioni", True
  ScriviEstrazioneDL ultima
  Scrivi "Il Numero Oro da solo: " & NumeroOroDL(ultima)
  ElencoRitardiDL aRit
  Scrivi "Più ritardati: " & PiuRitardati(aRit, 90, 5)
  aDL = Array(5, 18, 33, 60, 77)
  For Each n In aDL
    Scrivi Format2(n) & ": ritardo " & EstrattoRitardoDL(n) & ", frequenza " & EstrattoFrequenzaDL(n)
  Next
End Sub
