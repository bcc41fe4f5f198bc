#include <gtest/gtest.h>

#include <fstream>

#include "LibreriaDiProva.h"
#include "StrutturaCoppia.h"
#include "TempDir.h"
#include "figures/FileStrutture.h"
#include "figures/RicercaFigure.h"
#include "stats/ArchiviDiProva.h"

namespace lottolab::script {
namespace {

// A pair of vertices one above the other: a number and the one drawn at the same place of the next
// draw, the lower one marked for the play. Every cell of the three draws holds a number, so the pair
// completes at each of the 55 columns of draws 2 and 3.
class FigureUtente : public Libreria {
 protected:
  void SetUp() override {
    Avvia(test::Archivio()
              .Estrazione({{BA, {10, 20, 30, 40, 50}}, {VE, {1, 2, 3, 4, 5}}})
              .Estrazione({{BA, {11, 22, 33, 44, 55}}, {VE, {6, 7, 8, 9, 10}}})
              .Estrazione()
              .Tabella());
    const figures::Struttura coppia = test::StrutturaCoppia();
    m_struttura = coppia;
    ASSERT_TRUE(figures::SalvaStruttura(m_cartella / "coppia.dat", coppia));
    std::ofstream(m_cartella / "rotto.dat") << "OFFSET_STRUCT senza fine";
    Esegui("Dim c, f, a, i\nConst Coppia = \"" + (m_cartella / "coppia.dat").string() + "\"\n");
  }

  size_t TrovateDallaRicerca(int inizio, int fine, std::vector<int> ruote) {
    figures::OpzioniRicerca opzioni;
    opzioni.inizio = inizio;
    opzioni.fine = fine;
    opzioni.ruote = std::move(ruote);
    auto trovate = figures::CercaFigura(m_tab, m_struttura, opzioni);
    return trovate ? trovate->elenco.size() : 0;
  }

