#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "ArchiviDiProva.h"
#include "stats/Ritardi.h"
#include "stats/RitardiAmbi.h"

namespace lottolab::stats {
namespace {

using test::ArchivioCasuale;
using test::ArchivioReale;

TEST(IndiceAmbo, NumeraOgniAmboUnaVoltaInOrdine) {
  std::vector<int> visti(kNumeroAmbi, 0);
  int atteso = 0;
  for (int a = 1; a <= kMassimoNumero; ++a) {
    for (int b = a + 1; b <= kMassimoNumero; ++b) {
      ASSERT_EQ(IndiceAmbo(a, b), atteso) << a << "-" << b;
      ASSERT_EQ(IndiceAmbo(b, a), atteso) << b << "-" << a;
      ++atteso;
    }
  }
  EXPECT_EQ(atteso, kNumeroAmbi);
}

// Every ambo of the given wheels against AmboRitardo.
void ConfrontaConAmboRitardo(const TabellaEstrazioni& tab, int inizio, int fine, std::vector<int> ruote) {
  SCOPED_TRACE(testing::Message() << "draws " << inizio << ".." << fine);
  const RitardiAmbi ritardi = CalcolaRitardiAmbi(tab, inizio, fine);
  for (int ruota : ruote)
    for (int a = 1; a <= kMassimoNumero; ++a)
      for (int b = a + 1; b <= kMassimoNumero; ++b)
        ASSERT_EQ(ritardi.Ritardo(ruota, a, b), AmboRitardo(tab, ruota, a, b, inizio, fine))
            << a << "-" << b << " on wheel " << ruota;
}

const std::vector<int> kOgniRuota{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};

TEST(CalcolaRitardiAmbi, CoincideConAmboRitardo) {
  // A pool of 12 numbers makes every ambo among them win often; with all 90 most ambi never win.
  const TabellaEstrazioni frequenti = ArchivioCasuale(120, 12, 21);
  const TabellaEstrazioni rari = ArchivioCasuale(200, kMassimoNumero, 22);
  for (const TabellaEstrazioni* tab : {&frequenti, &rari}) {
    const int ultima = tab->EstrazioniArchivio();
    for (auto [inizio, fine] : std::vector<std::pair<int, int>>{{1, ultima}, {30, 90}, {1, 5}, {1, 8}, {10, 9}})
      ConfrontaConAmboRitardo(*tab, inizio, fine, kOgniRuota);
  }
}

TEST(CalcolaRitardiAmbi, CoincideAncheQuandoOgniRuotaHaVistoTuttiGliAmbi) {
  // Long enough for every wheel, Nazionale included, to show all 4005 ambi well before draw 1.
  const TabellaEstrazioni tab = ArchivioCasuale(9000, kMassimoNumero, 23);
  ConfrontaConAmboRitardo(tab, 1, tab.EstrazioniArchivio(), kOgniRuota);
}

TEST(ArchivioReale, IRitardiDegliAmbiCoincidonoConAmboRitardo) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  const TabellaEstrazioni& tab = ArchivioReale();
  const int ultima = tab.EstrazioniArchivio();
  ASSERT_GT(ultima, 7000);
  ConfrontaConAmboRitardo(tab, 1, ultima, {BA, VE, NZ, kTutteLeRuote});
  ConfrontaConAmboRitardo(tab, 1, 4000, {CA, NZ, kTutteLeRuote});
  ConfrontaConAmboRitardo(tab, 3000, ultima - 10, {RO});
}

}  // namespace
}  // namespace lottolab::stats
