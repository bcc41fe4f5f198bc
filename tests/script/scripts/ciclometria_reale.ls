' archivio: reale
Option Explicit
' The figures of the circle among the numbers of Bari and Venezia in one real draw, each with its
' wheels, the parallelepipeds that join the two wheels, and a kite of numbers the script gives.
Sub Main
  Dim f, a, n
  Scrivi DataEstrazione(7000)
  For Each f In GetCollFigureCiclometriche(7000, Array(BA_, VE_))
    Scrivi f
  Next
  Scrivi GetCollParallelepipedi(7000, Array(BA_, VE_)).Count & " parallelepipedi tra BA e VE, " & _
         GetCollParallelepipedi(7000).Count & " tra le dieci ruote, " & _
         GetCollFigureCiclometriche(7000, Array(TT_, NZ_)).Count & " figure su tutte le ruote"
  For Each f In GetCollAquiloneCiclometrico(Array(10, 18, 55, 2))
    n = GetArrayNumeriFromFiguraCiclo(f, a)
    Scrivi f.Tipo & ": " & n & " vertici " & Join(a, ".") & ", ruote " & UBound(f.RuoteVertice(1))
  Next
  Scrivi IsEmpty(GetCollRettangoli(Array(1, 46), BA_))
End Sub
