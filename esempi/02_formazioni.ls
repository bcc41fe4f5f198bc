' Formazioni e classi di numeri
' Raggruppa i 90 numeri per cadenza (l'ultima cifra) e guarda il ritardo di ogni gruppo giocato
' per estratto; poi studia la figura e la decina di un numero e cerca le lunghette di tre numeri
' più ritardate per ambo in una decina.
' Per cambiarlo: metti Decina, DecinaCabalistica o Figura al posto di Cadenza in Classe, un altro
' numero in numero, un'altra ruota in ruota, un'altra classe o sorte nelle lunghette.
' Dal terminale: lottolab esegui 02_formazioni.ls

' La classe di un numero: cambia questa riga per raggruppare in un altro modo.
Function Classe(n)
  Classe = Cadenza(n)
End Function

Sub Main
  Dim ruota, numero, n, c, id, aNumeri, rit, ritMax, incr, freq, aDecina, aRet, righe, k
  ruota = BA_

  ' Una formazione per ogni valore della classe, riempita numero per numero.
  For c = 0 To 9
    id = 0
    For n = 1 To 90
      If Classe(n) = c Then id = AddItemFormazione(id, n)
    Next
  Next
  Scrivi "Un gruppo per ogni classe, su " & NomeRuota(ruota) & " per estratto", True
  StatisticaGruppoFormazioni Array(ruota), AMBATA_

  ' Un gruppo costruito a mano: i numeri della stessa figura di numero.
  numero = 27
  aNumeri = Array()
  For n = 1 To 90
    If Figura(n) = Figura(numero) Then
      ReDim Preserve aNumeri(UBound(aNumeri) + 1)
      aNumeri(UBound(aNumeri)) = n
    End If
  Next
  StatisticaFormazione aNumeri, Array(ruota), AMBATA_, rit, ritMax, incr, freq
  Scrivi
  Scrivi "Figura " & Figura(numero) & " (" & StringaNumeri(aNumeri) & "): ritardo " & rit & _
         ", storico " & ritMax & ", frequenza " & freq

  ' Le lunghette di tre numeri della decina del numero, le cinque più ritardate per ambo.
  aDecina = Array()
  For n = 1 To 90
    If DecinaNaturale(n) = DecinaNaturale(numero) Then
      ReDim Preserve aDecina(UBound(aDecina) + 1)
      aDecina(UBound(aDecina)) = n
    End If
  Next
  righe = GetLunghettePiuRitardate(aDecina, 3, Array(ruota), AMBO_, 5, aRet)
  Scrivi
  Scrivi "Terzine della decina " & StringaNumeri(aDecina) & " più ritardate per ambo", True
  For k = 1 To righe
    ' Ogni riga di aRet ha i tre numeri e poi il ritardo.
    Scrivi Format2(aRet(k, 1)) & "." & Format2(aRet(k, 2)) & "." & Format2(aRet(k, 3)) & _
           "  ritardo " & aRet(k, 4)
  Next
End Sub
