Option Explicit
' A table and a matrix written as aligned text, with the texts of numbers, sorti, months and wheels;
' a wrong colour is reported with the function's name and the script goes on.
Sub Main
  Dim m(2, 2)
  InitTabella Array("Numero", "Sorte", "Mese")
  AddRigaTabella Array(Format2(7), NomeSorte(AMBO_), MeseNome(3)), , "destra"
  AddRigaTabella Array(StringaNumeri(Array(1, 90)), NomeSorte(EDET2_), MeseNome(12))
  SetColoreCella 2, 9
  CreaTabella
  m(1, 1) = 1 : m(1, 2) = "uno"
  m(2, 1) = 10 : m(2, 2) = "dieci"
  ScriviMatrice m
  Scrivi StringaRuote(Array(BA_, NZ_, TU_)) & " " & FormattaStringa(1.5, "00.00") & " [" & FormatSpace("x", 3, True) & "]"
End Sub
