#include <gtest/gtest.h>

#include "TempDir.h"
#include "ZipDiProva.h"
#include "esporta/LetturaXlsx.h"
#include "esporta/ScritturaXlsx.h"

namespace lottolab::esporta {
namespace {

CartellaLavoro Esempio() {
  CartellaLavoro cartella;
  Foglio& ritardi = cartella.fogli[*cartella.AggiungiFoglio("Ritardi è")];
  const uint32_t titolo = cartella.IndiceFormato(
      {.grassetto = true, .colore_testo = 0xFFFFFF, .colore_sfondo = 0x1F4E79, .allineamento = Allineamento::Centro});
  const uint32_t decimali =
      cartella.IndiceFormato({.corsivo = true, .formato_numero = "0.00", .allineamento = Allineamento::Destra});
  ritardi.celle[{1, 1}] = {std::string("Ritardi su Bari"), titolo};
  ritardi.AggiungiUnione({{1, 1}, {1, 3}});
  ritardi.celle[{2, 1}].valore = 90.0;
  ritardi.celle[{2, 2}] = {1.0 / 3, decimali};
  ritardi.celle[{2, 3}].valore = std::string("uno \"due\" <tre> & più");
  ritardi.celle[{3, 2}].valore = true;
  ritardi.celle[{4, 4}] = {Valore(), titolo};  // a format without a value
  ritardi.celle[{1048576, 16384}].valore = -0.5;
  ritardi.larghezze[2] = 20;
  cartella.fogli[*cartella.AggiungiFoglio("")].celle[{1, 1}].valore = std::string("secondo");
  return cartella;
}

TEST(Xlsx, ScrittaERilettaUguale) {
  test::CartellaTemporanea dir;
  const CartellaLavoro scritta = Esempio();
  ASSERT_TRUE(ScriviXlsx(scritta, dir / "prova.xlsx"));
  auto letta = LeggiXlsx(dir / "prova.xlsx");
  ASSERT_TRUE(letta) << letta.Errore().testo;

  ASSERT_EQ(letta->fogli.size(), 2u);
  EXPECT_EQ(letta->fogli[1].nome, "Foglio2");
  for (size_t f = 0; f < 2; ++f) {
    const Foglio& a = scritta.fogli[f];
    const Foglio& b = letta->fogli[f];
    EXPECT_EQ(b.nome, a.nome);
    ASSERT_EQ(b.celle.size(), a.celle.size()) << a.nome;
    for (const auto& [p, cella] : a.celle) {
      const Cella* riletta = b.Trova(p);
      ASSERT_NE(riletta, nullptr) << LetteraColonna(p.colonna) << p.riga;
      EXPECT_EQ(riletta->valore, cella.valore) << LetteraColonna(p.colonna) << p.riga;
      EXPECT_EQ(letta->formati[riletta->formato], scritta.formati[cella.formato])
          << LetteraColonna(p.colonna) << p.riga;
    }
  }
  ASSERT_EQ(letta->fogli[0].unioni.size(), 1u);
  EXPECT_EQ(letta->fogli[0].unioni[0].fine, (Posizione{1, 3}));
  EXPECT_DOUBLE_EQ(letta->fogli[0].larghezze.at(2), 20);

  // What was read is written again: the way a script opens, changes and saves a workbook.
  letta->fogli[1].celle[{2, 2}].valore = 7.0;
  ASSERT_TRUE(ScriviXlsx(*letta, dir / "prova.xlsx"));
  auto di_nuovo = LeggiXlsx(dir / "prova.xlsx");
  ASSERT_TRUE(di_nuovo);
  EXPECT_EQ(di_nuovo->fogli[0].Trova({2, 3})->valore, scritta.fogli[0].Trova({2, 3})->valore);
  EXPECT_EQ(di_nuovo->fogli[1].Trova({2, 2})->valore, Valore(7.0));
}

TEST(Xlsx, UnTitoloSuPiuColonneNonLeAllarga) {
  Foglio foglio;
  foglio.celle[{1, 1}].valore = std::string("Un titolo lungo sopra tre colonne della tabella");
  foglio.celle[{2, 1}].valore = std::string("Bari");
  foglio.celle[{2, 2}].valore = std::string("Ruota di Venezia");
  foglio.unioni.push_back({{1, 1}, {1, 3}});
  const std::map<int, double> larghezze = LarghezzeAdattate(foglio);
  EXPECT_DOUBLE_EQ(larghezze.at(1), 8.43) << "the title is joined over three columns";
  EXPECT_DOUBLE_EQ(larghezze.at(2), 18.0);
}

TEST(Xlsx, UnaScritturaRifiutataLasciaIlFile) {
  test::CartellaTemporanea dir;
  ASSERT_TRUE(ScriviXlsx(Esempio(), dir / "prova.xlsx"));
  const std::string prima = test::Leggi(dir / "prova.xlsx");

  CartellaLavoro errata = Esempio();
  errata.fogli[1].celle[{1, 1}].valore = std::string(kMassimoCaratteriCella + 1, 'x');
  auto esito = ScriviXlsx(errata, dir / "prova.xlsx");
  ASSERT_FALSE(esito);
  EXPECT_NE(esito.Errore().testo.find("Foglio2!A1"), std::string::npos) << esito.Errore().testo;
  EXPECT_EQ(test::Leggi(dir / "prova.xlsx"), prima);

  std::filesystem::create_directory(dir / "cartella.xlsx");
  EXPECT_FALSE(ScriviXlsx(Esempio(), dir / "cartella.xlsx"));
  EXPECT_FALSE(ScriviXlsx(Esempio(), dir / "manca" / "prova.xlsx"));
}

// The parts of a workbook of one sheet, for the cases below to spoil one at a time.
std::map<std::string, std::string> Parti(std::string dati_foglio) {
  return {
      {"_rels/.rels",
       R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
       R"(<Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument" Target="xl/workbook.xml"/></Relationships>)"},
      {"xl/workbook.xml",
       R"(<workbook xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships"><sheets>)"
       R"(<sheet name="Dati" sheetId="1" r:id="rId1"/></sheets></workbook>)"},
      {"xl/_rels/workbook.xml.rels",
       R"(<Relationships><Relationship Id="rId1" Type="x/worksheet" Target="worksheets/sheet1.xml"/>)"
       R"(<Relationship Id="rId2" Type="x/sharedStrings" Target="/xl/sharedStrings.xml"/></Relationships>)"},
      {"xl/sharedStrings.xml", "<sst><si><t>zero</t></si><si><r><t>u</t></r><r><t>no</t></r></si></sst>"},
      {"xl/worksheets/sheet1.xml", "<worksheet><sheetData>" + dati_foglio + "</sheetData></worksheet>"},
  };
}

Esito<CartellaLavoro> LeggiParti(const std::map<std::string, std::string>& parti, const LimitiLettura& limiti = {}) {
  test::CartellaTemporanea dir;
  test::ScriviZip(dir / "f.xlsx", parti);
  return LeggiXlsx(dir / "f.xlsx", limiti);
}

TEST(Xlsx, LettaDaUnAltroProduttore) {
  // Prefixed names, rows and cells without references, inline and shared strings.
  auto letta =
      LeggiParti(Parti(R"(<x:row><x:c t="s"><x:v>1</x:v></x:c><x:c t="inlineStr"><x:is><x:t>in</x:t></x:is></x:c>)"
                       R"(</x:row><row r="5"><c r="C5" t="b"><v>1</v></c><c><v>2.5e3</v></c></row>)"));
  ASSERT_TRUE(letta) << letta.Errore().testo;
  const Foglio& f = letta->fogli.at(0);
  EXPECT_EQ(f.nome, "Dati");
  EXPECT_EQ(f.Trova({1, 1})->valore, Valore(std::string("uno")));
  EXPECT_EQ(f.Trova({1, 2})->valore, Valore(std::string("in")));
  EXPECT_EQ(f.Trova({5, 3})->valore, Valore(true));
  EXPECT_EQ(f.Trova({5, 4})->valore, Valore(2500.0));
}

TEST(Xlsx, FileGuastiRifiutati) {
  const auto valido = Parti("<row r=\"1\"><c r=\"A1\"><v>1</v></c></row>");
  auto senza = [&](const std::string& parte) {
    auto parti = valido;
    parti.erase(parte);
    return parti;
  };
  auto con = [&](const std::string& parte, std::string contenuto) {
    auto parti = valido;
    parti[parte] = std::move(contenuto);
    return parti;
  };
  std::string molte_righe;
  for (int r = 1; r <= 20; ++r) molte_righe += "<row><c><v>1</v></c></row>";
  struct Caso {
    std::string nome;
    std::map<std::string, std::string> parti;
    std::string motivo;
    LimitiLettura limiti = {};
  };
  const Caso casi[] = {
      {"senza cartella", senza("xl/workbook.xml"), "manca la parte xl/workbook.xml"},
      {"senza foglio", senza("xl/worksheets/sheet1.xml"), "manca la parte xl/worksheets/sheet1.xml"},
      {"XML rotto", con("xl/worksheets/sheet1.xml", "<worksheet><sheetData><row>"), "non è XML valido"},
      {"testo inesistente", Parti("<row><c t=\"s\"><v>2</v></c></row>"), "valore non valido nella cella A1"},
      {"numero non numero", Parti("<row><c><v>1,5</v></c></row>"), "valore non valido nella cella A1"},
      {"riferimento fuori", Parti("<row r=\"1\"><c r=\"XFE1\"><v>1</v></c></row>"), "riferimento non valido"},
      {"riga fuori", Parti("<row r=\"1048577\"><c><v>1</v></c></row>"), "riga fuori dai limiti"},
      {"riga sbagliata", Parti("<row r=\"2\"><c r=\"A3\"><v>1</v></c></row>"), "riferimento non valido"},
      {"nessun foglio", con("xl/workbook.xml", "<workbook><sheets/></workbook>"), "non contiene alcun foglio"},
      {"nome di foglio errato",
       con("xl/workbook.xml", R"(<workbook><sheets><sheet name="a/b" r:id="rId1"/></sheets></workbook>)"),
       "il foglio \"a/b\" non è descritto correttamente"},
      {"troppe celle", Parti(molte_righe), "ha più di 10 celle", {.celle = 10}},
      {"parte enorme",
       con("xl/sharedStrings.xml", "<sst>" + std::string(3 << 20, ' ') + "</sst>"),
       "la parte xl/sharedStrings.xml supera 1 MB una volta estratta",
       {.parte = 1 << 20}},
  };
  for (const Caso& caso : casi) {
    auto letta = LeggiParti(caso.parti, caso.limiti);
    ASSERT_FALSE(letta) << caso.nome;
    EXPECT_NE(letta.Errore().testo.find(caso.motivo), std::string::npos) << caso.nome << ": " << letta.Errore().testo;
    EXPECT_NE(letta.Errore().testo.find("non è una cartella di lavoro .xlsx leggibile"), std::string::npos);
  }
}

TEST(Xlsx, FileCheNonSonoCartelle) {
  test::CartellaTemporanea dir;
  test::Scrivi(dir / "testo.xlsx", "Ruota;Numero\r\n");
  auto testo = LeggiXlsx(dir / "testo.xlsx");
  ASSERT_FALSE(testo);
  EXPECT_NE(testo.Errore().testo.find("non è un archivio zip"), std::string::npos);

  ASSERT_TRUE(ScriviXlsx(Esempio(), dir / "intero.xlsx"));
  const std::string intero = test::Leggi(dir / "intero.xlsx");
  for (size_t taglio : {size_t{0}, intero.size() / 2, intero.size() - 30})
    EXPECT_FALSE(LeggiXlsxDaByte(std::string_view(intero).substr(0, taglio))) << taglio;
  EXPECT_FALSE(LeggiXlsxDaByte(intero, {.file = 1000}));

  std::filesystem::create_directory(dir / "cartella.xlsx");
  auto cartella = LeggiXlsx(dir / "cartella.xlsx");
  ASSERT_FALSE(cartella);
  EXPECT_TRUE(cartella.Errore().testo.starts_with("Impossibile leggere il file ")) << cartella.Errore().testo;
  EXPECT_FALSE(LeggiXlsx(dir / "manca.xlsx"));
}

}  // namespace
}  // namespace lottolab::esporta
