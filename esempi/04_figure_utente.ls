' Figure utente sulla tavola delle estrazioni
' Cerca nelle ultime estrazioni una figura disegnata con l'editor delle strutture e salvata in un
' file .dat: qui diametrale_in_colonna.dat, accanto a questo script, con due vertici A e B uno
' sotto l'altro (stessa ruota e posizione, estrazioni consecutive) e la condizione
' [B] = Diametrale([A]). Per ogni figura trovata scrive dove sta e i numeri da giocare, poi
' controlla se quei numeri sono usciti per ambata nei colpi seguenti.
' Per cambiarlo: disegna un'altra struttura e scrivine il nome in sFile, cambia quante estrazioni
' guardare (quante), le ruote (aRuote, TT_ per tutte) o i colpi di gioco (colpi).
' Dal terminale: lottolab esegui 04_figure_utente.ls

Sub Main
  Dim sFile, quante, colpi, aRuote, fine, coll, f, aNumeri, vinte
  ' Un nome relativo parte dalla cartella di base del programma.
  sFile = "Script/Esempi/diametrale_in_colonna.dat"
  quante = 12
  colpi = 5
  aRuote = Array(BA_, CA_, FI_, GE_, MI_)
  fine = EstrazioniArchivio - colpi

  Set coll = GetCollFiguraUtente(sFile, fine - quante + 1, fine, aRuote)
  Scrivi "Figure trovate dalla " & (fine - quante + 1) & " alla " & fine & ": " & coll.Count, True
  vinte = 0
  For Each f In coll
    ' La descrizione dà l'estrazione che completa la figura e, per ogni vertice, ruota,
    ' posizione e numero.
    Scrivi f.Descrizione & " del " & DataEstrazione(f.IdEstrazione)
    ' I numeri da giocare: quelli dei vertici segnati "usa per chiusura", o tutti.
    GetArrayNumeriFromFiguraGeodomica f, aNumeri
    Scrivi "  gioco " & StringaNumeri(aNumeri) & " per ambata su " & StringaRuote(f.Ruote) & ": ", , False
    ' VerificaEsito scrive da sé l'esito e dà la sorte vinta, 0 se nessuna.
    If VerificaEsito(aNumeri, f.Ruote, f.IdEstrazione, colpi) > 0 Then vinte = vinte + 1
  Next
  Scrivi "Figure vincenti: " & vinte & " su " & coll.Count
End Sub
