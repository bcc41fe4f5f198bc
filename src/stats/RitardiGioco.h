#pragma once

// Delay, frequency and historical maximum of a combination in the archive of a game other than the
// Lotto. A draw of those games is one set of numbers: the combination wins at sorte k when at least
// k of its numbers are among the draw's main numbers (the Jolly, SuperStar, Oro, Extra, Numerone
// count only in the functions that name them), and every draw counts. The run of delays is the one
// the Lotto's statistics follow (Andamento.h).
//
// As there, the arguments are not user input: numbers outside 1..255, a sorte outside 1..numbers of
// a draw, or a range that leaves the table are programming errors caught by an assertion.

#include <cstdint>
#include <span>
#include <vector>

#include "Andamento.h"
#include "Tabellone.h"
#include "archive/TabellaGioco.h"

namespace lottolab::stats {

// The positions 1..20 of a draw's main numbers that take part in the hit test, bit p - 1 for
// position p.
using PosizioniGioco = uint32_t;
inline constexpr PosizioniGioco kTutteLePosizioniGioco = ~PosizioniGioco{0};

// The walk every statistic of a game follows: `vince(estrazione)` says whether the combination wins
// in that draw; the figures of inizio..fine.
template <typename Vince>
StatisticaNumero PercorsoGioco(const TabellaGioco& tab, int inizio, int fine, Vince&& vince) {
  Andamento andamento;
  for (int id = inizio; id <= fine; ++id) andamento.Aggiungi(Esame{.conta = true, .vincite = vince(tab[id]) ? 1 : 0});
  return Figure(andamento);
}

// The delay, frequency, historical maximum and its increment over draws inizio..fine.
StatisticaNumero StatisticaCombinazioneGioco(const TabellaGioco& tab, std::span<const int> numeri, int sorte, int fine,
                                             int inizio = 1, PosizioniGioco posizioni = kTutteLePosizioniGioco);

// For each draw of inizio..fine (element id - inizio), whether the combination wins in it.
std::vector<bool> VinciteGioco(const TabellaGioco& tab, std::span<const int> numeri, int sorte, int fine,
                               int inizio = 1, PosizioniGioco posizioni = kTutteLePosizioniGioco);

// The same four figures for every number 1..massimo of the game, on its own at sorte 1, from one
// walk that looks only at the numbers drawn: element n is number n's, element 0 is unused.
std::vector<StatisticaNumero> TabelloneGioco(const TabellaGioco& tab, int fine, int inizio = 1);

}  // namespace lottolab::stats
