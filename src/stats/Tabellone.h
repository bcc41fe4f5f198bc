#pragma once

// The statistics of all ninety numbers at once, on every wheel and on all wheels together, as the
// analysis views show them. Calling the per-combination functions 90 x 12 times would walk the range
// about a thousand times; this walks it once, keeping for each number only the count of the wheel's
// counted draws at its last win, so that a draw costs work for the 55 numbers drawn in it and nothing
// for the others.
//
// The figures are exactly those of Ritardi.h for one number, sorte 1 and every position:
// Dati(r, n).ritardo == EstrattoRitardo(tab, r, n, inizio, fine), and so on for the frequency, the
// historical maximum and its increment. That holds for every record whose wheels hold five different
// numbers, as every real draw does; a damaged record that repeats a number on a wheel may give other
// figures, but never a read or write outside the table.

#include <array>

#include "archive/TabellaEstrazioni.h"

namespace lottolab::stats {

struct StatisticaNumero {
  int ritardo = 0;
  int frequenza = 0;
  int storico = 0;
  int incr_storico = 0;

  friend bool operator==(const StatisticaNumero&, const StatisticaNumero&) = default;
};

class TabelloneRuote {
 public:
  // The figures of `numero` (1..90) on `ruota` (1..11, or 12 for all wheels together).
  const StatisticaNumero& Dati(int ruota, int numero) const;

 private:
  friend TabelloneRuote CalcolaTabellone(const TabellaEstrazioni& tab, int inizio, int fine);

  std::array<std::array<StatisticaNumero, kMassimoNumero + 1>, kTutteLeRuote + 1> m_dati{};
};

// The table of the range inizio..fine (draw indices inside the table; an empty range gives zeros).
TabelloneRuote CalcolaTabellone(const TabellaEstrazioni& tab, int inizio, int fine);

}  // namespace lottolab::stats
