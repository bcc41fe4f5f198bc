' opzioni: --risposte file_dialoghi.risposte
Option Explicit

Sub Main
  Scrivi "numeri: " & Join(ScegliNumeri("Numeri da giocare", 5), " ")
  Scrivi "ruota: " & ScegliRuota("Ruota")
  Scrivi "ruote: " & Join(ScegliRuote("Ruote"), " ")
  Scrivi "sorte: " & ScegliEsito
  Scrivi "menu: " & ScegliOpzioneMenu("Menu", "Salva", "Esci")
  Scrivi "file: " & ScegliFile("Apri")
  Scrivi "lista: " & ScegliDaLista(Array("a", "b", "c"))
  ' The answers are over: each dialog takes its default.
  Scrivi "cartella: " & ScegliDirectory
  Scrivi "sorte: " & ScegliEsito
End Sub
