' A name that a procedure does not declare is, when the statement runs, the global of that name if
' one exists by then (declared, or created by an assignment at script level), otherwise a variable
' of the procedure; every statement of the procedure means the same variable by it.

i = 100
Function Elenco(n)
  For i = 0 To n - 1
    Elenco = Elenco & i & ","
  Next
End Function
WScript.Echo Elenco(3)                                          ' expect: 0,1,2,
WScript.Echo i                                                  ' expect: 3

colori = Array("rosso", "verde", "blu")
Function Ultimo()
  Ultimo = colori(UBound(colori))
End Function
WScript.Echo Ultimo()                                           ' expect: blu

Sub Conta()
  contatore = contatore + 1
End Sub
contatore = 10
Conta : Conta
WScript.Echo contatore                                          ' expect: 12

' No global of the name: a variable of the procedure, new at every call.
Function Locale()
  appoggio = appoggio & "x"
  Locale = appoggio
End Function
WScript.Echo Locale() & Locale()                                ' expect: xx
WScript.Echo "[" & appoggio & "]"                               ' expect: []

Function Somma(elementi)
  For Each elemento In elementi
    totale = totale + elemento
  Next
  Somma = totale
End Function
totale = 0
WScript.Echo Somma(Array(1, 2, 3)) & " " & totale & " [" & elemento & "]"  ' expect: 6 6 []

Sub Allunga()
  ReDim Preserve colori(3)
  colori(3) = "giallo"
  ReDim propri(1)
  propri(1) = "solo qui"
End Sub
Allunga
WScript.Echo Join(colori, "-") & " [" & TypeName(propri) & "]"  ' expect: rosso-verde-blu-giallo [Empty]

Sub Raddoppia(ByRef valore)
  valore = valore * 2
End Sub
Sub RaddoppiaGlobale()
  Raddoppia base
End Sub
base = 21
RaddoppiaGlobale
WScript.Echo base                                               ' expect: 42

' Recursion: each call has its own.
Function Profondita(n)
  livello = n
  If n > 0 Then Profondita = Profondita(n - 1) & livello Else Profondita = livello
End Function
WScript.Echo Profondita(3)                                      ' expect: 0123

Class Registro
  Sub Annota(testo)
    diario = diario & testo & ";"
  End Sub
End Class
diario = ""
Set reg = New Registro
reg.Annota "a" : reg.Annota "b"
WScript.Echo diario                                             ' expect: a;b;

' Execute and Eval inside a procedure see the same names the procedure sees.
Sub Esegui()
  Execute "scelta = 7"
  Execute "Dim propria : propria = 3"
  WScript.Echo Eval("propria + scelta")
  ExecuteGlobal "nuova = 5"
  nuova = nuova + 1
End Sub
scelta = 0
Esegui                                                          ' expect: 10
WScript.Echo scelta & " " & nuova & " [" & propria & "]"        ' expect: 7 6 []

' Execute "Dim" makes a variable of the procedure even where a global has the name.
Sub Oscura()
  Execute "Dim ombra"
  ombra = "locale"
End Sub
ombra = "globale"
Oscura
WScript.Echo ombra                                              ' expect: globale

' Global code names its variables directly, yet a name exists for procedures only once the
' script's assignment has given it a value.
Sub Prima()
  anticipata = "locale"
End Sub
Prima
WScript.Echo "[" & anticipata & "]"                             ' expect: []
anticipata = "globale"
Prima
serie = Array(4, 5)
WScript.Echo anticipata & " " & serie(1)                        ' expect: locale 5
' Assigned at script level, even with Empty, the name is the global from then on.
vuoto = Empty
Sub Riempie()
  vuoto = "pieno"
End Sub
Riempie
WScript.Echo "[" & vuoto & "]"                                  ' expect: [pieno]

' Select, With, Erase, Property Let and Class_Initialize reach the globals the same way.
scelta = 2
Function Scegli()
  Select Case scelta
    Case 1: Scegli = "uno"
    Case 2: Scegli = "due"
  End Select
End Function
WScript.Echo Scegli()                                           ' expect: due

Set raccolta = CreateObject("Scripting.Dictionary")
Sub Aggiunge()
  With raccolta
    .Add "a", 1
  End With
End Sub
Aggiunge
WScript.Echo raccolta.Count                                     ' expect: 1

Class Conto
  Private m_saldo
  Private Sub Class_Initialize()
    m_saldo = iniziale
    creati = creati + 1
  End Sub
  Public Property Let Saldo(v)
    m_saldo = v + bonus
  End Property
  Public Property Get Saldo()
    Saldo = m_saldo
  End Property
End Class
iniziale = 50
bonus = 5
creati = 0
Set mio_conto = New Conto
WScript.Echo mio_conto.Saldo & " " & creati                         ' expect: 50 1
mio_conto.Saldo = 10
WScript.Echo mio_conto.Saldo                                        ' expect: 15

WScript.Echo nessuno(1)                                         ' expect runtime error 13

