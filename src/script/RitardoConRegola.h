#pragma once

// The delay walk of Ritardi.h for hit tests that it has no form for: numbers bound each to its own
// position, wheels that must win together. Only the test is the caller's; what counts and where a run
// ends stay those of Ritardi.h, so that the figures compare with the other delays: a draw counts when
// one of the wheels played was drawn in it (its first number is held), a record that holds no draw is
// passed over, and a winning draw closes the run without being counted in it.

#include <algorithm>
#include <span>
#include <vector>

#include "archive/TabellaEstrazioni.h"

namespace lottolab::script {

// The single wheels 1..11 that table wheels select, 12 standing for all of them; each once, in order.
inline std::vector<int> RuoteSingole(std::span<const int> ruote) {
  std::vector<int> singole;
  for (int ruota : ruote) {
    if (ruota == kTutteLeRuote) {
      for (int r = 1; r <= kNumeroRuote; ++r) singole.push_back(r);
    } else {
      singole.push_back(ruota);
    }
  }
  std::sort(singole.begin(), singole.end());
  singole.erase(std::unique(singole.begin(), singole.end()), singole.end());
  return singole;
}

inline bool Contata(const Estrazione& estrazione, std::span<const int> ruote_singole) {
  return std::any_of(ruote_singole.begin(), ruote_singole.end(),
                     [&](int ruota) { return estrazione.RuotaEstratta(ruota); });
}

// The counted draws from `fine` back to the latest draw of inizio..fine for which vince(estrazione)
// holds: 0 when `fine` wins, every counted draw of the range when none does.
template <typename Vince>
int RitardoConRegola(const TabellaEstrazioni& tab, std::span<const int> ruote_singole, int inizio, int fine,
                     Vince vince) {
  int ritardo = 0;
  for (int id = fine; id >= inizio; --id) {
    const Estrazione& estrazione = tab[id];
    if (!estrazione.Presente()) continue;
    if (vince(estrazione)) return ritardo;
    if (Contata(estrazione, ruote_singole)) ++ritardo;
  }
  return ritardo;
}

// For each winning draw of inizio..fine in order, the delay it closed; then the delay at `fine`, which
// is what RitardoConRegola gives.
template <typename Vince>
std::vector<int> CronologiaConRegola(const TabellaEstrazioni& tab, std::span<const int> ruote_singole, int inizio,
                                     int fine, Vince vince) {
  std::vector<int> ritardi;
  int ritardo = 0;
  for (int id = inizio; id <= fine; ++id) {
    const Estrazione& estrazione = tab[id];
    if (!estrazione.Presente()) continue;
    if (vince(estrazione)) {
      ritardi.push_back(ritardo);
      ritardo = 0;
    } else if (Contata(estrazione, ruote_singole)) {
      ++ritardo;
    }
  }
  ritardi.push_back(ritardo);
  return ritardi;
}

}  // namespace lottolab::script
