#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "LibreriaDiProva.h"
#include "TempDir.h"
#include "script/TabellaOutput.h"
#include "stats/ArchiviDiProva.h"

namespace lottolab::script {
namespace {

using test::Archivio;

constexpr std::string_view kTestaPagina = "<html>\n<body bgcolor =#FFFFFF>\n<pre>\n";
constexpr std::string_view kCodaPagina = "</pre>\n</body>\n</html>\n";

// Draw 1 of 4/1/2005 has Bari written out and no Nazionale yet; draw 2 of 6/1/2005 has both.
TabellaEstrazioni DueEstrazioni() {
  TabellaEstrazioni tab = Archivio()
                              .NazionaleDa(2)
                              .Estrazione({{BA, {7, 12, 45, 60, 88}}, {VE, {1, 2, 3, 90, 9}}})
                              .Estrazione({{NZ, {10, 20, 30, 40, 50}}})
                              .Tabella();
  tab[1].data = {1, 4, 1, 2005};
  tab[2].data = {2, 6, 1, 2005};
  return tab;
}

// The library with the run's page open in a folder of its own.
class LibreriaConPagina : public Libreria {
 protected:
  void SetUp() override {
    ImpostazioniLibreria impostazioni;
    impostazioni.cartella_output = m_cartella.Percorso();
    Avvia(DueEstrazioni(), impostazioni);
    Esegui("AzzeraHtmlOutput");
  }

  // What the script put into the page, between its head and its end; the page is closed.
  std::string Pagina(const std::string& nome = "output.htm") {
    Esegui("ChiudiFileHtmlOutput");
    const auto byte = test::LeggiByte(m_cartella / nome);
    std::string pagina(byte.begin(), byte.end());
    EXPECT_TRUE(pagina.starts_with(kTestaPagina) && pagina.ends_with(kCodaPagina)) << pagina;
    if (pagina.size() < kTestaPagina.size() + kCodaPagina.size()) return pagina;
    return pagina.substr(kTestaPagina.size(), pagina.size() - kTestaPagina.size() - kCodaPagina.size());
  }

  // Every call fails with error 5 under the function's name, and the script goes on.
  void Errore5(std::initializer_list<std::pair<std::string_view, std::string_view>> chiamate) {
    for (const auto& [funzione, codice] : chiamate) {
      Esegui(codice);
      AvvisoErrore5(funzione, "", codice);
    }
  }