  test::CartellaTemporanea m_cartella;
  figures::Struttura m_struttura;
};

TEST_F(FigureUtente, TheCollectionHoldsWhatTheSearchFinds) {
  struct Caso {
    const char* chiamata;
    size_t attese;
    size_t ricerca;
  };
  const Caso casi[] = {
      {"GetCollFiguraUtente(Coppia, 2)", 55, TrovateDallaRicerca(2, 2, {})},
      {"GetCollFiguraUtente(Coppia, 3)", 55, TrovateDallaRicerca(3, 3, {})},
      {"GetCollFiguraUtente(Coppia, 1, 3)", 110, TrovateDallaRicerca(1, 3, {})},
      {"GetCollFiguraUtente(Coppia, 2, , VE_)", 5, TrovateDallaRicerca(2, 2, {VE})},
      {"GetCollFiguraUtente(Coppia, 2, 3, Array(BA_, TT_))", 110, TrovateDallaRicerca(2, 3, {})},
      {"GetCollFiguraUtente(Coppia, 1)", 0, 0},
  };
  for (const Caso& caso : casi) {
    EXPECT_EQ(Testo(std::string(caso.chiamata) + ".Count"), std::to_string(caso.attese)) << caso.chiamata;
    EXPECT_EQ(caso.ricerca, caso.attese) << caso.chiamata;
  }
}

TEST_F(FigureUtente, AFigureGivesItsVerticesAndItsPlay) {
  Esegui("Set c = GetCollFiguraUtente(Coppia, 2)\nSet f = c(1)\n");
  EXPECT_EQ(Testo("f"), "2: BA1 10, BA1 11");
  EXPECT_EQ(Testo("c(46)"), "2: VE1 1, VE1 6");
  EXPECT_EQ(Testo("f.IdEstrazione & \" \" & f.QuantitaVertici & \" \" & GetNumeroVerticiFiguraGeodomica(f)"), "2 2 2");
  EXPECT_EQ(
      Testo("f.EstrazioneVertice(1) & f.RuotaVertice(1) & f.PosizioneVertice(1) & \"|\" & f.EstrazioneVertice(2)"),
      "111|2");
  EXPECT_EQ(Testo("Join(f.Numeri, \" \") & \"|\" & Join(f.NumeriGioco, \" \") & \"|\" & Join(c(46).Ruote, \" \")"),
            "10 11|11|10");
  EXPECT_EQ(Testo("GetArrayNumeriFromFiguraGeodomica(f, a) & \" \" & LBound(a) & \" \" & a(1)"), "1 1 11");
  EXPECT_EQ(Testo("SommaVerticaleInFigura(f, 2) & \" \" & SommaVerticaleInFigura(c(5), 1)"), "21 15")
      << "50 + 55 is 105, 15 out of 90";
  EXPECT_EQ(Testo("f.Vertice(3)"), "errore 5");
}

TEST_F(FigureUtente, NumbersGivenByTheScriptReplaceTheDraw) {
  Esegui("ReDim a(54)\nFor i = 0 To 54 : a(i) = 0 : Next\na(45) = 90\n");
  Esegui("Set c = GetCollFiguraUtenteQN(Coppia, 3, a)\n");
  EXPECT_EQ(Testo("c.Count & \" \" & c(1)"), "1 3: VE1 6, VE1 90") << "the other cells of draw 3 are empty";
  EXPECT_EQ(Testo("SommaVerticaleInFigura(c(1), 1)"), "6");
  EXPECT_EQ(Testo("GetCollFiguraUtente(Coppia, 3).Count"), "55") << "the archive is left as it was";
}

TEST_F(FigureUtente, HostileArgumentsAreRefusedWithAMessage) {
  const std::string rotto = "\"" + (m_cartella / "rotto.dat").string() + "\"";
  const std::string mancante = "\"" + (m_cartella / "manca.dat").string() + "\"";
  Esegui("ReDim a(54)\nFor i = 0 To 54 : a(i) = 0 : Next\na(0) = 91\n");
  struct Caso {
    std::string chiamata;
    const char* funzione;
    const char* spiegazione;
  };
  const Caso casi[] = {
      {"GetCollFiguraUtente(" + mancante + ", 2)", "GetCollFiguraUtente", "manca.dat"},
      {"GetCollFiguraUtente(" + rotto + ", 2)", "GetCollFiguraUtente", "non valido"},
      {"GetCollFiguraUtente(\"" + m_cartella.Percorso().string() + "\", 2)", "GetCollFiguraUtente", "non valido"},
      {"GetCollFiguraUtente(Empty, 2)", "GetCollFiguraUtente", "mancante"},
      {"GetCollFiguraUtente(Coppia, 0)", "GetCollFiguraUtente", "IdEstrIniz"},
      {"GetCollFiguraUtente(Coppia, 4)", "GetCollFiguraUtente", "IdEstrIniz"},
      {"GetCollFiguraUtente(Coppia, 3, 2)", "GetCollFiguraUtente", "viene prima"},
      {"GetCollFiguraUtenteQN(Coppia, 3, Array(1, 2, 3))", "GetCollFiguraUtenteQN", "55 elementi"},
      {"GetCollFiguraUtenteQN(Coppia, 3, a)", "GetCollFiguraUtenteQN", "aNumeri(1): 91"},
      {"GetNumeroVerticiFiguraGeodomica(Empty)", "GetNumeroVerticiFiguraGeodomica", "GetCollFiguraUtente"},
      {"GetArrayNumeriFromFiguraGeodomica(GetCollFigureCiclometriche(Array(1, 46))(1), a)",
       "GetArrayNumeriFromFiguraGeodomica", "GetCollFiguraUtente"},
      {"SommaVerticaleInFigura(GetCollFiguraUtente(Coppia, 2)(1), 0)", "SommaVerticaleInFigura", "Vertice 0"},
  };
  for (const Caso& caso : casi) {
    EXPECT_TRUE(Vuoto(caso.chiamata)) << caso.chiamata;
    AvvisoErrore5(caso.funzione, caso.spiegazione, caso.chiamata);
  }
}

}  // namespace
}  // namespace lottolab::script
