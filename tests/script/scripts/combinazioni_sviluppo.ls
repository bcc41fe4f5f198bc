Option Explicit
' Developing a group of numbers one combination at a time and whole, sorting the result, and a
' refused argument that leaves the script going.
Sub Main
  Dim c, m, r, k, riga
  Scrivi Combinazioni(90, 2) & " " & Permutazioni(4, 2) & " " & CicloTeorico(2, 2)
  Scrivi InitSviluppoIntegrale(Array(5, 10, 15, 20), 2)
  Do While GetCombSviluppo(c)
    Scrivi Join(c, ".") & " " & GetPercCombSviluppate()
  Loop
  Scrivi SviluppoPermutazioni(Array(1, 2, 3), 3, m)
  OrdinaMatrice m, -1, 2
  For r = 1 To UBound(m, 1)
    riga = ""
    For k = 1 To UBound(m, 2)
      riga = riga & m(r, k)
    Next
    Scrivi riga
  Next
  Scrivi ArrayBToString(StringaNumeriToArrayB("45.3.90.3"))
  Scrivi "[" & Combinazioni(-1, 2) & "]"
End Sub
