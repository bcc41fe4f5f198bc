#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>

#include "DatiReali.h"
#include "archive/SuperEnalotto.h"
#include "stats/RitardiGioco.h"

namespace lottolab::stats {
namespace {

// The plain computation: every draw looked at on its own.
StatisticaNumero APiedi(const TabellaGioco& tab, const std::vector<int>& numeri, int sorte, int inizio, int fine) {
  std::vector<bool> vince;
  for (int id = inizio; id <= fine; ++id) {
    int colpi = 0;
    for (int i = 0; i < tab.formato().numeri; ++i)
      colpi += static_cast<int>(std::count(numeri.begin(), numeri.end(), tab[id].numeri[static_cast<size_t>(i)]));
    vince.push_back(colpi >= sorte);
  }
  StatisticaNumero attesa;
  attesa.frequenza = static_cast<int>(std::count(vince.begin(), vince.end(), true));
  const auto ultima = std::find(vince.rbegin(), vince.rend(), true);
  attesa.ritardo = static_cast<int>(ultima - vince.rbegin());
  int corsa = 0, chiusa = 0;
  for (bool v : vince) {
    if (v) {
      chiusa = std::max(chiusa, corsa);
      corsa = 0;
    } else {
      attesa.storico = std::max(attesa.storico, ++corsa);
    }
  }
  attesa.incr_storico = std::max(0, attesa.ritardo - chiusa);
  return attesa;
}

TEST(RitardiGioco, UnaCombinazioneVinceQuandoAbbastanzaNumeriSonoTraQuelliPrincipali) {
  EstrazioneGioco a, b, c;
  a.numeri = {1, 2, 3, 4, 5, 6};
  a.speciali = {7, 8};
  b.numeri = {7, 8, 9, 10, 11, 12};
  c.numeri = {1, 9, 20, 30, 40, 50};
  const TabellaGioco tab(Formato(Gioco::SuperEnalotto), {a, b, c});
  const std::vector<int> ambo{7, 9};
  EXPECT_EQ(StatisticaCombinazioneGioco(tab, ambo, 2, 3), (StatisticaNumero{1, 1, 1, 0}))
      << "7 and 8 as Jolly and SuperStar of the first draw do not count";
  EXPECT_EQ(StatisticaCombinazioneGioco(tab, ambo, 1, 3), (StatisticaNumero{0, 2, 1, 0}));
  EXPECT_EQ(StatisticaCombinazioneGioco(tab, ambo, 2, 1), (StatisticaNumero{1, 0, 1, 1}));
  EXPECT_EQ(StatisticaCombinazioneGioco(tab, ambo, 2, 3, 3), (StatisticaNumero{1, 0, 1, 1}));
}

TEST(RitardiGiocoReali, IlSuperEnalottoDalDuemilaNoveComeACalcoloPiano) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  std::ifstream file(test::CartellaDatiReali() / "superenalotto.txt", std::ios::binary);
  std::stringstream testo;
  testo << file.rdbuf();
  auto risultati = LeggiRisultatiSuperEnalotto(testo.str());
  ASSERT_TRUE(risultati) << risultati.Errore().testo;
  const TabellaGioco tab(Formato(Gioco::SuperEnalotto), *risultati);
  const int fine = tab.EstrazioniArchivio();
  // The whole table from one walk, number by number as the walk of one combination gives it.
  for (const auto& [inizio, fine_tabella] : {std::pair{1, fine}, std::pair{100, fine / 2}}) {
    const auto tabellone = TabelloneGioco(tab, fine_tabella, inizio);
    for (int numero = 1; numero <= 90; ++numero) {
      const int uno[] = {numero};
      ASSERT_EQ(tabellone[static_cast<size_t>(numero)], StatisticaCombinazioneGioco(tab, uno, 1, fine_tabella, inizio))
          << numero << " from " << inizio;
    }
  }
  for (const std::vector<int>& numeri : std::vector<std::vector<int>>{{1}, {90}, {85}, {13, 47}, {5, 6, 7, 8}}) {
    for (int sorte = 1; sorte <= static_cast<int>(numeri.size()); ++sorte) {
      EXPECT_EQ(StatisticaCombinazioneGioco(tab, numeri, sorte, fine), APiedi(tab, numeri, sorte, 1, fine))
          << numeri[0] << " sorte " << sorte;
      EXPECT_EQ(StatisticaCombinazioneGioco(tab, numeri, sorte, fine / 2, 100),
                APiedi(tab, numeri, sorte, 100, fine / 2));
    }
  }
}

}  // namespace
}  // namespace lottolab::stats
