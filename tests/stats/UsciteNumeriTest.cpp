#include <gtest/gtest.h>

#include "ArchiviDiProva.h"
#include "stats/Ritardi.h"
#include "stats/UsciteNumeri.h"

namespace lottolab::stats {
namespace {

using test::ArchivioCasuale;
using test::ArchivioReale;

Posizioni SoloPosizione(int posizione) {
  if (posizione == 0) return kTuttePosizioni;
  Posizioni posizioni{};
  posizioni[static_cast<size_t>(posizione - 1)] = true;
  return posizioni;
}

// Every number, wheel and position of the range against the walk of Ritardi.h.
void ConfrontaConIlPercorso(const TabellaEstrazioni& tab, const UsciteNumeri& uscite, int inizio, int fine,
                            int massimo) {
  SCOPED_TRACE(testing::Message() << "draws " << inizio << ".." << fine);
  for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota) {
    for (int numero = 1; numero <= massimo; ++numero) {
      const int giocato[] = {numero};
      const int ruote[] = {ruota};
      for (int posizione = 0; posizione <= kNumeriPerRuota; ++posizione) {
        ASSERT_EQ(uscite.Ritardo(ruota, numero, posizione, inizio, fine),
                  RitardoCombinazione(tab, ruote, giocato, 1, fine, SoloPosizione(posizione), inizio))
            << "number " << numero << " on wheel " << ruota << ", position " << posizione;
      }
    }
  }
}

TEST(UsciteNumeri, DannoIRitardiDelPercorsoInOgniIntervallo) {
  // Numbers from 1..25 win often; 26 never comes out, so it shows the whole range's counted draws.
  const TabellaEstrazioni tab = ArchivioCasuale(120, 25, 7);
  const UsciteNumeri uscite = CalcolaUsciteNumeri(tab);
  for (auto [inizio, fine] :
       {std::pair{1, 120}, {1, 1}, {1, 4}, {1, 5}, {1, 6}, {6, 6}, {5, 30}, {40, 61}, {59, 120}, {120, 120}, {30, 29}})
    ConfrontaConIlPercorso(tab, uscite, inizio, fine, 26);
}

TEST(UsciteNumeri, UnaTabellaVuotaNonHaRitardi) {
  const UsciteNumeri uscite = CalcolaUsciteNumeri(TabellaEstrazioni());
  EXPECT_EQ(uscite.Ritardo(1, 1, 0, 1, 0), 0);
  EXPECT_EQ(uscite.Ritardo(kTutteLeRuote, 90, 5, 1, 0), 0);
}

TEST(UsciteNumeri, SullArchivioRealeDannoIRitardiDelPercorso) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  const TabellaEstrazioni& tab = ArchivioReale();
  const UsciteNumeri uscite = CalcolaUsciteNumeri(tab);
  const int ultima = tab.EstrazioniArchivio();
  for (auto [inizio, fine] : {std::pair{1, ultima}, {1, 3000}, {2500, 2600}})
    ConfrontaConIlPercorso(tab, uscite, inizio, fine, kMassimoNumero);
}

}  // namespace
}  // namespace lottolab::stats
