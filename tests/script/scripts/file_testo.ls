Option Explicit

Sub Main
  Dim righe, n, i, nomi
  Scrivi "cartella: " & CreaDirectory("prove\uscite")
  ScriviFile "prove\uscite\a.txt", "uno"
  ScriviFile "prove\uscite\a.txt", "due"
  CloseFileHandle "prove\uscite\a.txt"
  n = LeggiRigheFileDiTesto("prove\uscite\a.txt", righe)
  For i = 1 To n
    Scrivi i & ": " & righe(i)
  Next
  Scrivi "copia: " & CopiaFile("prove\uscite\a.txt", "prove\uscite\b.txt")
  Scrivi "di nuovo: " & CopiaFile("prove\uscite\a.txt", "prove\uscite\b.txt")
  n = ElencoFileInDirectory("prove\uscite", nomi, "*.txt")
  Scrivi n & " file: " & Join(nomi, ", ")
  Scrivi "esiste: " & FileEsistente(GetDirectoryAppData & "prove/uscite/b.txt")
  Scrivi "eliminato: " & EliminaFile("prove\uscite\b.txt")
  Scrivi "righe di un file mancante: " & LeggiRigheFileDiTesto("manca.txt", righe)
End Sub
