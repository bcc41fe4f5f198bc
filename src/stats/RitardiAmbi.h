#pragma once

// The delay of every one of the 4005 ambi on every wheel, and on all wheels together, for the
// lists of the most delayed ambi. One walk backwards from the end of the range finds each ambo's
// latest win; a wheel whose 4005 ambi have all been found is no longer examined, and the walk stops
// as soon as every wheel is complete. The delays sit in one block of 12 x 4005 ints, wheel after
// wheel, each wheel's ambi in IndiceAmbo order.
//
// The figures are exactly those of Ritardi.h for sorte 2 and every position:
// Ritardo(r, a, b) == AmboRitardo(tab, r, a, b, inizio, fine), for every record whose wheels hold five
// different numbers; a damaged record that repeats a number on a wheel may give other figures, but
// never a read or write outside the table.

#include <utility>
#include <vector>

#include "archive/TabellaEstrazioni.h"

namespace lottolab::stats {

inline constexpr int kNumeroAmbi = kMassimoNumero * (kMassimoNumero - 1) / 2;

// The place of the ambo {a, b} (two different numbers 1..90, in either order) among all ambi in
// lexicographic order: 0 for {1, 2}, 88 for {1, 90}, 89 for {2, 3}, kNumeroAmbi - 1 for {89, 90}.
constexpr int IndiceAmbo(int a, int b) {
  if (a > b) std::swap(a, b);
  return (a - 1) * (2 * kMassimoNumero - a) / 2 + (b - a - 1);
}

class RitardiAmbi {
 public:
  // The delay of the ambo {a, b} (two different numbers 1..90) on `ruota` (1..11, or 12 for all).
  int Ritardo(int ruota, int a, int b) const;

 private:
  friend RitardiAmbi CalcolaRitardiAmbi(const TabellaEstrazioni& tab, int inizio, int fine);

  std::vector<int> m_ritardi;
};

// The delays of the range inizio..fine (draw indices inside the table; an empty range gives zeros).
RitardiAmbi CalcolaRitardiAmbi(const TabellaEstrazioni& tab, int inizio, int fine);

}  // namespace lottolab::stats
