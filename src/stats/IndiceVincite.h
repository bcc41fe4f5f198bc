#pragma once

// The draws in which each number came out on each wheel, and the counted draws of each wheel up to
// every draw. Built in one walk of the table, they give the delay, frequency, historical maximum and
// increment of one number or one ambo by reading only the draws where it came out, where the walks
// of Ritardi.h read every draw of the range: a script that asks for every number on every wheel pays
// for one walk instead of a thousand.
//
// The figures are exactly those of Ritardi.h for every position:
// Estratto(r, n, inizio, fine).frequenza == EstrattoFrequenza(tab, r, n, inizio, fine), and so on, for
// sorte 1 on one number and sorte 2 on an ambo. That holds for every record whose wheels hold five
// different numbers, as every real draw does; a damaged record that repeats a number on a wheel may
// give other figures for an ambo, but never a read outside the index.

#include <array>
#include <span>
#include <vector>

#include "Tabellone.h"
#include "archive/TabellaEstrazioni.h"

namespace lottolab::stats {

class IndiceVincite {
 public:
  explicit IndiceVincite(const TabellaEstrazioni& tab);

  // The draws of the table the index was built from.
  int Estrazioni() const { return static_cast<int>(m_contate[kTutteLeRuote].size()) - 1; }

  // `numero` (1..90) on `ruota` (1..11, or 12 for all wheels) over inizio..fine (draw indices inside
  // the table; an empty range gives zeros).
  StatisticaNumero Estratto(int ruota, int numero, int inizio, int fine) const;
  // The ambo {a, b} (two different numbers 1..90) in the same way.
  StatisticaNumero Ambo(int ruota, int a, int b, int inizio, int fine) const;

 private:
  // The figures from the winning draws of inizio..fine in increasing order, a draw repeated once for
  // every wheel on which it won.
  StatisticaNumero Statistica(std::span<const int> vincite, int ruota, int inizio, int fine) const;

  // For each wheel 1..12 and number, the winning draws; on wheel 12 a draw appears once per wheel.
  std::array<std::array<std::vector<int>, kMassimoNumero + 1>, kTutteLeRuote + 1> m_vincite;
  // For each wheel 1..12, the counted draws of 1..id for id = 0..the last draw.
  std::array<std::vector<int>, kTutteLeRuote + 1> m_contate;
};

}  // namespace lottolab::stats
