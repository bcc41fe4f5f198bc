' archivio: reale
Option Explicit
' AmboPosRit and RitSincDiLiv over the real archive of 7,318 draws, each beside a plain walk written
' here that reads the draws one at a time through Posizione and GetArrayNumeriRuota.

' The single wheels of a wheel argument, TU_ standing for all eleven.
Function Singole(ruota)
  If ruota = TU_ Then
    Singole = Array(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12)
  Else
    Singole = Array(ruota)
  End If
End Function

' The draws from fine back to the latest with n1 in p1 and n2 in p2 on one wheel; a draw counts when
' one of the wheels was drawn in it.
Function AmboPosPiano(ruota, n1, p1, n2, p2, fine)
  Dim id, r, contate, contata, estratti
  contate = 0
  For id = fine To 1 Step -1
    contata = False
    For Each r In Singole(ruota)
      If GetArrayNumeriRuota(id, r, estratti) Then contata = True
      If Posizione(id, r, n1) = p1 And Posizione(id, r, n2) = p2 Then
        AmboPosPiano = contate
        Exit Function
      End If
    Next
    If contata Then contate = contate + 1
  Next
  AmboPosPiano = contate
End Function

' The draws from fine back to the latest in which at least `sorte` of the numbers came out on each
' of at least `livello` of the wheels.
Function SincronoPiano(ruote, numeri, sorte, livello, fine)
  Dim id, r, n, colpi, vincenti, contate, contata, estratti
  contate = 0
  For id = fine To 1 Step -1
    contata = False
    vincenti = 0
    For Each r In ruote
      If GetArrayNumeriRuota(id, r, estratti) Then contata = True
      colpi = 0
      For Each n In numeri
        If Posizione(id, r, n) > 0 Then colpi = colpi + 1
      Next
      If colpi >= sorte Then vincenti = vincenti + 1
    Next
    If vincenti >= livello Then
      SincronoPiano = contate
      Exit Function
    End If
    If contata Then contate = contate + 1
  Next
  SincronoPiano = contate
End Function

Sub Confronta(descrizione, libreria, piano)
  If libreria = piano Then
    Scrivi descrizione & ": " & libreria
  Else
    Scrivi descrizione & ": " & libreria & " ma a mano " & piano
  End If
End Sub

Sub Main
  Dim ultima, id, n1, n2, tre, gruppo, livello, r, quanti
  ultima = EstrazioniArchivio()
  ' An ambo drawn on Roma 150 draws ago, first and third.
  id = ultima - 150
  n1 = Estratto(id, RO_, 1)
  n2 = Estratto(id, RO_, 3)
  Confronta "ambo " & n1 & " primo e " & n2 & " terzo su Roma", AmboPosRit(RO_, n1, 1, n2, 3), AmboPosPiano(RO_, n1, 1, n2, 3, ultima)
  Confronta "lo stesso, a rovescio", AmboPosRit(RO_, n2, 3, n1, 1), AmboPosPiano(RO_, n2, 3, n1, 1, ultima)
  Confronta "lo stesso, prima della sua uscita", AmboPosRit(RO_, n1, 1, n2, 3, 1, id - 1), AmboPosPiano(RO_, n1, 1, n2, 3, id - 1)
  Confronta "lo stesso su tutte le ruote", AmboPosRit(TU_, n1, 1, n2, 3), AmboPosPiano(TU_, n1, 1, n2, 3, ultima)
  Confronta "lo stesso, posizioni scambiate", AmboPosRit(RO_, n1, 3, n2, 1), AmboPosPiano(RO_, n1, 3, n2, 1, ultima)
  Confronta "90 primo e 1 secondo su Nazionale", AmboPosRit(NZ_, 90, 1, 1, 2), AmboPosPiano(NZ_, 90, 1, 1, 2, ultima)

  tre = Array(BA_, NA_, NZ_)
  gruppo = Array(3, 17, 28, 44, 59, 61)
  For livello = 1 To 3
    Confronta "ambata su Bari, Napoli e Nazionale al livello " & livello, RitSincDiLiv(tre, gruppo, AMBATA_, livello), SincronoPiano(tre, gruppo, AMBATA_, livello, ultima)
  Next
  Confronta "ambo su tutte le ruote al livello 2", RitSincDiLiv(TU_, gruppo, AMBO_, 2), SincronoPiano(Singole(TU_), gruppo, AMBO_, 2, ultima)
  Confronta "ambata al livello 2 fino a 1000 estrazioni fa", RitSincDiLiv(tre, gruppo, AMBATA_, 2, 1, ultima - 1000), SincronoPiano(tre, gruppo, AMBATA_, 2, ultima - 1000)

  quanti = RitPosCrono(NA_, 7, 1, r)
  Confronta "uscite di 7 primo su Napoli", quanti - 1, EstrattoFrequenza(NA_, 7, 1, ultima, PrimaPosizione())
  Confronta "ritardo in corso nella cronologia", r(quanti), RitPos(NA_, 7, 1)
End Sub

Function PrimaPosizione()
  Dim p(5)
  p(1) = True
  PrimaPosizione = p
End Function
