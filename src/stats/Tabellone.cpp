#include "Tabellone.h"

#include <algorithm>
#include <cassert>

namespace lottolab::stats {

namespace {

// One number on one wheel while the range is walked from its first draw.
struct Traccia {
  // The wheel's counted draws up to the last win, the winning draw included.
  int contate_alla_vincita = 0;
  // The longest run that a win has closed.
  int massimo_chiuso = 0;
  int frequenza = 0;

  // A win in a draw that comes after `contate` counted draws of the wheel.
  void Vince(int contate, bool estratta) {
    ++frequenza;
    massimo_chiuso = std::max(massimo_chiuso, contate - contate_alla_vincita);
    contate_alla_vincita = contate + (estratta ? 1 : 0);
  }
};

}  // namespace

const StatisticaNumero& TabelloneRuote::Dati(int ruota, int numero) const {
  assert(ruota >= 1 && ruota <= kTutteLeRuote && numero >= 1 && numero <= kMassimoNumero);
  return m_dati[ruota][numero];
}

TabelloneRuote CalcolaTabellone(const TabellaEstrazioni& tab, int inizio, int fine) {
  assert(inizio >= 1 && fine <= tab.EstrazioniArchivio());
  std::array<std::array<Traccia, kMassimoNumero + 1>, kTutteLeRuote + 1> tracce{};
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
      const Traccia& traccia = tracce[ruota][numero];
      StatisticaNumero& dati = tabellone.m_dati[ruota][numero];
      dati.ritardo = contate[ruota] - traccia.contate_alla_vincita;
      dati.frequenza = traccia.frequenza;
      dati.storico = std::max(traccia.massimo_chiuso, dati.ritardo);
      dati.incr_storico = std::max(dati.ritardo - traccia.massimo_chiuso, 0);
    }
  }
  return tabellone;
}

}  // namespace lottolab::stats
