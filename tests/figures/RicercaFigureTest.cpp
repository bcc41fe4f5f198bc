#include <gtest/gtest.h>

#include <vector>

#include "FigureDiProva.h"
#include "figures/LimitiStrutture.h"
#include "figures/Piazzamento.h"
#include "figures/RicercaFigure.h"
#include "figures/StatisticaStrutture.h"

namespace lottolab::figures {
namespace {

using lottolab::test::Archivio;
using test::SeiEstrazioni;
using test::Vertice;

// A going down one row and right one column to B, both numbers equal.
Struttura Diagonale() { return Struttura{{Vertice(1, "A", 4, 1), Vertice(2, "B", 5, 2)}, {{1, 1, 2}}, {"[A] = [B]"}}; }

// Bari only is written; the other wheels hold 81..85 (Nazionale from draw 3).
TabellaEstrazioni TreEstrazioni() {
  return Archivio()
      .NazionaleDa(3)
      .Estrazione({{BA, {7, 1, 2, 3, 4}}})
      .Estrazione({{BA, {5, 7, 6, 8, 9}}})
      .Estrazione({{BA, {7, 10, 11, 12, 13}}})
      .Tabella();
}

OpzioniRicerca Opzioni(std::vector<int> ruote, int inizio = 1, int fine = 0) {
  OpzioniRicerca opzioni;
  opzioni.ruote = std::move(ruote);
  opzioni.inizio = inizio;
  opzioni.fine = fine;
  return opzioni;
}

struct Trovata {
  int estrazione, forma, colonna;
  friend bool operator==(const Trovata&, const Trovata&) = default;
};

std::vector<Trovata> Cerca(const TabellaEstrazioni& tab, const Struttura& struttura, OpzioniRicerca opzioni) {
  auto trovate = CercaFigura(tab, struttura, opzioni);
  EXPECT_TRUE(trovate.Riuscito()) << (trovate.Riuscito() ? "" : trovate.Errore().testo);
  std::vector<Trovata> elenco;
  if (trovate)
    for (const FiguraTrovata& t : trovate->elenco) elenco.push_back({t.estrazione, t.forma, t.colonna});
  return elenco;
}

TEST(Piazzamento, ColumnsRunWheelAfterWheelAndTheShapeHangsFromItsPivots) {
  EXPECT_EQ(ColonnaDi(BA, 1), 1);
  EXPECT_EQ(ColonnaDi(NZ, 5), kColonneTabella);
  EXPECT_EQ(RuotaDellaColonna(6), CA);
  EXPECT_EQ(PosizioneDellaColonna(10), 5);

  Struttura struttura{
      {Vertice(0, "", 0, 0), Vertice(3, "A", 4, 2), Vertice(5, "B", 6, 7), Vertice(6, "C", 5, 3)}, {}, {}};
  struttura.vertici[3].FulcroVert = true;
  struttura.vertici[2].FulcroOrizz = true;
  struttura.vertici[2].VersoOrizz = 2;
  const auto forme = FormeDaCercare(struttura);
  ASSERT_EQ(forme.size(), 2u);
  EXPECT_EQ(forme[0].punti.size(), 3u) << "the template vertex is no vertex";
  EXPECT_EQ(forme[0].punti[0].righe, -1);
  EXPECT_EQ(forme[0].punti[0].colonne, -5);
  EXPECT_EQ(forme[0].punti[1].righe, 1);
  EXPECT_EQ(forme[0].colonna_minima, -5);
  EXPECT_EQ(forme[0].colonna_massima, 0);
  EXPECT_EQ(forme[1].punti[0].colonne, 5) << "read right to left";
  EXPECT_EQ(forme[1].punti[0].righe, -1);

  struttura.vertici[2].VersoOrizz = 0;
  struttura.vertici[1].VersoVert = -1;
  EXPECT_EQ(FormeDaCercare(struttura)[0].punti[0].righe, -1) << "only the vertical pivot's setting counts";
  struttura.vertici[3].VersoVert = -1;
  EXPECT_EQ(FormeDaCercare(struttura)[0].punti[0].righe, 1);
  EXPECT_TRUE(FormeDaCercare(Struttura{}).empty());
}

TEST(RicercaFigure, EveryPlacementOfEachWayOfReadingTheShapeIsTried) {
  const TabellaEstrazioni tab = TreEstrazioni();
  Struttura struttura = Diagonale();
  // By hand: 7 at draw 1 column 1 and at draw 2 column 2.
  EXPECT_EQ(Cerca(tab, struttura, Opzioni({BA})), (std::vector<Trovata>{{2, 0, 1}}));
  struttura.vertici[0].VersoOrizz = 2;
  // Right to left, 7 at draw 2 column 2 and draw 3 column 1.
  EXPECT_EQ(Cerca(tab, struttura, Opzioni({BA})), (std::vector<Trovata>{{2, 0, 1}, {3, 1, 2}}));
  EXPECT_EQ(Cerca(tab, struttura, Opzioni({BA}, 3)), (std::vector<Trovata>{{3, 1, 2}}));
  EXPECT_EQ(Cerca(tab, struttura, Opzioni({BA}, 1, 2)), (std::vector<Trovata>{{2, 0, 1}}));
  struttura.vertici[0].VersoOrizz = 0;
  struttura.vertici[0].VersoVert = -1;
  // Upside down: B one draw before A; 7 at draw 3 column 1 and draw 2 column 2.
  EXPECT_EQ(Cerca(tab, struttura, Opzioni({BA})), (std::vector<Trovata>{{3, 0, 1}}));
}

TEST(RicercaFigure, APlacementMayCrossWheelsButNeverAnEmptyCellOrAWheelLeftOut) {
  TabellaEstrazioni tab = TreEstrazioni();
  tab[1].ImpostaNumero(BA, 5, 40);
  tab[2].ImpostaNumero(CA, 1, 40);
  const Struttura struttura = Diagonale();
  EXPECT_EQ(Cerca(tab, struttura, Opzioni({BA})).size(), 1u);
  const auto tutte = Cerca(tab, struttura, {});
  EXPECT_NE(std::find(tutte.begin(), tutte.end(), Trovata{2, 0, 5}), tutte.end()) << "Bari 5 to Cagliari 1";
  EXPECT_EQ(Cerca(tab, struttura, Opzioni({BA, FI})).size(), 1u);

  // 83 sits in position 3 of every wheel not written out: nine wheels at draws 1 and 2, ten once
  // Nazionale is drawn.
  const Struttura tre{{Vertice(1, "x", 0, 3)}, {}, {"[x] = 83"}};
  EXPECT_EQ(Cerca(tab, tre, {}).size(), 9u + 9u + 10u);
}

TEST(RicercaFigure, AConditionThatDoesNotCompileFailsTheSearchNamingIt) {
  Struttura struttura = Diagonale();
  struttura.condizioni.push_back("[A] = [Q]");
  auto trovate = CercaFigura(TreEstrazioni(), struttura, {});
  ASSERT_FALSE(trovate.Riuscito());
  EXPECT_TRUE(trovate.Errore().testo.starts_with("Errore di sintassi")) << trovate.Errore().testo;
  EXPECT_NE(trovate.Errore().testo.find("condizione 2"), std::string::npos) << trovate.Errore().testo;
}

// Many vertices on one cell, found at every cell of the table: the placements are kept, and each
// figure's numbers read again from the table when asked for.
TEST(RicercaFigure, AFigureOfManyVerticesFoundEverywhereGivesBackItsNumbers) {
  Struttura pila;
  for (int16_t k = 1; k <= static_cast<int16_t>(kMassimoVertici); ++k) pila.vertici.push_back(Vertice(k, "", 0, 1));
  const TabellaEstrazioni tab = TreEstrazioni();
  auto trovate = CercaFigura(tab, pila, {});
  ASSERT_TRUE(trovate.Riuscito()) << trovate.Errore().testo;
  ASSERT_EQ(trovate->elenco.size(), 3u * 50 + 1 * 5);  // Nazionale from draw 3
  const FiguraPiazzata figura = trovate->Figura(tab, trovate->elenco[1]);
  ASSERT_EQ(figura.vertici.size(), kMassimoVertici);
  for (const VerticePiazzato& vertice : figura.vertici) {
    EXPECT_EQ(vertice.id_estr, 1);
    EXPECT_EQ(vertice.numero, 1);  // Bari's second position
  }
}

// A structure beyond the limits, as a caller may build it without a file, and conditions that would
// ask hours of work at each cell are refused before the search starts.
TEST(RicercaFigure, LimitsAndTheConditionsWorkAreCheckedBeforeSearching) {
  Struttura troppi;
  for (int16_t k = 1; k <= static_cast<int16_t>(kMassimoVertici) + 1; ++k)
    troppi.vertici.push_back(Vertice(k, "", 0, 1));
  auto rifiutata = CercaFigura(TreEstrazioni(), troppi, {});
  ASSERT_FALSE(rifiutata.Riuscito());
  EXPECT_EQ(rifiutata.Errore().testo, "La struttura ha 101 vertici, al massimo 100.");

  Struttura onerosa;
  for (int16_t k = 1; k <= 50; ++k) onerosa.vertici.push_back(Vertice(k, "", 0, 1));
  std::string somma = "ContaPresenze(1)";
  for (int i = 0; i < 19; ++i) somma += " + ContaPresenze(1)";
  // Twenty passes over 50 vertices and 40 steps more: 1040 a condition, 9 of them fit and 10 do not.
  onerosa.condizioni.assign(9, somma + " >= 0");
  EXPECT_TRUE(CercaFigura(TreEstrazioni(), onerosa, {}).Riuscito());
  onerosa.condizioni.push_back(somma + " >= 0");
  rifiutata = CercaFigura(TreEstrazioni(), onerosa, {});
  ASSERT_FALSE(rifiutata.Riuscito());
  EXPECT_TRUE(rifiutata.Errore().testo.starts_with(
      "Le condizioni chiedono troppo lavoro per ogni posizione della figura (10410 passi, al massimo 10000)"))
      << rifiutata.Errore().testo;
}

TEST(RicercaFigure, TheStopAnswerEndsTheSearchWithWhatWasFound) {
  const Struttura struttura{{Vertice(1, "x", 0, 3)}, {}, {}};
  int avvisi = 0;
  OpzioniRicerca opzioni;
  opzioni.avanzamento = [&](double) { return ++avvisi < 1; };
  auto trovate = CercaFigura(TreEstrazioni(), struttura, opzioni);
  ASSERT_TRUE(trovate.Riuscito());
  EXPECT_TRUE(trovate->elenco.empty());
}

TEST(StatisticaStrutture, EachFigurePlaysItsClosureNumbersOnItsWheelsForTheColpi) {
  const TabellaEstrazioni tab = SeiEstrazioni();
  // One vertex holding 7 (the play), another on the same draw one column on (not played).
  Struttura struttura{{Vertice(1, "A", 0, 1), Vertice(2, "B", 0, 2)}, {}, {"[A] = 7"}};
  struttura.vertici[0].UsaPerChiusura = true;
  auto trovate = CercaFigura(tab, struttura, Opzioni({BA}));
  ASSERT_TRUE(trovate.Riuscito());
  ASSERT_EQ(trovate->elenco.size(), 2u) << "draws 1 and 6: at draws 3 and 4 the 7 is in position 5, where A never goes";

  StatisticaStruttura statistica = CalcolaStatistica(tab, *trovate, 2, 1, 6);
  EXPECT_EQ(statistica.casi, 2);
  EXPECT_EQ(statistica.esiti[0].colpo, 2) << "7 again at draw 3; Cagliari is not played";
  EXPECT_EQ(statistica.esiti[0].sorte, 1);
  EXPECT_TRUE(statistica.esiti[1].in_corso) << "no draw after 6";
  EXPECT_EQ(statistica.per_sorte[1], 1);
  EXPECT_EQ(statistica.in_corso, 1);
  EXPECT_EQ(statistica.negativi, 0);
  EXPECT_DOUBLE_EQ(statistica.colpo_medio, 2.0);
  EXPECT_EQ(statistica.ritardo, 0);
  EXPECT_EQ(statistica.ritardo_massimo, 4) << "draws 2..5 without the figure";
  EXPECT_EQ(CalcolaStatistica(tab, *trovate, 1, 1, 6).negativi, 1) << "one colpo is not enough for draw 1's";

  // Without a closure mark every vertex plays: 7 and 1 from draw 1; 1 at draw 2, both at draw 4.
  struttura.vertici[0].UsaPerChiusura = false;
  auto tutte = CercaFigura(tab, struttura, Opzioni({BA}, 1, 1));
  ASSERT_TRUE(tutte.Riuscito());
  statistica = CalcolaStatistica(tab, *tutte, 3, 1, 1);
  EXPECT_EQ(statistica.per_sorte[2], 1);
  EXPECT_EQ(statistica.esiti[0].colpo, 1);
}

// A square of four cells, two conditions: counted again here cell by cell.
TEST(RicercaFigure, OnTheRealArchiveTheSearchFindsWhatAPlainWalkFinds) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  const TabellaEstrazioni& tab = lottolab::test::ArchivioReale();
  const Struttura quadrato{{Vertice(1, "A", 0, 1), Vertice(2, "B", 0, 2), Vertice(3, "C", 1, 1), Vertice(4, "D", 1, 2)},
                           {{1, 1, 2}, {2, 2, 4}, {3, 4, 3}, {4, 3, 1}},
                           {"[A] = [D]", "Cadenza([B]) = Cadenza([C])"}};
  size_t attese = 0;
  for (int id = 2; id <= tab.EstrazioniArchivio(); ++id)
    for (int c = 1; c < kColonneTabella; ++c) {
      auto cella = [&](int riga, int colonna) {
        return tab[riga].Numero(RuotaDellaColonna(colonna), PosizioneDellaColonna(colonna));
      };
      const int a = cella(id - 1, c), b = cella(id - 1, c + 1), cc = cella(id, c), d = cella(id, c + 1);
      if (a && b && cc && d && a == d && b % 10 == cc % 10) ++attese;
    }
  auto trovate = CercaFigura(tab, quadrato, {});
  ASSERT_TRUE(trovate.Riuscito());
  EXPECT_EQ(trovate->elenco.size(), attese);
  EXPECT_GT(attese, 100u);
}

}  // namespace
}  // namespace lottolab::figures
