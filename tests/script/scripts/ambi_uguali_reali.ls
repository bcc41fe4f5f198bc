' archivio: reale
Option Explicit
' The ambi that the draw of 22/10/2022 gave on two wheels at once, as the library finds them and as
' a plain walk over the wheels with GetArrayNumeriRuota finds them, for every distance and every sum.
' The counts and the first and last rows were counted apart from the program over the results file.

' The wheels in the script's numbering, in the order of the rows.
Dim RuoteInOrdine
RuoteInOrdine = Array(BA_, CA_, FI_, GE_, MI_, NA_, PA_, RO_, TO_, VE_, NZ_)

' The row Numero1, Numero2, RuotaA, RuotaB as one number of two digits apiece.
Function Chiave(n1, n2, ra, rb)
  Chiave = ((n1 * 100 + n2) * 100 + ra) * 100 + rb
End Function

Function DistanzaCerchio(a, b)
  DistanzaCerchio = Abs(a - b)
  If DistanzaCerchio > 45 Then DistanzaCerchio = 90 - DistanzaCerchio
End Function

Function Contiene(a, n)
  Dim p
  Contiene = False
  For p = 1 To 5
    If a(p) = n Then Contiene = True
  Next
End Function

Function Ridotto90(n)
  Ridotto90 = n Mod 90
  If Ridotto90 = 0 Then Ridotto90 = 90
End Function

' The keys of the rows found by walking every pair of wheels and every pair of positions, in
' increasing order; Filtro "D" keeps distance X, "S" sum X, "" all.
Function Attesi(id, isotopi, filtro, x)
  Dim numeri(10), a, b, ia, ib, i, j, n1, n2, tenuto, chiavi(), quante, k, t
  For ia = 0 To 10
    If GetArrayNumeriRuota(id, RuoteInOrdine(ia), a) Then numeri(ia) = a
  Next
  quante = 0
  ReDim chiavi(0)
  For ia = 0 To 10
    For ib = ia + 1 To 10
      If IsArray(numeri(ia)) And IsArray(numeri(ib)) Then
        For i = 1 To 5
          For j = i + 1 To 5
            a = numeri(ia) : b = numeri(ib)
            n1 = a(i) : n2 = a(j)
            If isotopi Then
              tenuto = b(i) = n1 And b(j) = n2
            Else
              tenuto = Contiene(b, n1) And Contiene(b, n2)
            End If
            If filtro = "D" Then tenuto = tenuto And DistanzaCerchio(n1, n2) = x
            If filtro = "S" Then tenuto = tenuto And Ridotto90(n1 + n2) = Ridotto90(x)
            If tenuto Then
              If n1 > n2 Then t = n1 : n1 = n2 : n2 = t
              quante = quante + 1
              ReDim Preserve chiavi(quante)
              chiavi(quante) = Chiave(n1, n2, RuoteInOrdine(ia), RuoteInOrdine(ib))
            End If
          Next
        Next
      End If
    Next
  Next
  For i = 2 To quante
    t = chiavi(i)
    k = i - 1
    Do While k >= 1
      If chiavi(k) <= t Then Exit Do
      chiavi(k + 1) = chiavi(k)
      k = k - 1
    Loop
    chiavi(k + 1) = t
  Next
  Attesi = chiavi
End Function

' "" when the library's count and rows match the keys, else what differs.
Function Diverso(quante, m, chiavi)
  Dim k
  If quante <> UBound(chiavi) Then
    Diverso = quante & " righe invece di " & UBound(chiavi)
  ElseIf UBound(m, 1) <> quante Then
    Diverso = "matrice di " & UBound(m, 1) & " righe"
  Else
    For k = 1 To quante
      If Chiave(m(k, 1), m(k, 2), m(k, 3), m(k, 4)) <> chiavi(k) Then Diverso = Diverso & " riga " & k
    Next
  End If
End Function

Sub Confronta(nome, quante, m, chiavi)
  If Diverso(quante, m, chiavi) = "" Then
    Scrivi nome & ": d'accordo, righe: " & quante
  Else
    Scrivi nome & ": " & Diverso(quante, m, chiavi)
  End If
End Sub

' Every value of X compared; the rows of all the values together.
Sub ConfrontaOgniX(nome, isotopi, filtro, ultimo)
  Dim x, m, quante, totale, diversi
  For x = 1 To ultimo
    If filtro = "D" And isotopi Then quante = GetAmbiUgualiIsotopiDistanzaX(IdScelto, x, m)
    If filtro = "D" And Not isotopi Then quante = GetAmbiUgualiDistanzaX(IdScelto, x, m)
    If filtro = "S" And isotopi Then quante = GetAmbiUgualiIsotopiSommaX(IdScelto, x, m)
    If filtro = "S" And Not isotopi Then quante = GetAmbiUgualiSommaX(IdScelto, x, m)
    If Diverso(quante, m, Attesi(IdScelto, isotopi, filtro, x)) <> "" Then diversi = diversi & " " & x
    totale = totale + quante
  Next
  If diversi = "" Then
    Scrivi nome & ": d'accordo per X da 1 a " & ultimo & ", righe in tutto: " & totale
  Else
    Scrivi nome & ": diverso per X" & diversi
  End If
End Sub

Dim IdScelto

Sub Main
  Dim m
  IdScelto = DataEstrToIdEstr("22/10/2022")
  Confronta "GetAmbiUguali", GetAmbiUguali(IdScelto, m), m, Attesi(IdScelto, False, "", 0)
  Scrivi "  prima riga " & m(1, 1) & "-" & m(1, 2) & " " & m(1, 3) & "/" & m(1, 4) & _
    ", ultima " & m(7, 1) & "-" & m(7, 2) & " " & m(7, 3) & "/" & m(7, 4)
  Confronta "GetAmbiUgualiIsotopi", GetAmbiUgualiIsotopi(IdScelto, m), m, Attesi(IdScelto, True, "", 0)
  ConfrontaOgniX "GetAmbiUgualiDistanzaX", False, "D", 45
  ConfrontaOgniX "GetAmbiUgualiIsotopiDistanzaX", True, "D", 45
  ConfrontaOgniX "GetAmbiUgualiSommaX", False, "S", 90
  ConfrontaOgniX "GetAmbiUgualiIsotopiSommaX", True, "S", 90
End Sub
