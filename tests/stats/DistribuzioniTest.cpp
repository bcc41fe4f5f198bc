#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include "ArchiviDiProva.h"
#include "stats/ClassiNumeri.h"
#include "stats/FrequenzePeriodo.h"
#include "stats/RicercaEstrazioni.h"
#include "stats/Ritardi.h"
#include "stats/Somme.h"

namespace lottolab::stats {
namespace {

using test::Archivio;
using test::ArchivioReale;

// Six draws, two in 2004 and four in 2005; Nazionale drawn from draw 3.
//   Bari: 7 1 2 3 4 in draws 1 and 5; Venezia 9 7 1 2 3 in draw 5; Nazionale 7 1 2 3 4 in draw 3.
EstrazioniPerAnalisi Piccolo() {
  TabellaEstrazioni tab = Archivio()
                              .NazionaleDa(3)
                              .Estrazione({{BA, {7, 1, 2, 3, 4}}})
                              .Estrazione()
                              .Estrazione({{NZ, {7, 1, 2, 3, 4}}})
                              .Estrazione()
                              .Estrazione({{BA, {7, 1, 2, 3, 4}}, {VE, {9, 7, 1, 2, 3}}})
                              .Estrazione()
                              .Tabella();
  for (int id = 1; id <= 6; ++id)
    tab[id].data = GruppoData{static_cast<int16_t>(id), static_cast<int16_t>(id),
                              static_cast<int16_t>(id <= 2 ? 12 : 3), static_cast<int16_t>(id <= 2 ? 2004 : 2005)};
  return PerAnalisi(tab);
}

std::vector<int> Cerca(const FiltroEstrazioni& filtro) { return *CercaEstrazioni(Piccolo(), filtro); }

TEST(RicercaEstrazioni, TuttiOAlmenoKSuUnaRuotaOOvunque) {
  // 7 and 9 together on one wheel: only Venezia in draw 5.
  EXPECT_EQ(Cerca({1, 0, {}, {7, 9}, 0, DoveNumeri::SuUnaRuota}), (std::vector<int>{5}));
  // 7 and 4 on one wheel: Bari 1 and 5, Nazionale 3.
  EXPECT_EQ(Cerca({1, 0, {}, {7, 4}, 0, DoveNumeri::SuUnaRuota}), (std::vector<int>{1, 3, 5}));
  // 9 and 4 are never on one wheel, but both are in draw 5 on two wheels.
  EXPECT_TRUE(Cerca({1, 0, {}, {9, 4}, 0, DoveNumeri::SuUnaRuota}).empty());
  EXPECT_EQ(Cerca({1, 0, {}, {9, 4}, 0, DoveNumeri::Ovunque}), (std::vector<int>{5}));
  // At least one of 9 and 50; a repeated number counts once, so "all" of 9, 9 is 9 alone.
  EXPECT_EQ(Cerca({1, 0, {}, {9, 50}, 1, DoveNumeri::SuUnaRuota}), (std::vector<int>{5}));
  EXPECT_EQ(Cerca({1, 0, {}, {9, 9}, 0, DoveNumeri::SuUnaRuota}), (std::vector<int>{5}));
  // A number that cannot be drawn makes "all of them" impossible, not easier.
  EXPECT_TRUE(Cerca({1, 0, {}, {7, 200}, 0, DoveNumeri::Ovunque}).empty());
  EXPECT_TRUE(Cerca({1, 0, {}, {7, -3}, 0, DoveNumeri::Ovunque}).empty());
}

TEST(RicercaEstrazioni, RuoteEIntervallo) {
  EXPECT_EQ(Cerca({1, 0, {NZ}, {7}, 0, DoveNumeri::SuUnaRuota}), (std::vector<int>{3}));
  EXPECT_EQ(Cerca({2, 4, {BA, NZ}, {7}, 0, DoveNumeri::SuUnaRuota}), (std::vector<int>{3}));
  // Without numbers: every draw in which a chosen wheel was drawn; Nazionale only from draw 3.
  EXPECT_EQ(Cerca({1, 0, {NZ}, {}, 0, DoveNumeri::SuUnaRuota}), (std::vector<int>{3, 4, 5, 6}));
  // Wheels the game does not have are ignored, as if none was chosen.
  EXPECT_EQ(Cerca({1, 0, {0, 40}, {}, 0, DoveNumeri::SuUnaRuota}).size(), 6U);
  const EstrazioniPerAnalisi piccolo = Piccolo();
  EXPECT_EQ(IntervalloDate(piccolo, {0, 1, 1, 2005}, {}), (std::pair{3, 6}));
  EXPECT_EQ(IntervalloDate(piccolo, {}, {0, 31, 12, 2004}), (std::pair{1, 2}));
  EXPECT_EQ(IntervalloDate(piccolo, {0, 1, 1, 2010}, {}), (std::pair{1, 0}));

  ControlloCalcolo fermo;
  fermo.annullato = [] { return true; };
  EXPECT_FALSE(CercaEstrazioni(piccolo, {}, fermo).has_value());
}

TEST(FrequenzePeriodo, AnniMesiEBlocchiConLaFrequenzaAttesa) {
  const EstrazioniPerAnalisi piccolo = Piccolo();
  const FrequenzePeriodi anni = *CalcolaFrequenzePeriodi(piccolo, {{BA, NZ}, TipoPeriodo::Anno, 0, 0});
  ASSERT_EQ(anni.periodi.size(), 2U);
  EXPECT_EQ(anni.periodi[0].anno, 2004);
  EXPECT_EQ(anni.periodi[1].primo, 3);
  EXPECT_EQ(anni.Frequenza(7, 0), 1);
  EXPECT_EQ(anni.Frequenza(7, 1), 2);
  EXPECT_EQ(anni.Totale(7), 3);
  // 2004: Bari twice; 2005: Bari and Nazionale four times each, five numbers of 90 every time.
  EXPECT_DOUBLE_EQ(anni.Attesa(0), 2 * 5 / 90.0);
  EXPECT_DOUBLE_EQ(anni.AttesaTotale(), 10 * 5 / 90.0);

  const FrequenzePeriodi mesi = *CalcolaFrequenzePeriodi(piccolo, {{}, TipoPeriodo::MeseDellAnno, 2005, 0});
  ASSERT_EQ(mesi.periodi.size(), 1U);
  EXPECT_EQ(mesi.periodi[0].mese, 3);
  EXPECT_EQ(mesi.Frequenza(7, 0), 3);

  // Runs of four counted back from the last draw: 1-2, then 3-6.
  const FrequenzePeriodi blocchi = *CalcolaFrequenzePeriodi(piccolo, {{BA}, TipoPeriodo::Blocco, 0, 4});
  ASSERT_EQ(blocchi.periodi.size(), 2U);
  EXPECT_EQ(blocchi.periodi[0].ultimo, 2);
  EXPECT_EQ(blocchi.periodi[1].primo, 3);
  EXPECT_EQ(blocchi.periodi[1].ultimo, 6);
  EXPECT_EQ(blocchi.Totale(7), 2);
}

TEST(FrequenzePeriodo, SullArchivioRealeIlTotaleEQuelloDellaFrequenza) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  const TabellaEstrazioni& tab = ArchivioReale();
  const EstrazioniPerAnalisi reale = PerAnalisi(tab);
  const FrequenzePeriodi anni = *CalcolaFrequenzePeriodi(reale, {{}, TipoPeriodo::Anno, 0, 0});
  EXPECT_EQ(anni.periodi.front().anno, tab[1].data.anno);
  EXPECT_EQ(anni.periodi.back().ultimo, tab.EstrazioniArchivio());
  const int tutte[] = {kTutteLeRuote};
  for (int numero : {1, 45, 90}) {
    const int numeri[] = {numero};
    EXPECT_EQ(anni.Totale(numero), FrequenzaCombinazione(tab, tutte, numeri, 1, tab.EstrazioniArchivio()))
        << "number " << numero;
  }
  int uscite = 0;
  for (int numero = 1; numero <= 90; ++numero) uscite += anni.Totale(numero);
  int ruote_estratte = 0;
  for (const PeriodoFrequenze& periodo : anni.periodi) ruote_estratte += periodo.ruote_estratte;
  EXPECT_EQ(uscite, 5 * ruote_estratte);
}

TEST(Somme, ProbabilitaDelleSomme) {
  // Two of 1..4: 1+2, 1+3, 1+4 and 2+3, 2+4, 3+4, so sums 3..7 come 1, 1, 2, 1, 1 times in 6.
  const std::vector<double> due = ProbabilitaSomme(2, 4);
  ASSERT_EQ(due.size(), 5U);
  EXPECT_DOUBLE_EQ(due[2], 2 / 6.0);
  EXPECT_DOUBLE_EQ(due[0], 1 / 6.0);
  const std::vector<double> cinque = ProbabilitaSomme(5, 90);
  ASSERT_EQ(cinque.size(), static_cast<size_t>(440 - 15 + 1));
  EXPECT_NEAR(std::accumulate(cinque.begin(), cinque.end(), 0.0), 1.0, 1e-12);
  EXPECT_DOUBLE_EQ(cinque.front(), cinque.back());
  EXPECT_NEAR(cinque[5], cinque[cinque.size() - 6], 1e-18);
  EXPECT_EQ(ProbabilitaSomme(20, 90).size(), static_cast<size_t>(1610 - 210 + 1));
  EXPECT_TRUE(ProbabilitaSomme(0, 90).empty());
  EXPECT_TRUE(ProbabilitaSomme(6, 5).empty());
}

TEST(Somme, UsciteUltimaERitardoDiOgniSomma) {
  const EstrazioniPerAnalisi piccolo = Piccolo();
  // Bari sums 17 in draws 1 and 5, 415 (the filler) elsewhere; Nazionale 17 in draw 3, 415 after.
  const AnalisiSomme somme = *CalcolaSomme(piccolo, {{BA, NZ}, 0, 1, 0});
  ASSERT_EQ(somme.estrazioni.size(), 6U);
  EXPECT_EQ(somme.estrazioni[0].somme, (std::vector<int>{17, -1}));
  EXPECT_EQ(somme.estrazioni[2].somme, (std::vector<int>{415, 17}));
  EXPECT_EQ(somme.conteggiate, 10);
  const ValoreSomma& diciassette = somme.valori[17 - 15];
  EXPECT_EQ(diciassette.uscite, 3);
  EXPECT_EQ(diciassette.ultima, 5);
  EXPECT_EQ(diciassette.ritardo, 1);
  const ValoreSomma& mai = somme.valori[100 - 15];
  EXPECT_EQ(mai.ultima, 0);
  EXPECT_EQ(mai.ritardo, 6);
  // The first two numbers: 7 + 1 on Bari in draw 1.
  const AnalisiSomme prime_due = *CalcolaSomme(piccolo, {{BA}, 2, 1, 1});
  EXPECT_EQ(prime_due.valori.front().somma, 3);
  EXPECT_EQ(prime_due.estrazioni.at(0).somme, (std::vector<int>{8}));

  const std::vector<ClasseSomme> classi = ClassiDiSomme(somme, 100);
  ASSERT_EQ(classi.size(), 5U);
  EXPECT_EQ(classi[0].da, 15);
  EXPECT_EQ(classi[0].a, 114);
  EXPECT_EQ(classi[0].uscite, 3);
  EXPECT_EQ(classi.back().a, 440);
  double attese = 0;
  for (const ClasseSomme& classe : classi) attese += classe.attese;
  EXPECT_NEAR(attese, 10, 1e-9);
}

TEST(ClassiNumeri, LeClassiDeiNumeri) {
  EXPECT_EQ(ClasseDi(TipoClasse::Cadenza, 90), 0);
  EXPECT_EQ(ClasseDi(TipoClasse::Figura, 90), 9);
  EXPECT_EQ(ClasseDi(TipoClasse::Decina, 10), 1);
  EXPECT_EQ(ClasseDi(TipoClasse::Decina, 11), 2);
  EXPECT_EQ(ClasseDi(TipoClasse::Decina, 90), 9);
  const std::vector<StatisticaClasse> classi = CalcolaClassi(Piccolo(), std::vector<int>{BA});
  ASSERT_EQ(classi.size(), 28U);
  // Nine numbers end in each digit; ten have each figure and ten lie in each decade.
  for (const StatisticaClasse& classe : classi)
    EXPECT_EQ(classe.numeri.size(), classe.tipo == TipoClasse::Cadenza ? 9U : 10U);
  // Cadence 7 (7, 17, ..., 87) on Bari: drawn in 1 and 5; the filler 81..85 never has it.
  const StatisticaClasse& cadenza7 = classi[7];
  EXPECT_EQ(cadenza7.frequenza, 2);
  EXPECT_EQ(cadenza7.ritardo, 1);
  EXPECT_EQ(cadenza7.storico, 3);
  EXPECT_EQ(cadenza7.nell_ultima, 0);
  // Decade 9 (81..90) holds the filler: out in every other draw, five of its numbers in the last.
  EXPECT_EQ(classi[27].nell_ultima, 5);
  EXPECT_EQ(classi[27].storico, 1);
}

TEST(ClassiNumeri, SullArchivioRealeComeLaCombinazioneDeiSuoiNumeri) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  const TabellaEstrazioni& tab = ArchivioReale();
  const EstrazioniPerAnalisi reale = PerAnalisi(tab);
  const int fine = tab.EstrazioniArchivio();
  for (const std::vector<int>& ruote :
       {std::vector<int>{BA}, std::vector<int>{CA, NZ}, std::vector<int>{kTutteLeRuote}}) {
    const std::vector<StatisticaClasse> classi =
        CalcolaClassi(reale, ruote.front() == kTutteLeRuote ? std::vector<int>{} : ruote, 1000, fine);
    for (const StatisticaClasse& classe : classi) {
      SCOPED_TRACE(testing::Message() << "class " << static_cast<int>(classe.tipo) << " " << classe.valore << " on "
                                      << ruote.size() << " wheels from " << ruote.front());
      EXPECT_EQ(classe.ritardo, RitardoCombinazione(tab, ruote, classe.numeri, 1, fine, kTuttePosizioni, 1000));
      EXPECT_EQ(classe.storico, StoricoCombinazione(tab, ruote, classe.numeri, 1, fine, kTuttePosizioni, 1000));
      int frequenza = 0;
      for (int numero : classe.numeri) {
        const int numeri[] = {numero};
        frequenza += FrequenzaCombinazione(tab, ruote, numeri, 1, fine, kTuttePosizioni, 1000);
      }
      EXPECT_EQ(classe.frequenza, frequenza);
    }
  }
}

}  // namespace
}  // namespace lottolab::stats