  test::CartellaTemporanea m_cartella;
};

size_t Occorrenze(std::string_view testo, std::string_view cercato) {
  size_t volte = 0;
  for (size_t da = testo.find(cercato); da != std::string_view::npos; da = testo.find(cercato, da + 1)) ++volte;
  return volte;
}

TEST_F(LibreriaConPagina, UnaTabellaVaNellaPaginaComeHtmlENelTestoInColonne) {
  Esegui(R"(
InitTabella Array("Ruota", "Numero", "Note")
AddRigaTabella Array("BA", 7, "a<b & c>d"), , "destra"
AddRigaTabella Array("Nazionale", 45)
CreaTabella
Scrivi "dopo")");
  EXPECT_EQ(m_ospite.testo,
            "  Ruota    Numero    Note\n"
            "---------  ------  ---------\n"
            "       BA       7  a<b & c>d\n"
            "Nazionale  45\n"
            "dopo\n")
      << "titles centred, the empty last cell and the padding of the last column leave no blanks";
  EXPECT_EQ(Pagina(),
            "</pre>\n"
            "<table border=\"1\">\n"
            "<thead>\n"
            "<tr style=\"text-align:center\"><th>Ruota</th><th>Numero</th><th>Note</th></tr>\n"
            "</thead>\n"
            "<tbody>\n"
            "<tr style=\"text-align:right\"><td>BA</td><td>7</td><td>a&lt;b &amp; c&gt;d</td></tr>\n"
            "<tr style=\"text-align:left\"><td>Nazionale</td><td>45</td><td></td></tr>\n"
            "</tbody>\n"
            "</table>\n"
            "<pre>dopo\n");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaConPagina, ColoriLarghezzaEBordoDellaTabella) {
  Esegui(R"(
Dim titoli(2)
titoli(1) = "A" : titoli(2) = "B"
InitTabella titoli, Giallo_, "Sinistra", 0, "80%", Blu_
AddRigaTabella Array(1.5, "x"), Verde_, "centro", Rosso_
SetColoreCella 2, Ciano_, Magenta_
AddRigaTabella Array("y")
SetColoreCella 1, Bianco_
SetTableWidth 600)");
  EXPECT_EQ(Testo("GetTabella"),
            "<table border=\"0\" width=\"600\">\n"
            "<thead>\n"
            "<tr style=\"background-color:#FFFF00;color:#0000FF;text-align:left\"><th>A</th><th>B</th></tr>\n"
            "</thead>\n"
            "<tbody>\n"
            "<tr style=\"background-color:#008000;color:#FF0000;text-align:center\"><td>1,5</td>"
            "<td style=\"background-color:#00FFFF;color:#FF00FF\">x</td></tr>\n"
            "<tr style=\"text-align:left\"><td style=\"background-color:#FFFFFF\">y</td><td></td></tr>\n"
            "</tbody>\n"
            "</table>\n")
      << "the Empty element 0 of titoli is no column; numbers print in the locale";
  Esegui("SetTableWidth 0");
  EXPECT_EQ(Testo("Left(GetTabella, 19)"), "<table border=\"0\">\n");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST(TabellaOutput, IlTestoHaIColoriDelleCelleEDelleRighe) {
  TabellaOutput tabella({{{"T", {}}, {"U", {}}}, {kGiallo, kBlu}, Allineamento::Sinistra}, 1);
  tabella.AggiungiRiga({{{"a", {}}, {"b", {kVerde, kRosso}}}, {std::nullopt, kMagenta}, Allineamento::Sinistra});
  const auto tratti = tabella.Testo();
  ASSERT_EQ(tratti.size(), 5u);
  EXPECT_EQ(tratti[0].testo, "T  U\n");
  EXPECT_EQ(tratti[0].colore, kBlu);
  EXPECT_TRUE(tratti[0].grassetto);
  EXPECT_EQ(tratti[1].testo, "-  -\n");
  EXPECT_EQ(tratti[1].colore, kNero);
  EXPECT_FALSE(tratti[1].grassetto);
  EXPECT_EQ(tratti[2].testo, "a  ");
  EXPECT_EQ(tratti[2].colore, kMagenta);
  EXPECT_FALSE(tratti[2].grassetto);
  EXPECT_EQ(tratti[3].testo, "b");
  EXPECT_EQ(tratti[3].colore, kRosso) << "the cell's colour over the row's";
  EXPECT_EQ(tratti[4].testo, "\n");
  EXPECT_EQ(tratti[4].colore, kMagenta);
  EXPECT_EQ(Allinea("è", 3, Allineamento::Centro), " è ") << "widths count characters, not bytes";
}

TEST_F(LibreriaConPagina, LeDueTabelleSiCostruisconoInsiemeEIndipendenti) {
  Esegui(R"(
InitTabella Array("Uno")
InitTabellaX Array("Due", "Tre")
AddRigaTabellaX Array(2, 3)
AddRigaTabella Array(1), Rosso_
SetColoreCellaX 2, Verde_
SetTableWidthX "50%"
CreaTabellaX
CreaTabella)");
  EXPECT_EQ(m_ospite.testo, "Due  Tre\n---  ---\n2    3\nUno\n---\n1\n");
  EXPECT_EQ(Testo("GetTabellaX"),
            "<table border=\"1\" width=\"50%\">\n<thead>\n"
            "<tr style=\"text-align:center\"><th>Due</th><th>Tre</th></tr>\n</thead>\n<tbody>\n"
            "<tr style=\"text-align:left\"><td>2</td><td style=\"background-color:#008000\">3</td></tr>\n"
            "</tbody>\n</table>\n");
  EXPECT_EQ(Testo("GetTabella"),
            "<table border=\"1\">\n<thead>\n<tr style=\"text-align:center\"><th>Uno</th></tr>\n</thead>\n<tbody>\n"
            "<tr style=\"background-color:#FF0000;text-align:left\"><td>1</td></tr>\n</tbody>\n</table>\n");
  const std::string pagina = Pagina();
  EXPECT_LT(pagina.find("<th>Due</th>"), pagina.find("<th>Uno</th>"));
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaConPagina, LoScriptDiOrdinamentoEUnoPerPagina) {
  Esegui(R"(
InitTabella Array("Data", "Ritardo")
AddRigaTabella Array("04/01/2005", 12)
CreaTabellaOrdinabile
CreaTabella
CreaTabellaOrdinabile)");
  const std::string pagina = Pagina();
  EXPECT_EQ(Occorrenze(pagina, "<script>"), 1u);
  EXPECT_EQ(Occorrenze(pagina, "function ordinaTabella("), 1u);
  EXPECT_LT(pagina.find("</script>"), pagina.find("<table")) << "the functions come before the first table";
  EXPECT_EQ(Occorrenze(pagina, "<table class=\"ordinabile\" border=\"1\">"), 2u);
  EXPECT_EQ(Occorrenze(pagina, "<th onclick=\"ordinaTabella(this)\">Data</th>"), 2u);
  EXPECT_EQ(Occorrenze(pagina, "<table border=\"1\">"), 1u) << "CreaTabella writes a plain table";
  EXPECT_EQ(Occorrenze(pagina, "onclick"), 4u) << "only titles sort";

  Esegui(R"(
AzzeraHtmlOutputMulti
CreaTabellaOrdinabile
AzzeraHtmlOutputMulti
CreaTabella)");
  EXPECT_EQ(Occorrenze(Pagina("output_2.html"), "<script>"), 0u);
  EXPECT_EQ(Occorrenze(Pagina("output_1.html"), "<script>"), 1u) << "a new page needs its own";
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

TEST_F(LibreriaConPagina, ArgomentiSbagliatiDelleTabelle) {
  Errore5({{"AddRigaTabella", "AddRigaTabella Array(1)"},
           {"CreaTabella", "CreaTabella"},
           {"GetTabellaX", "x = GetTabellaX"},
           {"InitTabella", "InitTabella Array()"},
           {"InitTabella", "Dim m(1, 1) : InitTabella m"},
           {"InitTabella", "InitTabella Array(\"A\"), 8"},
           {"InitTabella", "InitTabella Array(\"A\"), , \"alto\""},
           {"InitTabella", "InitTabella Array(\"A\"), , , -1"},
           {"InitTabella", "InitTabella Array(\"A\"), , , , \"80 %\""}});
  Esegui("InitTabella Array(\"A\", \"B\")");
  Errore5({{"SetColoreCella", "SetColoreCella 1, Rosso_"},
           {"AddRigaTabella", "AddRigaTabella Array(1, 2, 3)"},
           {"AddRigaTabella", "AddRigaTabella Array(1), -1"},
           {"SetTableWidth", "SetTableWidth \"largo\""}});
  Esegui("AddRigaTabella Array(1, 2)");
  Errore5({{"SetColoreCella", "SetColoreCella 0, Rosso_"},
           {"SetColoreCella", "SetColoreCella 3, Rosso_"},
           {"SetColoreCella", "SetColoreCella 1, Rosso_, 9"},
           {"AddRigaTabellaX", "AddRigaTabellaX Array(1)"}});
  Esegui("CreaTabella");
  EXPECT_EQ(m_ospite.testo, "A  B\n-  -\n1  2\n") << "the failed calls changed nothing";
}

TEST_F(LibreriaConPagina, ScriviEstrazioneScriveLaDataELeRuoteEstratte) {
  Esegui("ScriviEstrazione 1, Array(BA_, NZ_, VE_)");
  EXPECT_EQ(m_ospite.testo,
            "Estrazione del 04/01/2005\n"
            "Bari    07 12 45 60 88\n"
            "Venezia 01 02 03 90 09\n")
      << "Nazionale, not drawn yet, is left out and does not widen the names";
  m_ospite.testo.clear();
  Esegui("ScriviEstrazione 2");
  EXPECT_EQ(m_ospite.testo,
            "Estrazione del 06/01/2005\n"
            "Bari      81 82 83 84 85\n"
            "Cagliari  81 82 83 84 85\n"
            "Firenze   81 82 83 84 85\n"
            "Genova    81 82 83 84 85\n"
            "Milano    81 82 83 84 85\n"
            "Napoli    81 82 83 84 85\n"
            "Palermo   81 82 83 84 85\n"
            "Roma      81 82 83 84 85\n"
            "Torino    81 82 83 84 85\n"
            "Venezia   81 82 83 84 85\n"
            "Nazionale 10 20 30 40 50\n");
  m_ospite.testo.clear();
  Esegui("ScriviEstrazione 2, 12");
  EXPECT_EQ(m_ospite.testo, "Estrazione del 06/01/2005\nNazionale 10 20 30 40 50\n") << "12 is NZ_ in scripts";
  EXPECT_EQ(Pagina().substr(0, 26), "Estrazione del 04/01/2005\n");
  Errore5({{"ScriviEstrazione", "ScriviEstrazione 3"},
           {"ScriviEstrazione", "ScriviEstrazione 0"},
           {"ScriviEstrazione", "ScriviEstrazione 1, 13"}});
}

TEST_F(LibreriaConPagina, ScriviMatriceAllineaLeColonne) {
  Esegui(R"(
Dim m(2, 2)
m(1, 1) = 5 : m(1, 2) = "abc" : m(2, 1) = 123 : m(2, 2) = "x"
ScriviMatrice m
ScriviMatrice Array(1, 22, "t")
Dim v(3)
v(1) = 10 : v(3) = 7
ScriviMatrice v
Dim r(1, 2)
r(0, 1) = "a" : r(1, 2) = 4
ScriviMatrice r)");
  EXPECT_EQ(m_ospite.testo,
            "  5  abc\n"
            "123  x\n"
            "1  22  t\n"
            "10    7\n"
            "a\n"
            "   4\n")
      << "numbers to the right, text to the left; Empty row 0 and column 0 of an array from 0 left out, an Empty "
         "element inside kept as an empty cell";
  Errore5({{"ScriviMatrice", "ScriviMatrice 5"}, {"ScriviMatrice", "Dim c(1, 1, 1) : ScriviMatrice c"}});
}

TEST_F(LibreriaConPagina, StringheDiNumeriERuote) {
  EXPECT_EQ(Testo("StringaEstratti(1, BA_)"), "07.12.45.60.88");
  EXPECT_EQ(Testo("StringaEstratti(1, VE_, \" - \")"), "01 - 02 - 03 - 90 - 09");
  EXPECT_EQ(Testo("StringaEstratti(2, 12)"), "10.20.30.40.50");
  EXPECT_EQ(Testo("\"[\" & StringaEstratti(1, NZ_) & \"]\""), "[]") << "Nazionale not drawn yet";

  EXPECT_EQ(Testo("StringaNumeri(Array(3, 45, 90))"), "03.45.90");
  EXPECT_EQ(Testo("StringaNumeri(Array(3, 45), \" \", False)"), "3 45");
  EXPECT_EQ(Testo("StringaNumeri(7)"), "07");
  EXPECT_EQ(Testo("StringaNumeri(Array(-5, 100, 2.5), \",\")"), "-05,100,03") << "rounded half away from zero";
  Esegui("Dim a(2) : a(1) = 1 : a(2) = 2");
  EXPECT_EQ(Testo("StringaNumeri(a)"), "01.02");
  EXPECT_EQ(Testo("\"[\" & StringaNumeri(Array()) & \"]\""), "[]");

  Esegui("Dim m(2, 3) : m(1, 1) = 3 : m(1, 2) = 45 : m(1, 3) = 90 : m(2, 1) = 7 : m(2, 3) = 2.5");
  EXPECT_EQ(Testo("StringaNumeriDaMatrice(m, 1)"), "03.45.90");
  EXPECT_EQ(Testo("StringaNumeriDaMatrice(m, 2, \"-\", False)"), "7-3") << "Empty cells skipped, 2.5 rounded";
  EXPECT_EQ(Testo("\"[\" & StringaNumeriDaMatrice(m, 0) & \"]\""), "[]");

  EXPECT_EQ(Testo("StringaRuote(Array(BA_, CA_))"), "BA.CA");
  EXPECT_EQ(Testo("StringaRuote(Array(NZ_, TU_), \"/\")"), "NZ/TT");
  EXPECT_EQ(Testo("StringaRuote(RO_)"), "RO");

  Errore5({{"StringaEstratti", "x = StringaEstratti(1, TU_)"},
           {"StringaEstratti", "x = StringaEstratti(3, BA_)"},
           {"StringaEstratti", "x = StringaEstratti(1, 0)"},
           {"StringaRuote", "x = StringaRuote(Array(1, 13))"},
           {"StringaRuote", "x = StringaRuote(0)"},
           {"StringaNumeriDaMatrice", "x = StringaNumeriDaMatrice(m, -1)"},
           {"StringaNumeriDaMatrice", "x = StringaNumeriDaMatrice(Array(1, 2), 1)"}});
  Esegui("x = StringaNumeriDaMatrice(m, 3)");
  AvvisoErrore5("StringaNumeriDaMatrice", "Riga 3 fuori dai limiti della matrice (0 .. 2)", "row 3");
  EXPECT_TRUE(Vuoto("StringaNumeri(1E+20)"));
  EXPECT_TRUE(UnicoAvviso().testo.starts_with("6- "));
}

TEST_F(LibreriaConPagina, FormatiDiNumeriETesti) {
  EXPECT_EQ(Testo("\"[\" & FormatSpace(\"ab\", 5) & \"]\""), "[ab   ]");
  EXPECT_EQ(Testo("\"[\" & FormatSpace(\"ab\", 5, True) & \"]\""), "[   ab]");
  EXPECT_EQ(Testo("FormatSpace(\"abcdef\", 3)"), "abcdef") << "a longer text is not cut";
  EXPECT_EQ(Testo("\"[\" & FormatSpace(\"città\", 6) & \"]\""), "[città ]");
  EXPECT_EQ(Testo("\"[\" & FormatSpace(7, 3, True) & \"]\""), "[  7]");
  EXPECT_EQ(Testo("\"[\" & FormatSpace(\"\", 0) & \"]\""), "[]");

  EXPECT_EQ(Testo("Format2(7)"), "07");
  EXPECT_EQ(Testo("Format2(0)"), "00");
  EXPECT_EQ(Testo("Format2(123)"), "123");
  EXPECT_EQ(Testo("Format2(-5)"), "-05");
  EXPECT_EQ(Testo("Format2(7.5)"), "08");
  EXPECT_EQ(Testo("Format2(\"9\")"), "09");

  EXPECT_EQ(Testo("FormattaStringa(7, \"000\")"), "007");
  EXPECT_EQ(Testo("FormattaStringa(1234.5, \"#\")"), "1235");
  EXPECT_EQ(Testo("FormattaStringa(3.5, \"0.00\")"), "3,50");
  EXPECT_EQ(Testo("FormattaStringa(3.5, \"0.##\")"), "3,5");
  EXPECT_EQ(Testo("FormattaStringa(3, \"0.##\")"), "3") << "no separator without decimals";
  EXPECT_EQ(Testo("FormattaStringa(3.456, \"0.0#\")"), "3,46");
  EXPECT_EQ(Testo("FormattaStringa(0.5, \"#.00\")"), ",50");
  EXPECT_EQ(Testo("FormattaStringa(2.125, \"0.00\")"), "2,13") << "half away from zero, not to even";
  EXPECT_EQ(Testo("FormattaStringa(-2.125, \"0.00\")"), "-2,13");
  EXPECT_EQ(Testo("FormattaStringa(-0.001, \"0.00\")"), "0,00") << "no sign on a zero";
  EXPECT_EQ(Testo("FormattaStringa(12345, \"000\")"), "12345");

  EXPECT_EQ(Testo("NomeSorte(1) & \"|\" & NomeSorte(AMBO_) & \"|\" & NomeSorte(5)"), "Ambata|Ambo|Cinquina");
  EXPECT_EQ(Testo("NomeSorte(EDET1_)"), "Estratto determinato 1");
  EXPECT_EQ(Testo("NomeSorte(10)"), "Estratto determinato 5");
  EXPECT_EQ(Testo("MeseNome(1) & \"|\" & MeseNome(12)"), "Gennaio|Dicembre");
  EXPECT_EQ(Testo("GetColoreHtml(Rosso_) & GetColoreHtml(Nero_)"), "#FF0000#000000");
  EXPECT_EQ(Testo("GetPathFileHtml"), (m_cartella / "output.htm").string());
  Esegui("Scrivi \"a&b\"");
  EXPECT_EQ(Testo("GetTestoHtml"), "<html>\n<body bgcolor =#FFFFFF>\n<pre>\na&amp;b\n") << "the page so far, unclosed";

  Errore5({{"FormatSpace", "x = FormatSpace(\"a\", -1)"},
           {"FormattaStringa", "x = FormattaStringa(5, \"\")"},
           {"FormattaStringa", "x = FormattaStringa(5, \".\")"},
           {"FormattaStringa", "x = FormattaStringa(5, \"0,0\")"},
           {"FormattaStringa", "x = FormattaStringa(5, \"0.0.0\")"},
           {"NomeSorte", "x = NomeSorte(0)"},
           {"NomeSorte", "x = NomeSorte(11)"},
           {"MeseNome", "x = MeseNome(13)"},
           {"GetColoreHtml", "x = GetColoreHtml(8)"},
           {"GetColoreHtml", "x = GetColoreHtml(-1)"}});
}

class LibreriaSenzaPagina : public Libreria {
 protected:
  void SetUp() override { Avvia(DueEstrazioni()); }
};

TEST_F(LibreriaSenzaPagina, IlPercorsoEVuotoELeTabelleVannoSoloNelTesto) {
  EXPECT_EQ(Testo("\"[\" & GetPathFileHtml & GetTestoHtml & \"]\""), "[]");
  Esegui("InitTabella Array(\"A\") : CreaTabellaOrdinabile");
  EXPECT_EQ(m_ospite.testo, "A\n-\n");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

}  // namespace
}  // namespace lottolab::script
