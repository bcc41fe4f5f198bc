#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "LibreriaDiProva.h"
#include "TempDir.h"
#include "archive/ArchivioGioco.h"
#include "stats/ArchiviDiProva.h"
#include "stats/RegolePremi.h"

namespace lottolab::script {
namespace {

using test::Archivio;

// Every draw of the table dated, one a week from 2020 on, so that the prizes and taxes of 2020 apply.
TabellaEstrazioni Datata2020(TabellaEstrazioni tab) {
  for (int id = 1; id <= tab.EstrazioniArchivio(); ++id) {
    tab[id].data = stats::Data(id, 1, 2020);
    tab[id].data.indice_annuale = static_cast<int16_t>(id);
  }
  return tab;
}

// After draw 1: an estratto on Bari at colpo 2, the ambo at colpo 3 on Bari and Venezia, and
// 30 on Nazionale alone at colpo 4; draws 5 and 6 hold nothing played.
TabellaEstrazioni Previsioni() {
  return Datata2020(Archivio()
                        .Estrazione()
                        .Estrazione({{BA, {1, 2, 3, 4, 5}}})
                        .Estrazione({{BA, {10, 30, 11, 12, 13}}})
                        .Estrazione({{BA, {31, 1, 2, 30, 3}}, {VE, {30, 31, 1, 2, 3}}, {NA, {30, 4, 5, 6, 7}}})
                        .Estrazione({{NZ, {30, 31, 32, 1, 2}}})
                        .Estrazione()
                        .Tabella());
}

TEST_F(Libreria, VerificaEsitoSiChiudeAllaPrimaVincitaEDiceSeLaPrevisioneEInCorso) {
  Avvia(Previsioni());
  Esegui("Dim c, id, r, g");
  struct Caso {
    std::string chiamata;
    std::string risultato;
    std::string uscite;  // colpo, IdEstr, wheel, colpi played
    std::string riga;
  };
  const Caso casi[] = {
      {"Array(30, 31), BA_, 1, 5, 1", "1", "2 3 1 2", "estratto su BA al colpo 2, estr. 3 del 03/01/2020\n"},
      {"Array(30, 31), Array(BA_, VE_), 1, 5, 2", "2", "3 4 1 3",
       "ambo su BA, VE al colpo 3, estr. 4 del 04/01/2020\n"},
      {"Array(30, 31), TT_, 1, 5, 2", "2", "3 4 1 3", "ambo su BA, VE al colpo 3, estr. 4 del 04/01/2020\n"},
      // Tutte are the ten city wheels: the ambo on Nazionale alone is not a win of theirs.
      {"Array(30, 31), TT_, 4, 2, 2", "0", "0 0 0 2", "negativo dopo 2 colpi\n"},
      {"Array(30, 31), NZ_, 4, 2, 2", "2", "1 5 12 1", "ambo su NZ al colpo 1, estr. 5 del 05/01/2020\n"},
      {"Array(30, 31), NA_, 1, 2, 1", "0", "0 0 0 2", "negativo dopo 2 colpi\n"},
      // The archive ends before the colpi: still running.
      {"Array(77, 78), BA_, 3, 10, 1", "0", "0 0 0 3", "in corso: 3 colpi giocati su 10, nessuna vincita\n"},
      {"Array(77, 78), BA_, 6, 1, 1", "0", "0 0 0 0", "in corso: 0 colpi giocati su 1, nessuna vincita\n"},
  };
  for (const Caso& caso : casi) {
    m_ospite.testo.clear();
    const std::string& chiamata = caso.chiamata;
    EXPECT_EQ(Testo("VerificaEsito(" + chiamata + ", True, c, id, r, g)"), caso.risultato) << caso.chiamata;
    EXPECT_EQ(Testo("c & \" \" & id & \" \" & r & \" \" & g"), caso.uscite) << caso.chiamata;
    EXPECT_EQ(m_ospite.testo, caso.riga) << caso.chiamata;
    m_ospite.testo.clear();
    EXPECT_EQ(Testo("VerificaEsitoTurbo(" + chiamata + ", True, c, id, r, g)"), caso.risultato) << caso.chiamata;
    EXPECT_EQ(Testo("c & \" \" & id & \" \" & r & \" \" & g"), caso.uscite) << caso.chiamata;
    EXPECT_EQ(m_ospite.testo, "") << "Turbo never writes: " << caso.chiamata;
  }
  EXPECT_EQ(Testo("VerificaEsito(Array(30, 31), BA_, 1, 5, 1, False)"), "1");
  EXPECT_EQ(m_ospite.testo, "");
  EXPECT_EQ(Testo("VerificaEsitoTurbo(Array(30, 31), BA_, 1, 5)"), "1") << "SorteMinima 1 when omitted";

  EXPECT_TRUE(Vuoto("VerificaEsito(Array(30, 30), BA_, 1, 5)"));
  AvvisoErrore5("VerificaEsito", "due volte", "a number twice");
  EXPECT_TRUE(Vuoto("VerificaEsito(Array(30, 31), BA_, 1, 5, 3)"));
  AvvisoErrore5("VerificaEsito", "SorteMinima 3", "a sorte above the numbers played");
  EXPECT_TRUE(Vuoto("VerificaEsito(Array(30, 31), BA_, 7, 5)"));
  AvvisoErrore5("VerificaEsito", "IdEstr fuori", "a draw past the archive");
  EXPECT_TRUE(Vuoto("VerificaEsito(Array(30, 31), BA_, 1, 0)"));
  AvvisoErrore5("VerificaEsito", "Colpi", "no colpi");
}

TEST_F(Libreria, VerificaEsitoConGuadagnoPagaComeLOperatore) {
  Avvia(Previsioni());
  Esegui("Dim p(5), s, v, c : p(2) = 1");
  // Ambo at colpo 3 on Bari: 250 gross less 8% is 230, after 3 euro spent.
  EXPECT_EQ(Testo("VerificaEsitoConGuadagno(Array(30, 31), BA_, 1, 5, p, True, True, s, v, c)"), "227");
  EXPECT_EQ(Testo("s & \" \" & v & \" \" & c"), "3 230 3");
  EXPECT_EQ(m_ospite.testo,
            "ambo su BA al colpo 3, estr. 4 del 04/01/2020: spesa 3,00, vinti 230,00 netti "
            "(250,00 lordi), guadagno 227,00 euro\n");
  // The euro on the ambo is split over two wheels, and each where it comes out pays; the estratto
  // (1 euro over two numbers and two wheels, 2.81 a number) pays on Bari at colpo 2 and on both at
  // colpo 3, with the ambo.
  m_ospite.testo.clear();
  Esegui("p(1) = 1");
  // Colpo 2: 2.81 less 0.22 of tax; colpo 3: 250 + 4 x 2.81 = 261.24 less 20.90; 6 euro spent.
  EXPECT_EQ(Testo("VerificaEsitoConGuadagno(Array(30, 31), Array(BA_, VE_), 1, 3, p, False, False, s, v, c)"),
            "236,93");
  EXPECT_EQ(Testo("c"), "2") << "the first win is the estratto at colpo 2";
  EXPECT_EQ(m_ospite.testo, "");
  // Not played at all: the stake of Nazionale's ambo is lost, since Tutte leaves it out.
  EXPECT_EQ(Testo("VerificaEsitoConGuadagno(Array(30, 31), TT_, 4, 2, p, False)"), "-4");

  Esegui("Dim q(5) : q(2) = 0.123");
  EXPECT_TRUE(Vuoto("VerificaEsitoConGuadagno(Array(30, 31), BA_, 1, 5, q)"));
  AvvisoErrore5("VerificaEsitoConGuadagno", "due decimali", "a stake below the cent");
  EXPECT_TRUE(Vuoto("VerificaEsitoConGuadagno(Array(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11), BA_, 1, 5, p)"));
  AvvisoErrore5("VerificaEsitoConGuadagno", "numeri", "more numbers than a ticket holds");
}

// The SuperEnalotto's twin has no wheels and counts the six main numbers only: the Jolly never
// makes a point.
TEST_F(Libreria, VerificaEsitoSEContaINumeriPrincipali) {
  std::vector<EstrazioneGioco> estrazioni(4);
  const std::array<std::array<int, 6>, 4> numeri{
      {{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}, {20, 30, 13, 14, 15, 16}, {20, 30, 40, 17, 18, 19}}};
  for (size_t i = 0; i < estrazioni.size(); ++i) {
    estrazioni[i].id_estr = static_cast<int32_t>(i + 1);
    estrazioni[i].data = stats::Data(static_cast<int>(i) + 1, 2, 2020);
    estrazioni[i].concorso = static_cast<int16_t>(i + 10);
    for (size_t p = 0; p < 6; ++p) estrazioni[i].numeri[p] = static_cast<uint8_t>(numeri[i][p]);
    estrazioni[i].speciali[0] = 40;  // the Jolly
  }
  test::CartellaTemporanea cartella;
  ImpostazioniLibreria impostazioni;
  impostazioni.archivi_giochi[static_cast<size_t>(Gioco::SuperEnalotto)] = cartella / "SE.dat";
  ASSERT_TRUE(SalvaArchivioGioco(TabellaGioco(Formato(Gioco::SuperEnalotto), estrazioni), cartella / "SE.dat"));
  Avvia(test::Archivio().Estrazione().Tabella(), impostazioni);
  Esegui("Dim c, id, g");
  EXPECT_EQ(Testo("VerificaEsitoSE(Array(20, 30, 40), 1, 3, 2, True, c, id, g)"), "2");
  EXPECT_EQ(Testo("c & \" \" & id & \" \" & g"), "2 3 2");
  EXPECT_EQ(m_ospite.testo, "2 punti al colpo 2, concorso 12 del 03/02/2020\n");
  m_ospite.testo.clear();
  EXPECT_EQ(Testo("VerificaEsitoSE(Array(40, 41), 1, 2)"), "0") << "the Jolly is no point";
  EXPECT_EQ(Testo("VerificaEsitoSE(Array(20, 30, 40), 3, 5, 3, False, c, id, g) & \" \" & g"), "3 1");
  EXPECT_EQ(Testo("VerificaEsitoSE(Array(50), 3, 5)"), "0");
  EXPECT_EQ(m_ospite.testo, "negativo dopo 2 colpi\nin corso: 1 colpi giocati su 5, nessuna vincita\n");
}

// The generic archive numbers no contests: the line names the winning draw by its place.
TEST_F(Libreria, VerificaEsitoFTNominaLEstrazioneSenzaConcorso) {
  std::vector<EstrazioneGioco> estrazioni(3);
  for (size_t i = 0; i < estrazioni.size(); ++i) {
    estrazioni[i].id_estr = static_cast<int32_t>(i + 1);
    estrazioni[i].data = stats::Data(static_cast<int>(i) + 1, 2, 2020);
    for (size_t p = 0; p < 5; ++p) estrazioni[i].numeri[p] = static_cast<uint8_t>(i * 10 + p + 1);
  }
  test::CartellaTemporanea cartella;
  ImpostazioniLibreria impostazioni;
  impostazioni.archivi_giochi[static_cast<size_t>(Gioco::Generico)] = cartella / "FT.dat";
  ASSERT_TRUE(SalvaArchivioGioco(TabellaGioco(FormatoGenerico(5, 90), estrazioni), cartella / "FT.dat"));
  Avvia(test::Archivio().Estrazione().Tabella(), impostazioni);
  EXPECT_EQ(Testo("VerificaEsitoFT(Array(22, 50), 1, 2)"), "1");
  EXPECT_EQ(m_ospite.testo, "1 punto al colpo 2, estrazione 3 del 03/02/2020\n");
}

// The worked example of the ambetto, the wrap of the circle at 90, the neighbour that is itself
// played, and the exact pair that does not win.
TEST_F(Libreria, TestAmbettoContaLeCombinazioniVinteDaCinqueNumeri) {
  Avvia(Previsioni());
  const std::pair<std::string, std::string> casi[] = {
      {"Array(40, 50, 60), Array(20, 50, 61, 49, 39)", "2"},
      {"Array(1, 30), Array(30, 90)", "1"},   // 90 is a neighbour of 1
      {"Array(90, 30), Array(30, 1)", "1"},   // and 1 of 90
      {"Array(1, 30), Array(1, 90)", "0"},    // a number with its own neighbour
      {"Array(1, 30), Array(1, 30)", "0"},    // the exact pair
      {"Array(40, 41), Array(40, 41)", "0"},  // neighbours played are no ambetto
      {"Array(40, 41), Array(40, 42, 39, 41)", "2"},
      {"Array(1, 2), Array(1, 3, 2, 90)", "2"},
  };
  for (const auto& [argomenti, attesi] : casi) EXPECT_EQ(Testo("TestAmbetto(" + argomenti + ")"), attesi) << argomenti;
  EXPECT_TRUE(Vuoto("TestAmbetto(Array(40), Array(39, 41))"));
  AvvisoErrore5("TestAmbetto", "ambetto", "a single number");
  EXPECT_TRUE(Vuoto("TestAmbetto(Array(40, 50), Array(1, 2, 3, 4, 5, 6))"));
  AvvisoErrore5("TestAmbetto", "5", "six numbers drawn");
}

TEST_F(Libreria, VerificaAmbettoSommaLeRuoteDelPrimoColpoVincente) {
  Avvia(Datata2020(Archivio()
                       .Estrazione()
                       .Estrazione({{BA, {40, 51, 2, 3, 4}}})
                       .Estrazione({{BA, {20, 50, 61, 49, 39}}, {VE, {41, 50, 1, 2, 3}}})
                       .Tabella()));
  Esegui("Dim c, id, r, g");
  // Colpo 1 gives 40 and 51 on Bari: the neighbour of 50 with 40, one combination.
  EXPECT_EQ(Testo("VerificaAmbetto(Array(40, 50, 60), BA_, 1, 3, True, c, id, r, g)"), "1");
  EXPECT_EQ(m_ospite.testo, "ambetto su BA al colpo 1 (1 combinazione), estr. 2 del 02/01/2020\n");
  m_ospite.testo.clear();
  EXPECT_EQ(Testo("VerificaAmbetto(Array(40, 50, 60), Array(BA_, VE_), 2, 3, True, c, id, r, g)"), "3");
  EXPECT_EQ(Testo("c & \" \" & id & \" \" & r & \" \" & g"), "1 3 1 1");
  EXPECT_EQ(m_ospite.testo, "ambetto su BA, VE al colpo 1 (3 combinazioni), estr. 3 del 03/01/2020\n");
}

// Forecasts spread over the real archive, each checked against a plain walk of the draws written
// here: two numbers of a draw's Bari, played on all the wheels, on Bari alone, on Nazionale.
TEST_F(Libreria, VerificaEsitoSulLArchivioRealeEQuelloDiUnCicloSemplice) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  const TabellaEstrazioni& reale = test::ArchivioReale();
  Avvia(reale);
  const int ultima = reale.EstrazioniArchivio();
  Esegui("Dim c, id, r, g");
  const int colpi[] = {1, 9, 18, 60};
  const std::vector<std::vector<int>> gruppi_ruote = {{BA, CA, FI, GE, MI, NA, PA, RO, TO, VE}, {BA}, {NZ}};
  const std::string nomi_ruote[] = {"TT_", "BA_", "NZ_"};
  int vinte = 0;
  for (int dopo = 1; dopo <= ultima; dopo += ultima / 97) {
    const int a = reale[dopo].Numero(BA, 1);
    const int b = reale[dopo].Numero(BA, 2);
    for (size_t g = 0; g < gruppi_ruote.size(); ++g) {
      const int quanti_colpi = colpi[static_cast<size_t>(dopo) % std::size(colpi)];
      const int sorte_minima = 1 + dopo % 2;
      int sorte = 0, colpo = 0, id_vinta = 0, ruota = 0, giocati = 0;
      for (int id = dopo + 1; id <= ultima && giocati < quanti_colpi && colpo == 0; ++id) {
        ++giocati;
        for (int r : gruppi_ruote[g]) {
          int presi = 0;
          for (int p = 1; p <= 5; ++p) {
            const int n = reale[id].Numero(r, p);
            presi += n != 0 && (n == a || n == b) ? 1 : 0;
          }
          if (presi >= sorte_minima && presi > sorte) {
            sorte = presi;
            colpo = giocati;
            id_vinta = id;
            ruota = r == NZ ? 12 : r;
          }
        }
      }
      const std::string chiamata = fmt::format("VerificaEsitoTurbo(Array({}, {}), {}, {}, {}, {}, False, c, id, r, g)",
                                               a, b, nomi_ruote[g], dopo, quanti_colpi, sorte_minima);
      ASSERT_EQ(Testo(chiamata), std::to_string(sorte)) << chiamata;
      ASSERT_EQ(Testo("c & \" \" & id & \" \" & r & \" \" & g"),
                fmt::format("{} {} {} {}", colpo, id_vinta, ruota, giocati))
          << chiamata;
      vinte += colpo > 0 ? 1 : 0;
    }
  }
  EXPECT_GT(vinte, 20) << "the forecasts must win often enough to test the wins";
}

}  // namespace
}  // namespace lottolab::script
