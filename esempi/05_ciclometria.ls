' Ciclometria: il cerchio dei 90 numeri
' I numeri stanno su un cerchio, l'1 in alto e poi in senso orario. Mostra la distanza
' ciclometrica (il tratto più corto sul cerchio, 1..45), la differenza (a - b girando sul
' cerchio, 1..90) e il diametrale (il numero opposto, a distanza 45), poi le figure ciclometriche
' dell'ultima estrazione su due ruote: diametri, triangoli equilateri, quadrati, aquiloni...
' Per cambiarlo: altre ruote in aRuote, altri tipi di figura in aTipi (1 diametro, 2 triangolo
' equilatero, 3 triangolo isoscele, 4 quadrato, 5 rettangolo, 6 trapezio isoscele, 7 aquilone),
' un'altra estrazione in idEstr.
' Dal terminale: lottolab esegui 05_ciclometria.ls

Sub Main
  Dim idEstr, aRuote, aTipi, coll, f, r, a, b

  a = 12
  b = 80
  Scrivi "Distanza fra " & a & " e " & b & ": " & Distanza(a, b) & "; differenze: " & _
         a & " - " & b & " = " & DiffCiclometrica(a, b) & ", " & b & " - " & a & " = " & DiffCiclometrica(b, a)
  Scrivi "Diametrale di " & a & ": " & Diametrale(a) & ", di " & b & ": " & Diametrale(b)

  idEstr = EstrazioniArchivio
  aRuote = Array(BA_, NA_)
  aTipi = Array(1, 2, 3, 4, 5, 6, 7)
  Scrivi
  Scrivi "Estrazione del " & DataEstrazione(idEstr), True
  For Each r In aRuote
    Scrivi NomeRuota(r) & ": " & StringaEstratti(idEstr, r)
  Next

  ' Le figure si cercano fra tutti i numeri delle ruote scelte insieme.
  Set coll = GetCollFigureCiclometriche(idEstr, aRuote, aTipi)
  Scrivi "Figure ciclometriche: " & coll.Count, True
  For Each f In coll
    ' Descrizione dà il tipo, i vertici e le ruote da cui vengono.
    Scrivi f.Descrizione
  Next

  ' Le stesse funzioni lavorano su numeri scelti da noi, senza ruote.
  Set coll = GetCollTriangoliEquilateri(Array(1, 31, 61, 10, 40, 70))
  Scrivi
  Scrivi "Triangoli equilateri fra 1 31 61 10 40 70: " & coll.Count
  For Each f In coll
    Scrivi f.Descrizione
  Next
End Sub
