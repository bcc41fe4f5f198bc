#pragma once

// Delay, frequency and historical maximum of all 4005 ambi on every wheel and on all wheels
// together, over any range of draws, for the table of the ambi. Two forward walks side by side on two
// threads, one for the wheels one by one and one for all of them together: a draw costs each the ten
// ambi of every wheel, and the state of the 12 x 4005 ambi, about 580 KB, stays in the cache.
//
// The figures are those of Ritardi.h for sorte 2 and every position: Dati(r, a, b) holds
// AmboRitardo, AmboFrequenza and the historical maximum of {a, b} on r over the range, for every
// record whose wheels hold five different numbers. A wheel that no draw of the range counts has no
// figures.

#include <optional>
#include <vector>

#include "RitardiAmbi.h"
#include "Tabellone.h"
#include "archive/TabellaEstrazioni.h"

namespace lottolab::stats {

class AnaliticoAmbi {
 public:
  // The figures of the ambo {a, b} (two different numbers 1..90) on `ruota` (1..12); nothing when no
  // draw of the range counted the wheel.
  std::optional<StatisticaNumero> Dati(int ruota, int a, int b) const;
  // The same by the ambo's place among all ambi (IndiceAmbo, 0..kNumeroAmbi - 1).
  std::optional<StatisticaNumero> DatiIndice(int ruota, int indice) const;
  bool RuotaPresente(int ruota) const;

 private:
  friend AnaliticoAmbi CalcolaAnaliticoAmbi(const TabellaEstrazioni& tab, int inizio, int fine);

  std::array<bool, kTutteLeRuote + 1> m_presente{};
  // Wheel after wheel (1..12), each wheel's ambi in IndiceAmbo order.
  std::vector<StatisticaNumero> m_dati;
};

// The ambi over inizio..fine (draw indices inside the table; an empty range counts no draw).
AnaliticoAmbi CalcolaAnaliticoAmbi(const TabellaEstrazioni& tab, int inizio, int fine);

// The two numbers a < b of the ambo at place `indice` (0..kNumeroAmbi - 1) of IndiceAmbo's order.
std::array<int, 2> AmboDaIndice(int indice);

}  // namespace lottolab::stats
