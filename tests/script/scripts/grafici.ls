' Charts from the command line: each goes to a PNG beside the page, a refused call is told on
' stderr and the script goes on; PuntiSuArray needs no picture.
Sub Main
  Dim aRit(10), aX, aY, k
  For k = 1 To 10
    aRit(k) = (k * 7) Mod 5
  Next
  PreparaGrafico "Ritardi", "Estrazione", "Ritardo", 2
  Scrivi InserisciGrafico(aRit, "17 su Bari", Rosso_)
  InserisciGrafico Array()
  LayOutGrafico 400, 300, , , False
  Scrivi Grafico()
  Scrivi Grafico(aRit, "Di nuovo")
  Scrivi PuntiSuArray(aRit, aX, aY, 0, 0, 90, 40, 0, 4)
  Scrivi Join(aX, " ") & " | " & Join(aY, " ")
End Sub
