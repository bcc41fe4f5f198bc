' archivio: reale
' Text turned into numbers and wheels, decimals in either writing, and the draws around one in
' which a group came out, each checked against a plain walk over the archive.
Sub Main
  Dim n, aN, aR, aB, id, cercato, trovato, p, r, punti
  n = GetANumeri("5.12 33,90", aN) : Scrivi n & ": " & aN(1) & " " & aN(2) & " " & aN(3) & " " & aN(4)
  n = RuoteSel("ba.Napoli RM tt nz", aR) : Scrivi n & ": " & aR(1) & " " & aR(2) & " " & aR(3) & " " & aR(n)
  n = RuoteSelB("BA VE", aB) : Scrivi n & ": " & aB(1) & aB(2) & aB(10) & aB(11) & aB(12)
  n = RuoteSelB("TT", aB) : Scrivi n & ": " & aB(11) & aB(12)
  Scrivi ConvDec("12.5") + ConvDec("0,5") & " " & ConvDec("1.234,5") & " " & ConvDec("1,234.5") & " " & ConvDec("-1.234.567")
  Scrivi Dividi(10, 0) & " " & Dividi(10, 4) & " " & Dividi(10, 3, 2) & " " & Moltiplica(11.23, 3, 1) & " " & ProporzioneX(18, 1, 90)

  ' The last draw before the end in which 12 and 34 came out together on Bari, found by hand.
  cercato = 0
  For id = EstrazioniArchivio - 1 To 1 Step -1
    punti = 0
    For p = 1 To 5
      If Estratto(id, BA_, p) = 12 Or Estratto(id, BA_, p) = 34 Then punti = punti + 1
    Next
    If punti = 2 Then cercato = id : Exit For
  Next
  trovato = PrimaPrecedente(EstrazioniArchivio, Array(12, 34), BA_, 2)
  Scrivi "PrimaPrecedente " & (trovato = cercato) & " " & GetInfoEstrazione(trovato)
  ' The first 90 on any wheel after the first draw.
  cercato = 0
  For id = 2 To EstrazioniArchivio
    For r = 1 To 11
      For p = 1 To 5
        If Estratto(id, r, p) = 90 Then cercato = id
      Next
    Next
    If cercato > 0 Then Exit For
  Next
  Scrivi "PrimaSuccessiva " & (PrimaSuccessiva(1, Array(90), TU_) = cercato)
  Scrivi PrimaSuccessiva(EstrazioniArchivio, Array(1), TU_) & " " & PrimaPrecedente(1, Array(1), TU_)

  n = RitPosCrono(BA_, 90, 1, aN) : Scrivi n = RitPosCronoRp1(BA_, 90, 1, aR)
  Scrivi (aR(1) = aN(1) + 1) & " " & (aR(n) = aN(n)) & " " & (aN(n) = RitPos(BA_, 90, 1))

  ' Mistakes a user makes, each refused with the reason and the run going on.
  n = GetANumeri("5 x 7", aN)
  n = GetANumeri("5 91", aN)
  n = RuoteSel("BA XY", aR)
  Scrivi ConvDec("abc")
  Scrivi ProporzioneX(0, 1, 1)
  Scrivi PrimaPrecedente(EstrazioniArchivio, Array(12, 34), BA_, 3)
  Scrivi PrimaPrecedente(EstrazioniArchivio, Array(0, 34), BA_, 1)
  Scrivi PrimaPrecedente(EstrazioniArchivio, Array(12), 13)
  Scrivi "fine"
End Sub
