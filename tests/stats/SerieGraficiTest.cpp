#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include "ArchiviDiProva.h"
#include "stats/Ritardi.h"
#include "stats/SerieGrafici.h"

namespace lottolab::stats {
namespace {

using test::Archivio;
using test::ArchivioCasuale;
using test::ArchivioReale;

// 7 comes out on Bari in draws 1 and 5; Nazionale is drawn from draw 3 and gives 7 in draw 4; draw 6
// holds no draw; 7 and 45 come out on two different wheels in draw 7.
TabellaEstrazioni ArchivioStoria() {
  return Archivio()
      .NazionaleDa(3)
      .Estrazione({{BA, {7, 1, 2, 3, 4}}})
      .Estrazione()
      .Estrazione()
      .Estrazione({{NZ, {1, 2, 7, 3, 4}}})
      .Estrazione({{BA, {1, 2, 3, 4, 7}}})
      .Vuota()
      .Estrazione({{CA, {7, 1, 2, 3, 4}}, {FI, {45, 1, 2, 3, 4}}})
      .Estrazione()
      .Tabella();
}

TEST(StoriaRitardo, UnPuntoPerOgniEstrazioneContataConIlRitardoDopoDiEssa) {
  const TabellaEstrazioni tab = ArchivioStoria();
  const std::array numero{7};
  const std::array bari{int{BA}};
  const StoriaRitardo su_bari = CalcolaStoriaRitardo(tab, bari, numero, 1, 1, 8);
  EXPECT_EQ(su_bari.estrazioni, (std::vector<int>{1, 2, 3, 4, 5, 7, 8})) << "the empty record is left out";
  EXPECT_EQ(su_bari.ritardi, (std::vector<int>{0, 1, 2, 3, 0, 1, 2}));
  EXPECT_EQ(su_bari.storico, 3);
  EXPECT_EQ(su_bari.estrazione_storico, 4);
  EXPECT_EQ(su_bari.ritardo_attuale, 2);
  EXPECT_EQ(su_bari.uscite, 2);

  // Nazionale's history starts with its first draw, and a later start does not see the earlier win.
  const std::array nazionale{int{NZ}};
  const StoriaRitardo su_nazionale = CalcolaStoriaRitardo(tab, nazionale, numero, 1, 1, 8);
  EXPECT_EQ(su_nazionale.estrazioni, (std::vector<int>{3, 4, 5, 7, 8}));
  EXPECT_EQ(su_nazionale.ritardi, (std::vector<int>{1, 0, 1, 2, 3}));
  EXPECT_EQ(su_nazionale.estrazione_storico, 8);
  const StoriaRitardo da_due = CalcolaStoriaRitardo(tab, bari, numero, 1, 2, 4);
  EXPECT_EQ(da_due.ritardi, (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(da_due.uscite, 0);

  // The ambo 7-45 of draw 7 is split between two wheels: no win on all wheels together.
  const std::array ambo{7, 45};
  const std::array tutte{kTutteLeRuote};
  const StoriaRitardo dell_ambo = CalcolaStoriaRitardo(tab, tutte, ambo, 2, 1, 8);
  EXPECT_EQ(dell_ambo.ritardi.back(), 7);
  EXPECT_EQ(dell_ambo.uscite, 0);
  EXPECT_EQ(CalcolaStoriaRitardo(tab, tutte, ambo, 1, 1, 8).ritardi.back(), 1) << "as estratto, 7 and 45 win";

  const StoriaRitardo vuota = CalcolaStoriaRitardo(tab, bari, numero, 1, 5, 4);
  EXPECT_TRUE(vuota.estrazioni.empty());
  EXPECT_EQ(vuota.storico, 0);
  EXPECT_EQ(vuota.estrazione_storico, 0);
}

// Every point is the delay that RitardoCombinazione gives at that end draw, the maximum is
// StoricoCombinazione's and the wins are the draws whose delay the series brings to 0.
TEST(StoriaRitardo, ConcordaConIRitardiCalcolatiUnaFineAllaVolta) {
  const TabellaEstrazioni tab = ArchivioCasuale(300, 12, 21);
  struct Caso {
    std::vector<int> ruote;
    std::vector<int> numeri;
    int sorte;
    int inizio;
  };
  const std::vector<Caso> casi{
      {{BA}, {3}, 1, 1},           {{NZ}, {3}, 1, 1},          {{kTutteLeRuote}, {5, 9}, 2, 40},
      {{CA, VE}, {1, 2, 3}, 2, 7}, {{GE}, {1, 4, 6, 8}, 3, 1}, {{CA}, {2}, 1, 7},
  };
  for (const Caso& caso : casi) {
    const int fine = tab.EstrazioniArchivio();
    const StoriaRitardo storia = CalcolaStoriaRitardo(tab, caso.ruote, caso.numeri, caso.sorte, caso.inizio, fine);
    ASSERT_FALSE(storia.estrazioni.empty());
    int uscite = 0;
    for (size_t k = 0; k < storia.estrazioni.size(); ++k) {
      const int e = storia.estrazioni[k];
      ASSERT_EQ(storia.ritardi[k],
                RitardoCombinazione(tab, caso.ruote, caso.numeri, caso.sorte, e, kTuttePosizioni, caso.inizio))
          << "draw " << e;
      if (k > 0 && storia.ritardi[k] <= storia.ritardi[k - 1]) {
        EXPECT_EQ(storia.ritardi[k], 0) << "draw " << e;
      }
      uscite += storia.ritardi[k] == 0 ? 1 : 0;
    }
    EXPECT_EQ(storia.storico,
              StoricoCombinazione(tab, caso.ruote, caso.numeri, caso.sorte, fine, kTuttePosizioni, caso.inizio));
    EXPECT_EQ(storia.uscite, uscite);
    if (caso.ruote.size() == 1 && caso.ruote[0] != kTutteLeRuote && caso.sorte == 1) {
      EXPECT_EQ(storia.uscite,
                FrequenzaCombinazione(tab, caso.ruote, caso.numeri, 1, fine, kTuttePosizioni, caso.inizio));
    }
  }
}

TEST(Frequenze, QuelleDiOgniNumeroEQuellaAttesa) {
  const TabellaEstrazioni tab = ArchivioCasuale(200, 90, 5);
  for (int ruota : {int{BA}, int{NZ}, kTutteLeRuote}) {
    const FrequenzeNumeri frequenze = CalcolaFrequenze(tab, ruota, 30, 180);
    ASSERT_EQ(frequenze.frequenze.size(), size_t{kMassimoNumero});
    for (int numero = 1; numero <= kMassimoNumero; ++numero) {
      const std::array ruote{ruota};
      const std::array numeri{numero};
      ASSERT_EQ(frequenze.frequenze[static_cast<size_t>(numero - 1)],
                FrequenzaCombinazione(tab, ruote, numeri, 1, 180, kTuttePosizioni, 30))
          << "ruota " << ruota << " numero " << numero;
    }
  }
  // Nazionale is drawn from draw 100 only: its expected frequency counts those draws alone.
  EXPECT_EQ(CalcolaFrequenze(tab, NZ, 1, 99).estrazioni_ruota, 0);
  EXPECT_EQ(CalcolaFrequenze(tab, NZ, 1, 99).attesa, 0.0);
  EXPECT_EQ(CalcolaFrequenze(tab, BA, 181, 180).estrazioni_ruota, 0) << "empty range";
}

// On real draws every wheel holds five numbers, so the frequencies average exactly the expected one.
TEST(Frequenze, SulleEstrazioniRealiLaMediaELAttesa) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  const TabellaEstrazioni& tab = ArchivioReale();
  for (int ruota : {int{NZ}, kTutteLeRuote}) {
    const FrequenzeNumeri frequenze = CalcolaFrequenze(tab, ruota, 1, tab.EstrazioniArchivio());
    const double somma = std::accumulate(frequenze.frequenze.begin(), frequenze.frequenze.end(), 0.0);
    EXPECT_GT(frequenze.estrazioni_ruota, 0);
    EXPECT_DOUBLE_EQ(somma / kMassimoNumero, frequenze.attesa);
  }
}

}  // namespace
}  // namespace lottolab::stats
