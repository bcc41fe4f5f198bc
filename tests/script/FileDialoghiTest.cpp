#include <gtest/gtest.h>

#include <cstdlib>
#include <deque>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "LibreriaDiProva.h"
#include "TempDir.h"
#include "script/EsecutoreScript.h"

namespace lottolab::script {
namespace {

namespace fs = std::filesystem;
using test::CartellaTemporanea;
using test::Leggi;
using test::Scrivi;

// Tuesdays and Thursdays across a year's end, a Saturday, and February.
TabellaEstrazioni TabellaDatata() {
  return TabellaEstrazioni({
      Datata(1, {152, 28, 12, 2004}),  // Tuesday
      Datata(2, {153, 30, 12, 2004}),  // Thursday
      Datata(3, {1, 4, 1, 2005}),      // Tuesday
      Datata(4, {2, 6, 1, 2005}),      // Thursday
      Datata(5, {3, 8, 1, 2005}),      // Saturday
      Datata(6, {4, 1, 2, 2005}),      // Tuesday
      Datata(7, {5, 3, 2, 2005}),      // Thursday
  });
}

class LibreriaFile : public Libreria {
 protected:
  void SetUp() override {
    ImpostazioniLibreria impostazioni;
    impostazioni.cartella_base = m_cartella.Percorso();
    impostazioni.cartella_dati_app = m_cartella / "dati";
    Avvia(TabellaDatata(), impostazioni);
  }

  // The function's failure as the user reads it; the test goes on when it is missing.
  std::string Motivo(std::string_view funzione) {
    const Avviso avviso = UnicoAvviso();
    EXPECT_EQ(avviso.titolo, "ClsFunctionsGeodoScript." + std::string(funzione));
    return avviso.testo;
  }

