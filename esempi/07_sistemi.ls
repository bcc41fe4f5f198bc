' Sistemi integrali e ridotti
' Sviluppa in terzine un gruppo di numeri: prima il sistema integrale (tutte le combinazioni, una
' alla volta con GetCombSviluppo) con il ritardo per ambo di ogni terzina su tutte le ruote, poi un
' sistema ridotto che garantisce l'ambo se due dei numeri escono, con meno colonne.
' Per cambiarlo: altri numeri in aNumeri, la classe delle colonne (classe), la garanzia (garanzia:
' 2 ambo, 3 terno...), le ruote in aRuote.
' Dal terminale: lottolab esegui 07_sistemi.ls

Sub Main
  Dim aNumeri, classe, garanzia, aRuote, aCol, aMatrice, colonne, k, rit, ritMax, aMax

  aNumeri = Array(3, 11, 19, 27, 38, 44, 56, 81)
  classe = 3
  garanzia = 2
  aRuote = Array(TT_)

  Scrivi "Integrale di " & StringaNumeri(aNumeri) & " in classe " & classe & ": " & _
         InitSviluppoIntegrale(aNumeri, classe) & " colonne", True
  ritMax = -1
  Do While GetCombSviluppo(aCol)
    rit = RitardoCombinazione(aRuote, aCol, AMBO_, EstrazioniArchivio)
    If rit > ritMax Then
      ritMax = rit
      aMax = aCol
    End If
  Loop
  Scrivi "La colonna con l'ambo più in ritardo su tutte le ruote: " & StringaNumeri(aMax) & _
         " (" & ritMax & " estrazioni)"

  ' Il ridotto è verificato su tutti i casi prima di essere dato.
  colonne = GetMatriceSistemaRidotto(aNumeri, classe, garanzia, aMatrice)
  Scrivi
  Scrivi "Ridotto, garanzia " & LCase(NomeSorte(garanzia)) & " se ne escono " & garanzia & ": " & colonne & _
         " colonne invece di " & Combinazioni(UBound(aNumeri) + 1, classe), True
  For k = 1 To colonne
    Scrivi FormatSpace(k, 3, True) & ") " & StringaNumeriDaMatrice(aMatrice, k)
  Next
End Sub
