#pragma once

// The figures of a group of numbers computed the plainest way, draw by draw, for the tests of the
// whole-table statistics: they share no code with them.

#include <optional>
#include <vector>

#include "archive/TabellaEstrazioni.h"
#include "stats/Tabellone.h"

namespace lottolab::test {

// Every number of `numeri` on wheel `ruota` (1..11, or 12 for any wheel, each wheel adding to the
// frequency) over inizio..fine; nothing when no draw of the range counts the wheel.
inline std::optional<stats::StatisticaNumero> ForzaBruta(const TabellaEstrazioni& tab, int ruota,
                                                         const std::vector<int>& numeri, int inizio, int fine) {
  const auto vince = [&](const Estrazione& estrazione, int r) {
    for (int numero : numeri) {
      bool trovato = false;
      for (int p = 1; p <= kNumeriPerRuota; ++p) trovato = trovato || estrazione.Numero(r, p) == numero;
      if (!trovato) return false;
    }
    return true;
  };
  int contate = 0, frequenza = 0, corsa = 0, massimo_chiuso = 0;
  for (int id = inizio; id <= fine; ++id) {
    const Estrazione& estrazione = tab[id];
    if (!estrazione.Presente()) continue;
    int vincite = 0;
    bool contata = ruota == kTutteLeRuote;
    for (int r = 1; r <= kNumeroRuote; ++r) {
      if (ruota != kTutteLeRuote && r != ruota) continue;
      if (vince(estrazione, r)) ++vincite;
      contata = contata || estrazione.RuotaEstratta(r);
    }
    if (vincite > 0) {
      frequenza += vincite;
      massimo_chiuso = std::max(massimo_chiuso, corsa);
      corsa = 0;
    } else if (contata) {
      ++corsa;
    }
    if (contata) ++contate;
  }
  if (contate == 0) return std::nullopt;
  return stats::StatisticaNumero{corsa, frequenza, std::max(corsa, massimo_chiuso),
                                 std::max(corsa - massimo_chiuso, 0)};
}

}  // namespace lottolab::test