  CartellaTemporanea m_cartella;
};

TEST_F(LibreriaFile, ScriviFileKeepsTheFileOpenUntilClosedAndAppendsUnlessToldOtherwise) {
  EXPECT_EQ(Testo("CreaDirectory(\"uscite\\mese\")"), "Vero");
  const fs::path file = m_cartella / "uscite/mese/note.txt";
  EXPECT_EQ(Testo("ScriviFile(\"uscite\\mese\\note.txt\", \"prima riga\")"), "Vero");
  EXPECT_EQ(Testo("ScriviFile(\"uscite\\mese\\note.txt\", \"città \" & 2)"), "Vero");
  Esegui("Dim n, righe\n");
  EXPECT_EQ(Testo("LeggiRigheFileDiTesto(\"uscite/mese/note.txt\", righe)"), "2") << "what was written is read back";
  EXPECT_EQ(Testo("CloseAllFileHandle"), "");
  EXPECT_EQ(Leggi(file), "prima riga\ncittà 2\n");

  EXPECT_EQ(Testo("ScriviFile(\"" + file.string() + "\", \"terza\")"), "Vero") << "an absolute name";
  EXPECT_EQ(Testo("CloseFileHandle(\"uscite\\mese\\note.txt\")"), "Vero");
  EXPECT_EQ(Leggi(file), "prima riga\ncittà 2\nterza\n") << "a file is opened again for appending";

  EXPECT_EQ(Testo("ScriviFile(\"uscite\\mese\\note.txt\", \"da capo\", False)"), "Vero");
  EXPECT_EQ(Testo("ScriviFile(\"uscite\\mese\\note.txt\", \"poi questa\", False)"), "Vero")
      << "emptying happens when the file is opened, not at every line";
  EXPECT_EQ(Testo("ScriviFile(\"uscite\\mese\\note.txt\", \"fine\", True, True)"), "Vero");
  EXPECT_EQ(Leggi(file), "da capo\npoi questa\nfine\n") << "AChiusura closed it";
  EXPECT_TRUE(m_ospite.avvisi.empty());

  EXPECT_EQ(Testo("ScriviFile(\"manca\\x.txt\", \"riga\")"), "Falso");
  EXPECT_EQ(Motivo("ScriviFile"), "Impossibile aprire in scrittura il file " + (m_cartella / "manca/x.txt").string());
}

TEST_F(LibreriaFile, LeggiRigheFileDiTestoReadsUtf8AndWindows1252) {
  test::ScriviByte(m_cartella / "ansi.txt", {'c', 'a', 'f', 'f', 0xE8, '\r', '\n', 'p', 'e', 'r', 0xF2, 0x80});
  Scrivi(m_cartella / "utf8.txt",
         "\xEF\xBB\xBF"
         "caffè\n\nperò\n");
  Scrivi(m_cartella / "vuoto.txt", "");
  Esegui("Dim righe\n");
  EXPECT_EQ(Testo("LeggiRigheFileDiTesto(\"ansi.txt\", righe)"), "2");
  EXPECT_EQ(Testo("LBound(righe) & \" \" & righe(1) & \"|\" & righe(2)"), "1 caffè|però€");
  EXPECT_EQ(Testo("LeggiRigheFileDiTesto(\"utf8.txt\", righe)"), "3");
  EXPECT_EQ(Testo("righe(1) & \"|\" & righe(2) & \"|\" & righe(3)"), "caffè||però") << "no BOM, empty line kept";
  EXPECT_EQ(Testo("LeggiRigheFileDiTesto(\"vuoto.txt\", righe)"), "0");
  EXPECT_EQ(Testo("UBound(righe)"), "0");
  EXPECT_TRUE(m_ospite.avvisi.empty());

  Esegui("righe = \"intatto\"\n");
  EXPECT_EQ(Testo("LeggiRigheFileDiTesto(\"manca.txt\", righe)"), "0");
  EXPECT_EQ(Motivo("LeggiRigheFileDiTesto"), "Il file " + (m_cartella / "manca.txt").string() + " non esiste");
  EXPECT_EQ(Testo("righe"), "intatto");
}

TEST_F(LibreriaFile, NothingIsReplacedOrRemovedUnlessNamedExplicitly) {
  Scrivi(m_cartella / "a.txt", "nuovo");
  Scrivi(m_cartella / "b.txt", "vecchio");
  fs::create_directories(m_cartella / "cartella");

  EXPECT_EQ(Testo("CopiaFile(\"a.txt\", \"b.txt\")"), "Falso");
  EXPECT_EQ(Motivo("CopiaFile"), "Il file " + (m_cartella / "b.txt").string() + " esiste già: non viene sovrascritto");
  EXPECT_EQ(Leggi(m_cartella / "b.txt"), "vecchio");
  EXPECT_EQ(Testo("RinominaFile(\"a.txt\", \"b.txt\")"), "Falso");
  EXPECT_EQ(Motivo("RinominaFile"), "Il file " + (m_cartella / "b.txt").string() + " esiste già: non viene sostituito");
  EXPECT_EQ(Leggi(m_cartella / "a.txt"), "nuovo");
  EXPECT_EQ(Leggi(m_cartella / "b.txt"), "vecchio");
  EXPECT_EQ(Testo("EliminaFile(\"cartella\")"), "Falso") << "a folder is not a file";
  UnicoAvviso();
  EXPECT_TRUE(fs::is_directory(m_cartella / "cartella"));
  EXPECT_EQ(Testo("CopiaFile(\"manca.txt\", \"c.txt\", True)"), "Falso");
  UnicoAvviso();
  EXPECT_FALSE(fs::exists(m_cartella / "c.txt"));

  EXPECT_EQ(Testo("CopiaFile(\"a.txt\", \"b.txt\", True)"), "Vero");
  EXPECT_EQ(Leggi(m_cartella / "b.txt"), "nuovo");
  EXPECT_EQ(Testo("RinominaFile(\"a.txt\", \"cartella\\c.txt\")"), "Vero");
  EXPECT_EQ(Testo("FileEsistente(\"a.txt\") & \" \" & FileEsistente(\"cartella\\c.txt\")"), "Falso Vero");
  EXPECT_EQ(Testo("EliminaFile(\"b.txt\")"), "Vero");
  EXPECT_FALSE(fs::exists(m_cartella / "b.txt"));
  EXPECT_EQ(Testo("EliminaFile(\"b.txt\")"), "Falso");
  EXPECT_EQ(Motivo("EliminaFile"), "Il file " + (m_cartella / "b.txt").string() + " non esiste");
}

TEST_F(LibreriaFile, AFileBeingWrittenIsCompleteBeforeItIsCopiedOrRemoved) {
  EXPECT_EQ(Testo("ScriviFile(\"log.txt\", \"uno\")"), "Vero");
  EXPECT_EQ(Testo("CopiaFile(\"log.txt\", \"copia.txt\")"), "Vero");
  EXPECT_EQ(Leggi(m_cartella / "copia.txt"), "uno\n");
  EXPECT_EQ(Testo("EliminaFile(\"log.txt\")"), "Vero");
  EXPECT_EQ(Testo("CloseAllFileHandle"), "");
  EXPECT_FALSE(fs::exists(m_cartella / "log.txt")) << "closing at the end does not bring the file back";
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaFile, FoldersAreListedAndTold) {
  for (const char* nome : {"b.txt", "A.TXT", "c.ls", "senza"}) Scrivi(m_cartella / "elenco" / nome, "x");
  fs::create_directories(m_cartella / "elenco/sotto.txt");
  Esegui("Dim nomi\n");
  EXPECT_EQ(Testo("ElencoFileInDirectory(\"elenco\", nomi, \"*.txt\")"), "2") << "folders are not files";
  EXPECT_EQ(Testo("Join(nomi, \",\") & \" \" & LBound(nomi)"), "A.TXT,b.txt 1");
  EXPECT_EQ(Testo("ElencoFileInDirectory(\"elenco\\\", nomi)"), "4") << "*.* takes names without an extension too";
  EXPECT_EQ(Testo("ElencoFileInDirectory(\"elenco\", nomi, \"*.LS;?.txt\")"), "3");
  EXPECT_EQ(Testo("Join(nomi, \",\")"), "A.TXT,b.txt,c.ls");
  EXPECT_EQ(Testo("ElencoFileInDirectory(\"elenco\", nomi, \"s*a\")"), "1");
  EXPECT_EQ(Testo("ElencoFileInDirectory(\"elenco\", nomi, \"*.doc\") & UBound(nomi)"), "00");
  EXPECT_TRUE(m_ospite.avvisi.empty());
  EXPECT_EQ(Testo("ElencoFileInDirectory(\"manca\", nomi)"), "0");
  EXPECT_EQ(Motivo("ElencoFileInDirectory"), "La cartella " + (m_cartella / "manca").string() + " non esiste");

  EXPECT_EQ(Testo("DirectoryEsistente(\"elenco\\sotto.txt\") & FileEsistente(\"elenco\\sotto.txt\")"), "VeroFalso");
  EXPECT_EQ(Testo("DirectoryEsistente(\"elenco\\c.ls\") & FileEsistente(\"elenco\\c.ls\")"), "FalsoVero");
  EXPECT_EQ(Testo("GetDirectoryAppData"), (m_cartella / "dati").string() + "/");
  EXPECT_EQ(Testo("Right(GetDirectoryTemp, 1)"), "/");
  EXPECT_EQ(Testo("DirectoryEsistente(GetDirectoryTemp)"), "Vero");
  EXPECT_EQ(Testo("CreaDirectory(\"elenco\\c.ls\")"), "Falso") << "a file has the name";
  EXPECT_EQ(Motivo("CreaDirectory"), "Impossibile creare la cartella " + (m_cartella / "elenco/c.ls").string());
}

// Only the refusals: opening a file would start a program on the desktop of whoever runs the tests.
TEST_F(LibreriaFile, LanciaFileNeedsTheFileAndADesktop) {
  EXPECT_EQ(Testo("LanciaFile(\"manca.pdf\")"), "Falso");
  EXPECT_EQ(Motivo("LanciaFile"), "Il file " + (m_cartella / "manca.pdf").string() + " non esiste");

  Scrivi(m_cartella / "pagina.htm", "<p>");
  std::vector<std::pair<std::string, std::string>> desktop;
  for (const char* variabile : {"DISPLAY", "WAYLAND_DISPLAY"}) {
    if (const char* valore = std::getenv(variabile)) desktop.emplace_back(variabile, valore);
    unsetenv(variabile);
  }
  EXPECT_EQ(Testo("LanciaFile(\"pagina.htm\")"), "Falso");
  for (const auto& [variabile, valore] : desktop) setenv(variabile.c_str(), valore.c_str(), 1);
  EXPECT_EQ(Motivo("LanciaFile"), "Nessun desktop su cui aprire il file " + (m_cartella / "pagina.htm").string());
}

TEST_F(LibreriaFile, DrawsAreReadFromAFileInTheOperatorsLayout) {
  Scrivi(m_cartella / "estrazioni.txt",
         "2024/01/02\tBA\t1\t2\t3\t4\t5\n"
         "2024/01/02\tRN\t86\t87\t88\t89\t90\n"
         "2024/01/04\tBA\t11\t12\t13\t14\t15\n"
         "2024/01/04\tVE\t21\t22\t23\t24\t25\n");
  Esegui("Dim numeri, data\n");
  EXPECT_EQ(Testo("QuantitaEstrazioniInFile(\"estrazioni.txt\")"), "2");
  EXPECT_EQ(Testo("LeggiEstrazioneDaFile(\"estrazioni.txt\", 1, numeri)"), "Vero");
  EXPECT_EQ(Testo("numeri(1, 1) & \" \" & numeri(11, 5) & \" \" & numeri(10, 1) & \" \" & UBound(numeri, 1)"),
            "1 90 0 11")
      << "Nazionale at 11, an absent wheel holds 0";
  EXPECT_EQ(Testo("LeggiEstrazioneDaFile(\"estrazioni.txt\", 2, numeri, data)"), "Vero");
  EXPECT_EQ(Testo("numeri(1, 5) & \" \" & numeri(10, 3) & \" \" & data"), "15 23 04/01/2024");
  EXPECT_EQ(Testo("LeggiEstrazioneDaFile(\"estrazioni.txt\", 3, numeri)"), "Falso");
  EXPECT_EQ(Testo("numeri(1, 5)"), "15") << "left untouched";
  EXPECT_TRUE(m_ospite.avvisi.empty());

  Scrivi(m_cartella / "estrazioni.txt", "2024/01/02\tBA\t1\t2\t3\t4\t5\n2024/01/09\tBA\t1\t2\t3\t4\n");
  EXPECT_EQ(Testo("QuantitaEstrazioniInFile(\"estrazioni.txt\")"), "0") << "a changed file is read again";
  EXPECT_EQ(Motivo("QuantitaEstrazioniInFile"), "Riga 2: attesi 7 campi (data, ruota e cinque numeri), trovati 6");
}

TEST_F(LibreriaFile, BadArgumentsAreError5) {
  for (std::string_view chiamata : {"ScriviFile(\"\", \"x\")", "FileEsistente(\"\")", "ScegliNumeri(\"t\", 0)",
                                    "ScegliNumeri(\"t\", 91)", "ScegliDaLista(3)", "EstrazioniRicerca(5, 2)",
                                    "EstrazioniRicerca(1, 7, 13)", "EstrazioniRicerca(1, 7, 0, 8)"}) {
    EXPECT_TRUE(Vuoto(chiamata)) << chiamata;
    EXPECT_TRUE(UnicoAvviso().testo.starts_with("5- ")) << chiamata;
  }
}

TEST_F(LibreriaFile, TheRunClosesTheFilesItsScriptLeftOpenEvenAfterAnError) {
  OspiteDiProva ospite;
  EsecutoreScript esecutore(ospite);
  OpzioniEsecuzione opzioni;
  opzioni.libreria.cartella_base = m_cartella.Percorso();
  opzioni.libreria.cartella_output = m_cartella.Percorso();
  const auto esito = esecutore.Esegui(
      u"Sub Main\n ScriviFile \"a.txt\", \"uno\"\n ScriviFile \"b.txt\", \"due\"\n"
      u" Err.Raise 1000\nEnd Sub\n",
      opzioni);
  EXPECT_EQ(esito.stato, EsitoEsecuzione::Stato::ErroreScript);
  EXPECT_EQ(Leggi(m_cartella / "a.txt"), "uno\n");
  EXPECT_EQ(Leggi(m_cartella / "b.txt"), "due\n");
}

TEST_F(LibreriaFile, ActiveDrawsAreSetOneByOneOrBySearch) {
  EXPECT_EQ(Testo("EstrazioneAttivata(1) & EstrazioneAttivata(7)"), "VeroVero") << "every draw starts active";
  EXPECT_EQ(Testo("ImpostaNessunaEstrazione"), "");
  EXPECT_EQ(Testo("EstrazioneAttivata(1) & EstrazioneAttivata(7)"), "FalsoFalso");
  Esegui("ImpostaEstrazione 3\nImpostaEstrazione 5, True\nImpostaEstrazione 5, False\n");
  EXPECT_EQ(Testo("EstrazioneAttivata(2) & EstrazioneAttivata(3) & EstrazioneAttivata(5)"), "FalsoVeroFalso");
  EXPECT_EQ(Testo("EstrazioneAttivata(0) & EstrazioneAttivata(8)"), "FalsoFalso");
  EXPECT_TRUE(Vuoto("ImpostaEstrazione(8)"));
  EXPECT_TRUE(UnicoAvviso().testo.starts_with("9- "));

  Esegui(
      "Function Attive\n Dim id\n For id = 1 To 7\n  If EstrazioneAttivata(id) Then Attive = Attive & id\n Next\n"
      "End Function\n");
  EXPECT_EQ(Testo("EstrazioniRicerca(1, 7, 1)"), "3");
  EXPECT_EQ(Testo("Attive"), "345");
  EXPECT_EQ(Testo("EstrazioniRicerca(2, 7, 0, 3)"), "2") << "Tuesdays after the first draw";
  EXPECT_EQ(Testo("Attive"), "36");
  EXPECT_EQ(Testo("EstrazioniRicerca(1, 7, 12, 5)"), "1") << "Thursdays of December";
  EXPECT_EQ(Testo("Attive"), "2");
  EXPECT_EQ(Testo("EstrazioniRicerca(1, 7, 0, 2)"), "0") << "no draw on a Monday";
  EXPECT_EQ(Testo("Attive"), "");
  EXPECT_EQ(Testo("InitArrayFlagEstrazioniAttive"), "");
  EXPECT_EQ(Testo("Attive"), "1234567");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

// A host that nobody answers keeps the dialogs' defaults.
TEST_F(LibreriaFile, WithoutAnAnswerEachDialogTakesItsDefault) {
  Esegui("Dim a, inizio, fine\n");
  EXPECT_EQ(Testo("ScegliRuota"), "1");
  EXPECT_EQ(Testo("Join(ScegliRuote(\"Ruote\"), \",\")"), "1");
  EXPECT_EQ(Testo("UBound(ScegliNumeri)"), "0");
  EXPECT_EQ(Testo("ScegliEsito"), "1");
  EXPECT_EQ(Testo("ScegliDaLista(Array(\"a\", \"b\"))"), "0") << "the index in the array's own bounds";
  EXPECT_EQ(Testo("ScegliOpzioneMenu(\"Menu\", \"x\", \"y\")"), "1");
  EXPECT_EQ(Testo("ScegliDirectory"), m_cartella.Percorso().string());
  EXPECT_EQ(Testo("ScegliFile(\"File\", \"a.txt\") & \"|\" & ScegliFile"), "a.txt|");
  EXPECT_EQ(Testo("ScegliRange(inizio, fine) & \" \" & inizio & \"-\" & fine"), "Vero 1-7");
  Esegui("inizio = 2 : fine = 5\n");
  EXPECT_EQ(Testo("ScegliRange(inizio, fine) & \" \" & inizio & \"-\" & fine"), "Vero 2-5");
  EXPECT_EQ(Testo("ScegliPoste(a) & \" \" & Join(a, \";\")"), "Vero 1;1;0;0;0");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

// Answers each dialog with the next answer the test prepared, and keeps what the dialogs showed.
class OspiteCheRisponde final : public InterfacciaScript {
 public:
  explicit OspiteCheRisponde(OspiteDiProva& resto) : m_resto(resto) {}
  void Scrivi(const TrattoTesto& tratto) override { m_resto.Scrivi(tratto); }
  void Mostra(const Avviso& avviso) override { m_resto.Mostra(avviso); }
  void Messaggio(const std::string& testo) override { m_resto.Messaggio(testo); }
  void Avanzamento(double) override {}

  std::optional<std::vector<int>> ScegliVoci(const std::string& titolo, const std::vector<std::string>& voci,
                                             bool multipla) override {
    titoli.push_back(titolo);
    voci_mostrate = voci;
    scelta_multipla = multipla;
    return Prossima();
  }
  std::optional<std::vector<int>> ScegliNumeri(const std::string& titolo, int quanti, int massimo,
                                               const std::vector<int>& proposti) override {
    titoli.push_back(titolo);
    limiti = {quanti, massimo};
    numeri_proposti = proposti;
    return Prossima();
  }
  std::optional<std::string> ScegliPercorso(const std::string& titolo, const std::string& proposto,
                                            bool cartella) override {
    titoli.push_back(titolo);
    percorso_proposto = proposto;
    if (!risposte.empty() && !risposte.front()) {
      risposte.pop_front();
      return std::nullopt;
    }
    return cartella ? "/una/cartella" : "/un/file.txt";
  }

  std::optional<std::vector<double>> ScegliImporti(const std::string& titolo, const std::vector<std::string>& voci,
                                                   const std::vector<double>& proposti) override {
    titoli.push_back(titolo);
    voci_mostrate = voci;
    importi_proposti = proposti;
    auto risposta = importi.front();
    importi.pop_front();
    return risposta;
  }

  std::deque<std::optional<std::vector<int>>> risposte;
  std::deque<std::optional<std::vector<double>>> importi;
  std::vector<double> importi_proposti;
  std::vector<std::string> titoli;
  std::vector<std::string> voci_mostrate;
  bool scelta_multipla = false;
  std::vector<int> limiti;
  std::vector<int> numeri_proposti;
  std::string percorso_proposto;

 private:
  std::optional<std::vector<int>> Prossima() {
    auto risposta = risposte.front();
    risposte.pop_front();
    return risposta;
  }

  OspiteDiProva& m_resto;
};

class Dialoghi : public Libreria {
 protected:
  void SetUp() override {
    m_tab = TabellaDatata();
    ImpostazioniLibreria impostazioni;
    impostazioni.archivio = &m_tab;
    impostazioni.cartella_base = "/base";
    ASSERT_TRUE(m_engine.SetLanguage("VBScript"));
    ASSERT_TRUE(m_engine.AddObject(
        "ClsFunctionsGeodoScript",
        vbs::MakeRef<ClsFunctionsGeodoScript>(m_risponde, m_engine.interpreter().locale(), impostazioni), true));
    Esegui("Dim a, inizio, fine\n");
  }
  void Rispondi(std::optional<std::vector<int>> risposta) { m_risponde.risposte.push_back(std::move(risposta)); }

  OspiteCheRisponde m_risponde{m_ospite};
};

TEST_F(Dialoghi, WheelsAndSorteArriveInTheScriptsNumbering) {
  Rispondi(std::vector<int>{10});
  EXPECT_EQ(Testo("ScegliRuota(\"Dove?\")"), "12") << "Nazionale is NZ_";
  EXPECT_EQ(m_risponde.titoli.back(), "Dove?");
  ASSERT_EQ(m_risponde.voci_mostrate.size(), 12u);
  EXPECT_EQ(m_risponde.voci_mostrate.front(), "Bari");
  EXPECT_EQ(m_risponde.voci_mostrate[10], "Nazionale");
  EXPECT_EQ(m_risponde.voci_mostrate.back(), "Tutte le ruote");
  EXPECT_FALSE(m_risponde.scelta_multipla);
  Rispondi(std::vector<int>{11});
  EXPECT_EQ(Testo("ScegliRuota"), "11") << "all the wheels are TU_";
  Rispondi(std::nullopt);
  EXPECT_EQ(Testo("ScegliRuota"), "0");

  Rispondi(std::vector<int>{10, 0, 4});
  EXPECT_EQ(Testo("Join(ScegliRuote, \",\")"), "1,5,12");
  EXPECT_TRUE(m_risponde.scelta_multipla);
  EXPECT_EQ(m_risponde.voci_mostrate.size(), 11u);
  Rispondi(std::nullopt);
  EXPECT_EQ(Testo("UBound(ScegliRuote)"), "0");

  Rispondi(std::vector<int>{2});
  EXPECT_EQ(Testo("ScegliEsito = TERNO_"), "Vero");
  EXPECT_EQ(m_risponde.voci_mostrate, (std::vector<std::string>{"Ambata", "Ambo", "Terno", "Quaterna", "Cinquina"}));
  Rispondi(std::nullopt);
  EXPECT_EQ(Testo("ScegliEsito"), "0");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(Dialoghi, ListsAndMenusGiveThePlaceOfTheChoice) {
  Esegui("ReDim a(3)\na(1) = \"uno\" : a(2) = 2.5 : a(3) = True\n");
  Rispondi(std::vector<int>{2});
  EXPECT_EQ(Testo("ScegliDaLista(a, \"Quale?\")"), "2") << "the index in the array's bounds";
  EXPECT_EQ(m_risponde.voci_mostrate, (std::vector<std::string>{"", "uno", "2,5", "Vero"}));
  Rispondi(std::nullopt);
  EXPECT_EQ(Testo("ScegliDaLista(a)"), "-1");

  Rispondi(std::vector<int>{1});
  EXPECT_EQ(Testo("ScegliOpzioneMenu(\"Cosa faccio?\", \"Salva\", \"Stampa\", \"Esci\")"), "2");
  EXPECT_EQ(m_risponde.voci_mostrate, (std::vector<std::string>{"Salva", "Stampa", "Esci"}));
  Rispondi(std::nullopt);
  EXPECT_EQ(Testo("ScegliOpzioneMenu(\"Cosa faccio?\", \"Salva\")"), "0");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(Dialoghi, NumbersAndRangesAreCheckedAgainstTheirLimits) {
  Rispondi(std::vector<int>{90, 7});
  EXPECT_EQ(Testo("Join(ScegliNumeri(\"Numeri\", 3), \",\")"), "90,7");
  EXPECT_EQ(m_risponde.limiti, (std::vector<int>{3, 90}));
  Rispondi(std::nullopt);
  Esegui("a = ScegliNumeri\n");
  EXPECT_EQ(Testo("LBound(a) & UBound(a)"), "10");

  Rispondi(std::vector<int>{6, 2});
  EXPECT_EQ(Testo("ScegliRange(inizio, fine) & \" \" & inizio & \"-\" & fine"), "Vero 2-6");
  EXPECT_EQ(m_risponde.limiti, (std::vector<int>{2, 7}));
  EXPECT_EQ(m_risponde.numeri_proposti, (std::vector<int>{1, 7}));
  Rispondi(std::nullopt);
  EXPECT_EQ(Testo("ScegliRange(inizio, fine) & \" \" & inizio & \"-\" & fine"), "Falso 2-6");
  EXPECT_EQ(m_risponde.numeri_proposti, (std::vector<int>{2, 6}));
  EXPECT_TRUE(m_ospite.avvisi.empty());

  // A host's answer that breaks the dialog's limits never reaches the script.
  Rispondi(std::vector<int>{91});
  EXPECT_TRUE(Vuoto("ScegliNumeri"));
  Rispondi(std::vector<int>{4, 4});
  EXPECT_TRUE(Vuoto("ScegliNumeri"));
  Rispondi(std::vector<int>{1, 2});
  EXPECT_TRUE(Vuoto("ScegliNumeri(\"Uno solo\", 1)"));
  Rispondi(std::vector<int>{3});
  EXPECT_TRUE(Vuoto("ScegliRange(inizio, fine)"));
  Rispondi(std::vector<int>{12});
  EXPECT_TRUE(Vuoto("ScegliRuota"));
  Rispondi(std::vector<int>{0, 1});
  EXPECT_TRUE(Vuoto("ScegliEsito"));
  ASSERT_EQ(m_ospite.avvisi.size(), 6u);
  EXPECT_EQ(m_ospite.avvisi[0].testo, "5- Risposta non valida al dialogo \"Scegli i numeri\"");
  EXPECT_EQ(m_ospite.avvisi[2].testo, "5- Risposta non valida al dialogo \"Uno solo\"");
  EXPECT_EQ(Testo("inizio & \"-\" & fine"), "2-6");
}

TEST_F(Dialoghi, StakesAreProposedFromTheArrayAndChecked) {
  Esegui("ReDim a(5)\na(2) = 0.5 : a(3) = \"2\"\n");
  m_risponde.importi.push_back(std::vector<double>{0, 1.5, 0, 0, 2});
  EXPECT_EQ(Testo("ScegliPoste(a, \"Poste\") & \" \" & LBound(a) & \" \" & Join(a, \";\")"), "Vero 1 0;1,5;0;0;2");
  EXPECT_EQ(m_risponde.importi_proposti, (std::vector<double>{1, 0.5, 2, 0, 0})) << "element 0 is not a sorte";
  EXPECT_EQ(m_risponde.voci_mostrate.front(), "Estratto");
  EXPECT_EQ(Testo("TypeName(a(2))"), "Double");

  m_risponde.importi.push_back(std::nullopt);
  EXPECT_EQ(Testo("ScegliPoste(a)"), "Falso");
  EXPECT_EQ(Testo("a(2)"), "1,5") << "a cancelled dialog leaves the stakes alone";
  m_risponde.importi.push_back(std::vector<double>{0, 0, 0, 0, 0});
  EXPECT_TRUE(Vuoto("ScegliPoste(a)")) << "a bet needs a stake";
  m_risponde.importi.push_back(std::vector<double>{1, -1, 0, 0, 0});
  EXPECT_TRUE(Vuoto("ScegliPoste(a)"));
  EXPECT_EQ(m_ospite.avvisi.size(), 2u);
}

TEST_F(Dialoghi, PathsAreAskedFromWhatIsProposed) {
  EXPECT_EQ(Testo("ScegliDirectory"), "/una/cartella");
  EXPECT_EQ(m_risponde.percorso_proposto, "/base");
  EXPECT_EQ(m_risponde.titoli.back(), "Scegli la cartella");
  EXPECT_EQ(Testo("ScegliFile(\"Apri\", \"dati\\a.txt\")"), "/un/file.txt");
  EXPECT_EQ(m_risponde.percorso_proposto, "dati\\a.txt");
  Rispondi(std::nullopt);
  EXPECT_EQ(Testo("Len(ScegliFile)"), "0");
}

}  // namespace
}  // namespace lottolab::script
