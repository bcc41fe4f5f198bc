#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "ArchiviDiProva.h"
#include "stats/IndiceVincite.h"
#include "stats/Ritardi.h"

namespace lottolab::stats {
namespace {

using test::Archivio;
using test::ArchivioCasuale;
using test::ArchivioReale;

Posizioni SoloPosizione(int posizione) {
  if (posizione == 0) return kTuttePosizioni;
  Posizioni posizioni{};
  posizioni[static_cast<size_t>(posizione - 1)] = true;
  return posizioni;
}

// The delay of every number up to `massimo`, on every wheel and position of the range, against the
// walk of Ritardi.h.
void ConfrontaConIlPercorso(const TabellaEstrazioni& tab, const IndiceVincite& indice, int inizio, int fine,
                            int massimo) {
  SCOPED_TRACE(testing::Message() << "draws " << inizio << ".." << fine);
  for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota) {
    for (int numero = 1; numero <= massimo; ++numero) {
      const int giocato[] = {numero};
      const int ruote[] = {ruota};
      for (int posizione = 0; posizione <= kNumeriPerRuota; ++posizione) {
        ASSERT_EQ(indice.Ritardo(ruota, numero, posizione, inizio, fine),
                  RitardoCombinazione(tab, ruote, giocato, 1, fine, SoloPosizione(posizione), inizio))
            << "number " << numero << " on wheel " << ruota << ", position " << posizione;
      }
    }
  }
}

TEST(IndiceVincite, IRitardiPerPosizioneSonoQuelliDelPercorsoInOgniIntervallo) {
  // Numbers from 1..25 win often; 26 never comes out, so it shows the whole range's counted draws.
  const TabellaEstrazioni tab = ArchivioCasuale(120, 25, 7);
  const IndiceVincite indice(tab);
  for (auto [inizio, fine] :
       {std::pair{1, 120}, {1, 1}, {1, 4}, {1, 5}, {1, 6}, {6, 6}, {5, 30}, {40, 61}, {59, 120}, {120, 120}, {30, 29}})
    ConfrontaConIlPercorso(tab, indice, inizio, fine, 26);
}

TEST(IndiceVincite, UnNumeroRipetutoSullaRuotaVinceInOgniSuaPosizione) {
  const TabellaEstrazioni tab =
      Archivio().Estrazione({{BA, {7, 1, 7, 2, 3}}}).Estrazione().Estrazione({{CA, {4, 7, 5, 6, 8}}}).Tabella();
  const IndiceVincite indice(tab);
  EXPECT_EQ(indice.Ritardo(BA, 7, 1, 1, 3), 2);
  EXPECT_EQ(indice.Ritardo(BA, 7, 3, 1, 3), 2);
  EXPECT_EQ(indice.Ritardo(BA, 7, 2, 1, 3), 3) << "never at position 2 on Bari";
  EXPECT_EQ(indice.Ritardo(kTutteLeRuote, 7, 3, 1, 3), 2) << "position 3 on Bari, then draws 2 and 3";
  EXPECT_EQ(indice.Ritardo(kTutteLeRuote, 7, 2, 1, 3), 0) << "position 2 on Cagliari in draw 3";
  EXPECT_EQ(indice.Estratto(BA, 7, 1, 3).frequenza, 1) << "one win for the draw, not two";
  ConfrontaConIlPercorso(tab, indice, 1, 3, 8);
}

// Groups of one to six numbers, one of them sometimes played twice, for every sorte, on single wheels,
// sets of wheels and all wheels: the four figures and the delay against the walk of Ritardi.h.
TEST(IndiceVincite, IGruppiHannoLeFigureDelPercorso) {
  const TabellaEstrazioni tab = ArchivioCasuale(150, 14, 3);
  const IndiceVincite indice(tab);
  const std::vector<std::vector<int>> kRuote = {{BA}, {NZ}, {CA}, {kTutteLeRuote}, {CA, FI, NZ}, {NZ, kTutteLeRuote}};
  const std::vector<std::vector<int>> kGruppi = {
      {3}, {3, 9}, {9, 9}, {1, 2, 3}, {2, 5, 5, 8}, {1, 4, 7, 10, 13}, {2, 3, 5, 7, 11, 13}};
  for (const auto& ruote : kRuote) {
    for (const auto& numeri : kGruppi) {
      for (int sorte = 1; sorte <= kNumeriPerRuota; ++sorte) {
        for (auto [inizio, fine] : {std::pair{1, 150}, {1, 1}, {6, 6}, {5, 40}, {70, 150}, {30, 29}}) {
          SCOPED_TRACE(testing::Message()
                       << ruote.size() << " wheels from " << ruote[0] << ", " << numeri.size() << " numbers from "
                       << numeri[0] << ", sorte " << sorte << ", draws " << inizio << ".." << fine);
          ASSERT_EQ(indice.Gruppo(ruote, numeri, sorte, inizio, fine),
                    StatisticaCombinazione(tab, ruote, numeri, sorte, fine, kTuttePosizioni, inizio));
          ASSERT_EQ(indice.RitardoGruppo(ruote, numeri, sorte, inizio, fine),
                    RitardoCombinazione(tab, ruote, numeri, sorte, fine, kTuttePosizioni, inizio));
        }
      }
    }
  }
}

TEST(IndiceVincite, UnaTabellaVuotaNonHaRitardi) {
  const IndiceVincite indice{TabellaEstrazioni()};
  EXPECT_EQ(indice.Ritardo(1, 1, 0, 1, 0), 0);
  EXPECT_EQ(indice.Ritardo(kTutteLeRuote, 90, 5, 1, 0), 0);
  EXPECT_EQ(indice.Estratto(kTutteLeRuote, 90, 1, 0), StatisticaNumero{});
  const int ruote[] = {BA, NZ};
  const int numeri[] = {1, 2, 3};
  EXPECT_EQ(indice.Gruppo(ruote, numeri, 2, 1, 0), StatisticaNumero{});
}

TEST(IndiceVincite, SullArchivioRealeIRitardiPerPosizioneSonoQuelliDelPercorso) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  const TabellaEstrazioni& tab = ArchivioReale();
  const IndiceVincite indice(tab);
  const int ultima = tab.EstrazioniArchivio();
  for (auto [inizio, fine] : {std::pair{1, ultima}, {1, 3000}, {2500, 2600}})
    ConfrontaConIlPercorso(tab, indice, inizio, fine, kMassimoNumero);
}

}  // namespace
}  // namespace lottolab::stats
