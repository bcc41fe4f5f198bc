' Disegni, cerchio e grafici
' Disegna le ultime due estrazioni di alcune ruote come tabelle di caselle, il cerchio dei 90
' numeri con i numeri di due ruote e le loro figure ciclometriche, e un grafico del ritardo di un
' numero nelle ultime estrazioni. Nel programma ogni disegno ha la sua scheda o finestra; dal
' terminale diventa un'immagine PNG accanto alla pagina HTML (una riga su stderr dice dove).
' Per cambiarlo: le ruote in aRuote, il numero e quante estrazioni nel grafico, i colori
' (Nero_, Blu_, Rosso_, Verde_, Giallo_, Bianco_, Ciano_, Magenta_ o RGB(r, g, b)).
' Dal terminale: lottolab esegui 10_disegni.ls

Sub Main
  Dim aRuote, fine, y, d, figure, numero, quante, aRit(), k

  aRuote = Array(BA_, CA_, FI_, NA_, VE_)
  fine = EstrazioniArchivio

  ' L'area di disegno: ogni funzione Disegna... dà l'altezza che ha occupato.
  PicSetDimensioni 900, 380
  PicStampaTesto 10, 10, "Le ultime due estrazioni", Blu_, 16
  y = 40
  y = y + DisegnaEstrazione(fine - 1, aRuote, 10, y) + 10
  y = y + DisegnaEstrazione(fine, aRuote, 10, y)
  PicLinea 10, y + 5, 500, y + 5, Rosso_, 2

  ' Il cerchio, a destra delle tabelle nel quadrato di lato 360: i numeri di Bari e Venezia
  ' segnati, i diametri (1) e i trapezi isosceli (6) disegnati.
  d = GetNewDisegnoCiclometrico()
  ImpostaPropDrawWidthCerchioCiclo d, 1, 2
  figure = DisegnaEstrazioneFromFiguraCiclometrica(d, fine, Array(BA_, VE_), Array(1, 6), 0, 530, 10, 360)
  QvCerchio_InitDisegno d, "Bari e Venezia del " & DataEstrazione(fine)
  Scrivi "Figure sul cerchio: " & figure

  ' Il grafico: il ritardo del numero su Bari a ogni estrazione delle ultime quante.
  numero = 17
  quante = 60
  ReDim aRit(quante)
  For k = 1 To quante
    aRit(k) = EstrattoRitardo(BA_, numero, 1, fine - quante + k)
  Next
  PreparaGrafico "Ritardo del " & numero & " su Bari", "Estrazione", "Ritardo", 1
  InserisciGrafico aRit, "ritardo", Rosso_
  LayOutGrafico 700, 350, 0
  Grafico
  Scrivi "Ritardo del " & numero & " oggi: " & aRit(quante)
End Sub
