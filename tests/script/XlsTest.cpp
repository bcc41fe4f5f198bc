#include <gtest/gtest.h>

#include "LibreriaDiProva.h"
#include "TempDir.h"
#include "esporta/LetturaXlsx.h"

namespace lottolab::script {
namespace {

namespace fs = std::filesystem;
using esporta::Valore;

class LibreriaXls : public Libreria {
 protected:
  void SetUp() override {
    ImpostazioniLibreria impostazioni;
    impostazioni.cartella_base = m_cartella.Percorso();
    Avvia(TabellaEstrazioni({Datata(1, {1, 4, 1, 2005})}), impostazioni);
  }

  esporta::CartellaLavoro Rileggi(const std::string& nome) {
    auto letta = esporta::LeggiXlsx(m_cartella / nome);
    EXPECT_TRUE(letta) << (letta ? "" : letta.Errore().testo);
    return letta ? std::move(letta).Valore() : esporta::CartellaLavoro{};
  }

  test::CartellaTemporanea m_cartella;
};

TEST_F(LibreriaXls, UnaCartellaCreataRilettaECambiata) {
  fs::create_directory(m_cartella / "uscite");
  Esegui(R"(
    XlsApriFile "uscite\ritardi.xlsx"
    XlsScriviC 1, 1, "Ritardi di Bari", True, Bianco_, RGB(31, 78, 121), , XlsCenter
    XlsMerge 1, 1, 1, 3
    XlsScrivi 2, 1, 90
    XlsScrivi 2, 2, 1 / 4
    XlsFormatoCella 2, 2, , Rosso_, , "0.00", XlsRight
    XlsScrivi 2, 3, "città"
    XlsScrivi 3, 1, DateSerial(2024, 5, 4)
    XlsScrivi 3, 2, True
    XlsAddFoglio "Somme"
    XlsScrivi 1, 1, "corrente"
    XlsScriviInFoglio 1, 5, 5, "primo"
    XlsAutoFit
  )");
  EXPECT_EQ(Testo("XlsGetFoglio"), "2");
  EXPECT_EQ(Testo("XlsChiudi"), "Vero");
  EXPECT_TRUE(m_ospite.avvisi.empty()) << m_ospite.avvisi.front().testo;

  auto cartella = Rileggi("uscite/ritardi.xlsx");
  ASSERT_EQ(cartella.fogli.size(), 2u);
  const auto& primo = cartella.fogli[0];
  EXPECT_EQ(primo.nome, "Foglio1");
  EXPECT_EQ(primo.Trova({1, 1})->valore, Valore(std::string("Ritardi di Bari")));
  const auto& titolo = cartella.formati[primo.Trova({1, 1})->formato];
  EXPECT_TRUE(titolo.grassetto);
  EXPECT_EQ(titolo.colore_testo, 0xFFFFFFu);
  EXPECT_EQ(titolo.colore_sfondo, 0x1F4E79u);
  EXPECT_EQ(titolo.allineamento, esporta::Allineamento::Centro);
  EXPECT_EQ(primo.unioni.size(), 1u);
  EXPECT_EQ(primo.Trova({2, 2})->valore, Valore(0.25));
  const auto& quarto = cartella.formati[primo.Trova({2, 2})->formato];
  EXPECT_EQ(quarto.formato_numero, "0.00");
  EXPECT_EQ(quarto.colore_testo, 0xFF0000u);
  EXPECT_EQ(quarto.allineamento, esporta::Allineamento::Destra);
  EXPECT_EQ(primo.Trova({3, 1})->valore, Valore(45416.0));
  EXPECT_EQ(cartella.formati[primo.Trova({3, 1})->formato].formato_numero, "dd/mm/yyyy");
  EXPECT_EQ(primo.Trova({3, 2})->valore, Valore(true));
  EXPECT_EQ(cartella.fogli[1].Trova({1, 1})->valore, Valore(std::string("corrente")));
  EXPECT_GT(cartella.fogli[1].larghezze.at(1), 8);
  EXPECT_EQ(primo.Trova({5, 5})->valore, Valore(std::string("primo")));

  // Opened again: read, changed and saved as a whole.
  EXPECT_EQ(Testo("XlsApriFile(\"uscite/ritardi.xlsx\", False)"), "Vero");
  EXPECT_EQ(Testo("XlsLeggi(2, 3)"), "città");
  EXPECT_EQ(Testo("XlsLeggi(2, 2) * 4"), "1");
  EXPECT_EQ(Testo("XlsLeggiinFoglio(\"SOMME\", 1, 1)"), "corrente");
  EXPECT_TRUE(Vuoto("XlsLeggi(100, 100)"));
  Esegui("XlsScrivi 2, 3, Empty\nXlsScriviInFoglio 2, 2, 1, 7\n");
  EXPECT_EQ(Testo("XlsSalva(\"copia.xlsx\")"), "Vero");
  auto copia = Rileggi("copia.xlsx");
  EXPECT_EQ(copia.fogli[0].Trova({2, 3}), nullptr);
  EXPECT_EQ(copia.fogli[1].Trova({2, 1})->valore, Valore(7.0));
  EXPECT_EQ(copia.fogli[0].Trova({1, 1})->valore, Valore(std::string("Ritardi di Bari")));
}

TEST_F(LibreriaXls, ArgomentiErrati) {
  const std::pair<std::string_view, std::string_view> prima[] = {
      {"XlsScrivi(1, 1, 2)", "Nessuna cartella di lavoro aperta"},
      {"XlsApriFile(\"vecchio.xls\")", "il vecchio formato .xls non è gestito"},
  };
  for (const auto& [chiamata, motivo] : prima) {
    EXPECT_TRUE(Vuoto(chiamata)) << chiamata;
    AvvisoErrore5(chiamata.substr(0, chiamata.find('(')), motivo, chiamata);
  }
  EXPECT_EQ(Testo("XlsApriFile(\"nuovo.xlsx\")"), "Vero");
  Esegui("XlsMerge 1, 1, 2, 2\n");
  const std::pair<std::string_view, std::string_view> casi[] = {
      {"XlsScrivi(0, 1, 2)", "Riga 0 fuori da 1..1048576"},
      {"XlsScrivi(1, 16385, 2)", "Colonna 16385 fuori da 1..16384"},
      {"XlsScrivi(1, 1, Array(1, 2))", "Un array o un oggetto"},
      {"XlsScrivi(1, 1, String(32768, \"x\"))", "non entra in una cella"},
      {"XlsScriviInFoglio(2, 1, 1, 2)", "Foglio 2 inesistente: la cartella di lavoro ne ha 1"},
      {"XlsLeggiinFoglio(\"Dati\", 1, 1)", "non ha un foglio \"Dati\""},
      {"XlsFormatoCella(1, 1, True, 16777216)", "Colore 16777216 non valido"},
      {"XlsFormatoCella(1, 1, , , , , 3)", "Allineamento 3 non valido"},
      {"XlsMerge(2, 2, 3, 3)", "Le celle B2:C3 non si possono unire"},
      {"XlsMerge(4, 4, 4, 4)", "non si possono unire"},
      {"XlsAddFoglio(\"foglio1\")", "esiste già"},
      {"XlsAddFoglio(\"a:b\")", "contiene uno dei caratteri"},
      {"XlsGetLetteraFromColonna(0)", "Colonna 0 fuori"},
  };
  for (const auto& [chiamata, motivo] : casi) {
    EXPECT_TRUE(Vuoto(chiamata)) << chiamata;
    AvvisoErrore5(chiamata.substr(0, chiamata.find('(')), motivo, chiamata);
  }
  EXPECT_EQ(Testo("XlsGetLetteraFromColonna(16384) & XlsGetLetteraFromColonna(28)"), "XFDAB");
  EXPECT_EQ(Testo("XlsLeft & \" \" & XlsCenter & \" \" & XlsRight"), "-4131 -4108 -4152");
}

TEST_F(LibreriaXls, FileDaFuoriGuastiOMancanti) {
  test::Scrivi(m_cartella / "finto.xlsx", "Ruota;Numero\r\n");
  EXPECT_EQ(Testo("XlsApriFile(\"finto.xlsx\")"), "Falso");
  const Avviso avviso = UnicoAvviso();
  EXPECT_EQ(avviso.titolo, "ClsFunctionsGeodoScript.XlsApriFile");
  EXPECT_NE(avviso.testo.find("finto.xlsx non è una cartella di lavoro .xlsx leggibile: non è un archivio zip"),
            std::string::npos)
      << avviso.testo;
  EXPECT_TRUE(Vuoto("XlsLeggi(1, 1)"));  // nothing was opened
  AvvisoErrore5("XlsLeggi", "Nessuna cartella di lavoro aperta", "dopo un file guasto");

  EXPECT_EQ(Testo("XlsApriFile(\"manca.xlsx\", False)"), "Falso");
  EXPECT_EQ(UnicoAvviso().testo.substr(0, 8), "Il file ");
  EXPECT_FALSE(fs::exists(m_cartella / "manca.xlsx"));
}

TEST_F(LibreriaXls, MostraSalvaEFineEsecuzioneAvvisa) {
  Esegui("XlsApriFile \"mostrata.xlsx\"\nXlsScrivi 1, 1, 5\n");
  EXPECT_EQ(Testo("XlsMostra"), "Vero");
  EXPECT_EQ(m_ospite.testo, "Cartella di lavoro salvata in " + (m_cartella / "mostrata.xlsx").string() + "\n");
  EXPECT_EQ(Rileggi("mostrata.xlsx").fogli[0].Trova({1, 1})->valore, Valore(5.0));

  // Changed after it was shown: the end of the run says so and writes nothing.
  Esegui("XlsScrivi 1, 1, 6\nDeinizializzaXls\n");
  EXPECT_NE(UnicoAvviso().testo.find("non sono state salvate"), std::string::npos);
  EXPECT_EQ(Rileggi("mostrata.xlsx").fogli[0].Trova({1, 1})->valore, Valore(5.0));
  EXPECT_TRUE(Vuoto("XlsGetFoglio"));
  AvvisoErrore5("XlsGetFoglio", "Nessuna cartella di lavoro aperta", "dopo DeinizializzaXls");

  // Opening another workbook saves the changes of the one open.
  Esegui("XlsApriFile \"mostrata.xlsx\"\nXlsScrivi 1, 1, 7\nXlsApriFile \"altra.xlsx\"\nXlsChiudi False\n");
  EXPECT_EQ(Rileggi("mostrata.xlsx").fogli[0].Trova({1, 1})->valore, Valore(7.0));
  EXPECT_FALSE(fs::exists(m_cartella / "altra.xlsx"));
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaXls, LaTabellaDelloScriptEsportata) {
  EXPECT_TRUE(Vuoto("EsportaListviewInXls(\"lista.xlsx\")"));
  AvvisoErrore5("EsportaListviewInXls", "Nessuna tabella iniziata", "prima di InitTabella");
  Esegui(R"(
    InitTabella Array("Numero", "Ritardo", "Nota")
    AddRigaTabella Array(12, "3,5", "città")
    SetColoreCella 2, Rosso_
    AddRigaTabella Array("-7", "1,2,3", ",5")
    CreaTabella
  )");
  m_ospite.avvisi.clear();
  EXPECT_EQ(Testo("EsportaListviewInXls(\"lista.xlsx\")"), "Vero");
  auto cartella = Rileggi("lista.xlsx");
  const auto& foglio = cartella.fogli.at(0);
  EXPECT_EQ(foglio.Trova({1, 2})->valore, Valore(std::string("Ritardo")));
  EXPECT_TRUE(cartella.formati[foglio.Trova({1, 2})->formato].grassetto);
  EXPECT_EQ(foglio.Trova({2, 1})->valore, Valore(12.0));
  EXPECT_EQ(foglio.Trova({2, 2})->valore, Valore(3.5));
  EXPECT_EQ(cartella.formati[foglio.Trova({2, 2})->formato].colore_sfondo, 0xFF0000u);
  EXPECT_EQ(foglio.Trova({2, 3})->valore, Valore(std::string("città")));
  EXPECT_EQ(foglio.Trova({3, 1})->valore, Valore(-7.0));
  EXPECT_EQ(foglio.Trova({3, 2})->valore, Valore(std::string("1,2,3")));
  EXPECT_EQ(foglio.Trova({3, 3})->valore, Valore(std::string(",5")));
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

}  // namespace
}  // namespace lottolab::script
