#include <gtest/gtest.h>

#include <ostream>
#include <utility>
#include <vector>

#include "ArchiviDiProva.h"
#include "stats/Ritardi.h"
#include "stats/Tabellone.h"

namespace lottolab::stats {

void PrintTo(const StatisticaNumero& dati, std::ostream* os) {
  *os << "{ritardo " << dati.ritardo << ", frequenza " << dati.frequenza << ", storico " << dati.storico
      << ", incremento " << dati.incr_storico << "}";
}

namespace {

using test::Archivio;
using test::ArchivioCasuale;
using test::ArchivioReale;

// Every figure of the table against the functions for one number.
void ConfrontaConLeFunzioniPerNumero(const TabellaEstrazioni& tab, int inizio, int fine) {
  SCOPED_TRACE(testing::Message() << "draws " << inizio << ".." << fine);
  const TabelloneRuote tabellone = CalcolaTabellone(tab, inizio, fine);
  for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota) {
    for (int numero = 1; numero <= kMassimoNumero; ++numero) {
      const StatisticaNumero attesa{
          EstrattoRitardo(tab, ruota, numero, inizio, fine),
          EstrattoFrequenza(tab, ruota, numero, inizio, fine),
          EstrattoStorico(tab, ruota, numero, inizio, fine),
          EstrattoIncrStorico(tab, ruota, numero, inizio, fine),
      };
      ASSERT_EQ(tabellone.Dati(ruota, numero), attesa) << "number " << numero << " on wheel " << ruota;
    }
  }
}

TEST(CalcolaTabellone, SuTutteLeRuoteUnaVincitaPerRuotaEUnaSolaCorsaChiusa) {
  const TabellaEstrazioni tab = Archivio()
                                    .NazionaleDa(2)
                                    .Estrazione()
                                    .Estrazione({{BA, {5, 1, 2, 3, 4}}, {CA, {1, 2, 3, 4, 5}}, {NZ, {5, 1, 2, 3, 4}}})
                                    .Estrazione()
                                    .Tabella();
  const TabelloneRuote tabellone = CalcolaTabellone(tab, 1, 3);
  EXPECT_EQ(tabellone.Dati(kTutteLeRuote, 5), (StatisticaNumero{1, 3, 1, 0}));
  EXPECT_EQ(tabellone.Dati(NZ, 5), (StatisticaNumero{1, 1, 1, 1}));
  EXPECT_EQ(tabellone.Dati(NZ, 6), (StatisticaNumero{2, 0, 2, 2})) << "Nazionale is drawn twice";
  EXPECT_EQ(tabellone.Dati(FI, 6), (StatisticaNumero{3, 0, 3, 3}));
}

TEST(CalcolaTabellone, CoincideConLeFunzioniPerNumero) {
  // A pool of 20 numbers makes every number win often, on several wheels of a draw; with all 90 many
  // numbers never win on a wheel at all.
  const TabellaEstrazioni frequenti = ArchivioCasuale(150, 20, 5);
  const TabellaEstrazioni rari = ArchivioCasuale(300, kMassimoNumero, 3);
  for (const TabellaEstrazioni* tab : {&frequenti, &rari}) {
    const int ultima = tab->EstrazioniArchivio();
    for (auto [inizio, fine] :
         std::vector<std::pair<int, int>>{{1, ultima}, {40, 120}, {1, 5}, {1, 8}, {7, 7}, {10, 9}})
      ConfrontaConLeFunzioniPerNumero(*tab, inizio, fine);
  }
}

TEST(ArchivioReale, IlTabelloneCoincideConLeFunzioniPerNumero) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  const TabellaEstrazioni& tab = ArchivioReale();
  const int ultima = tab.EstrazioniArchivio();
  ASSERT_GT(ultima, 7000);
  // The whole archive, a stretch in which Nazionale begins (May 2005) and a recent one.
  for (auto [inizio, fine] : std::vector<std::pair<int, int>>{{1, ultima}, {3000, 4200}, {6000, ultima - 5}})
    ConfrontaConLeFunzioniPerNumero(tab, inizio, fine);
}

}  // namespace
}  // namespace lottolab::stats
