' Fogli di calcolo
' Scrive una cartella di lavoro .xlsx con il numero più ritardato di ogni ruota (primo foglio) e
' l'ultima estrazione (secondo foglio), nella cartella della pagina di output dello script
' (scriptOutput nella cartella di base, se non ne scegli un'altra), e la rilegge. Righe e colonne
' partono da 1; un valore può essere un numero, un testo, una data.
' I colori sono quelli della libreria (Rosso_, Blu_...) o RGB(r, g, b).
' Per cambiarlo: il nome del file in sFile, le colonne scritte nel ciclo, i formati di XlsScriviC.
' Dal terminale: lottolab esegui 09_fogli_calcolo.ls

Sub Main
  Dim sFile, r, n, riga, fine, k
  ' La cartella della pagina HTML di questa esecuzione.
  sFile = GetPathFileHtml
  sFile = Left(sFile, InStrRev(sFile, "/")) & "ritardatari.xlsx"
  fine = EstrazioniArchivio
  ' Un file che non c'è viene creato con un foglio, Foglio1.
  XlsApriFile sFile

  XlsScriviC 1, 1, "Ritardatari al " & DataEstrazione(fine), True, Bianco_, RGB(31, 78, 121), , XlsCenter
  XlsMerge 1, 1, 1, 3
  XlsScriviC 2, 1, "Ruota", True
  XlsScriviC 2, 2, "Numero", True
  XlsScriviC 2, 3, "Ritardo", True
  riga = 3
  For r = BA_ To VE_
    n = PiuRitardatario(r, fine)
    XlsScrivi riga, 1, NomeRuota(r)
    XlsScrivi riga, 2, n
    XlsScrivi riga, 3, EstrattoRitardo(r, n, 1, fine)
    riga = riga + 1
  Next
  XlsAutoFit

  ' Il secondo foglio diventa quello corrente.
  XlsAddFoglio "Estrazione"
  XlsScriviC 1, 1, CDate(DataEstrazione(fine)), True, , , "dd/mm/yyyy"
  For r = BA_ To VE_
    XlsScrivi r + 1, 1, SiglaRuota(r)
    For k = 1 To 5
      XlsScrivi r + 1, k + 1, Estratto(fine, r, k)
    Next
  Next

  ' Si legge da un foglio qualsiasi, per numero o per nome.
  Scrivi "Nel primo foglio, riga 3: " & XlsLeggiinFoglio(1, 3, 1) & " " & XlsLeggiinFoglio(1, 3, 2) & _
         " con ritardo " & XlsLeggiinFoglio(1, 3, 3)
  Scrivi "Nel foglio Estrazione, Venezia: " & XlsLeggiinFoglio("Estrazione", 11, 2) & " ..."
  ' Chiude salvando: il file è scritto tutto insieme.
  XlsChiudi
  Scrivi "Cartella di lavoro " & Mid(sFile, InStrRev(sFile, "/") + 1) & ": " & _
         Iif(FileEsistente(sFile), "scritta", "non scritta")
End Sub
