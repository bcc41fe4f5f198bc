#include "Tabellone.h"

#include <cassert>

#include "TracciaVincite.h"

namespace lottolab::stats {

const StatisticaNumero& TabelloneRuote::Dati(int ruota, int numero) const {
  assert(ruota >= 1 && ruota <= kTutteLeRuote && numero >= 1 && numero <= kMassimoNumero);
  return m_dati[ruota][numero];
}

TabelloneRuote CalcolaTabellone(const TabellaEstrazioni& tab, int inizio, int fine) {
  assert(inizio >= 1 && fine <= tab.EstrazioniArchivio());
  std::array<std::array<TracciaVincite, kMassimoNumero + 1>, kTutteLeRuote + 1> tracce{};
  std::array<int, kTutteLeRuote + 1> contate{};
  for (int id = inizio; id <= fine; ++id) {
    const Estrazione& estrazione = tab[id];
    if (!estrazione.Presente()) continue;
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
      const uint8_t* numeri = &estrazione.numeri[(ruota - 1) * kNumeriPerRuota];
      const bool estratta = numeri[0] != 0;
      for (int p = 0; p < kNumeriPerRuota; ++p) {
        const int numero = numeri[p];
        if (numero == 0 || numero > kMassimoNumero) continue;
        tracce[ruota][numero].Vince(contate[ruota], estratta);
        // On all wheels together every wheel that shows the number adds to the frequency. Every
        // present draw counts there (Bari is drawn in it), so a second win in the same draw finds a
        // run of -1 and leaves the delay and the maximum as the first one set them.
        tracce[kTutteLeRuote][numero].Vince(contate[kTutteLeRuote], true);
      }
      if (estratta) ++contate[ruota];
    }
    ++contate[kTutteLeRuote];
  }

  TabelloneRuote tabellone;
  for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota) {
    for (int numero = 1; numero <= kMassimoNumero; ++numero) {
      tabellone.m_dati[ruota][numero] = tracce[ruota][numero].Statistica(contate[ruota]);
    }
  }
  return tabellone;
}

}  // namespace lottolab::stats
