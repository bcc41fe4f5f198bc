' Tabelle di output
' Costruisce due tabelle: i dieci numeri più ritardati di una ruota, con la cella del ritardo
' colorata quando si avvicina al massimo storico, e l'ultima estrazione di ogni ruota.
' Una tabella si avvia con i titoli (InitTabella), si riempie riga per riga (AddRigaTabella,
' SetColoreCella colora una cella dell'ultima riga) e si scrive con CreaTabella: colonne allineate
' nell'output di testo, una tabella nella pagina HTML. CreaTabellaOrdinabile fa ordinare le righe
' con un clic sul titolo; InitTabellaX, AddRigaTabellaX e CreaTabellaX fanno una seconda tabella.
' Per cambiarlo: un'altra ruota in ruota, quanti numeri in quanti, la soglia in percentuale.
' Dal terminale: lottolab esegui 03_tabelle_output.ls --html tabelle.htm

Sub Main
  Dim ruota, quanti, percentuale, aNumeri, aAnalitico, aRiga(5), k, n, r
  ruota = VE_
  quanti = 10
  percentuale = 70

  ' GeneraAnalitico dà per ogni numero ritardo (1), frequenza (2) e massimo storico (3).
  aAnalitico = GeneraAnalitico(ruota)
  PiuRitardatari ruota, quanti, aNumeri

  InitTabella Array("Numero", "Ritardo", "Storico", "Frequenza"), Blu_, "centro", 1, 400, Bianco_
  For k = 1 To quanti
    n = aNumeri(k)
    AddRigaTabella Array(Format2(n), aAnalitico(n, 1), aAnalitico(n, 3), aAnalitico(n, 2)), , "destra"
    If aAnalitico(n, 1) * 100 >= aAnalitico(n, 3) * percentuale Then SetColoreCella 2, Giallo_, Rosso_
  Next
  Scrivi "I " & quanti & " più ritardati di " & NomeRuota(ruota) & _
         " (in giallo oltre il " & percentuale & "% dello storico)", True
  CreaTabellaOrdinabile

  InitTabellaX Array("Ruota", "1°", "2°", "3°", "4°", "5°"), Verde_
  For r = BA_ To VE_
    aRiga(0) = NomeRuota(r)
    For k = 1 To 5
      aRiga(k) = Format2(Estratto(EstrazioniArchivio, r, k))
    Next
    AddRigaTabellaX aRiga
  Next
  Scrivi
  Scrivi "Estrazione del " & DataEstrazione(EstrazioniArchivio), True
  CreaTabellaX
End Sub
