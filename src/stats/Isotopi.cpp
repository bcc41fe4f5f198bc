#include "Isotopi.h"

#include <bit>
#include <cassert>

namespace lottolab::stats {

EsitoIsotopi CalcolaIsotopi(const TabellaEstrazioni& tab, uint16_t ruote, int inizio, int fine) {
  assert(tab.Contiene(inizio) && tab.Contiene(fine) && inizio <= fine);
  assert(std::popcount(static_cast<unsigned>(ruote)) >= 2);
  EsitoIsotopi esito;
  for (int id = inizio; id <= fine; ++id) {
    const Estrazione& estrazione = tab[id];
    for (int p = 1; p <= kNumeriPerRuota; ++p) {
      // The wheels holding each number in this position; a few numbers at most, so a small list.
      std::array<int, kNumeroRuote> numeri{};
      std::array<uint16_t, kNumeroRuote> dove{};
      int diversi = 0;
      for (int r = 1; r <= kNumeroRuote; ++r) {
        if ((ruote & (1U << (r - 1))) == 0) continue;
        const int n = estrazione.Numero(r, p);
        if (n < 1 || n > 90) continue;
        int k = 0;
        while (k < diversi && numeri[static_cast<size_t>(k)] != n) ++k;
        if (k == diversi) numeri[static_cast<size_t>(diversi++)] = n;
        dove[static_cast<size_t>(k)] = static_cast<uint16_t>(dove[static_cast<size_t>(k)] | (1U << (r - 1)));
      }
      for (int k = 0; k < diversi; ++k) {
        if (std::popcount(static_cast<unsigned>(dove[static_cast<size_t>(k)])) < 2) continue;
        const int n = numeri[static_cast<size_t>(k)];
        esito.eventi.push_back({id, p, n, dove[static_cast<size_t>(k)]});
        StatisticaIsotopo& statistica = esito.statistiche[static_cast<size_t>(n - 1)][static_cast<size_t>(p - 1)];
        ++statistica.frequenza;
        statistica.ultima_uscita = id;
      }
    }
  }
  for (auto& per_numero : esito.statistiche)
    for (StatisticaIsotopo& statistica : per_numero)
      statistica.ritardo = fine - (statistica.ultima_uscita ? *statistica.ultima_uscita : inizio - 1);
  return esito;
}

}  // namespace lottolab::stats
