#pragma once

// The outcome of a forecast: numbers named after a draw, watched on some wheels for a number of
// draws (colpi), closed at the first draw where they reach the sorte wanted. The walk is the one
// scripts call in their innermost loops over the archive, so it allocates nothing and reads the
// records directly.

#include <cstdint>
#include <span>

#include "archive/TabellaEstrazioni.h"
#include "archive/TabellaGioco.h"

namespace lottolab::stats {

struct EsitoPrevisione {
  int sorte = 0;          // the best sorte (numbers hit on one wheel) at the first winning colpo; 0 none
  int colpo = 0;          // 1 for the first draw after the forecast; 0 without a win
  int id_estr = 0;        // the draw of the win
  uint16_t ruote = 0;     // bit r - 1 for every wheel r (table numbering) that reached `sorte` there
  int colpi_giocati = 0;  // the draws checked: fewer than the colpi when the archive ended first
};

// The forecast of `numeri` (1..90, all different) made after draw `dopo` (0..the last draw), on
// `ruote` (1..11, Tutte already expanded), for `colpi` draws: a draw counts when it holds one (a
// wheel not drawn that day wins nothing). It closes at the first draw where some wheel holds at
// least `sorte_minima` (1..5) of the numbers.
EsitoPrevisione VerificaPrevisione(const TabellaEstrazioni& tab, std::span<const int> numeri,
                                   std::span<const int> ruote, int dopo, int colpi, int sorte_minima);

// The same for the ambetto (PremiLotto.h): `sorte` is then the winning ambetto combinations of the
// first winning colpo, summed over the wheels, and `ruote` the wheels that gave any.
EsitoPrevisione VerificaPrevisioneAmbetto(const TabellaEstrazioni& tab, std::span<const int> numeri,
                                          std::span<const int> ruote, int dopo, int colpi);

// A forecast on another game: `sorte` is the main numbers hit (the Jolly, Oro, Extra and Numerone
// do not count); `ruote` stays 0. Numbers 1..M of the game, all different.
EsitoPrevisione VerificaPrevisioneGioco(const TabellaGioco& tab, std::span<const int> numeri, int dopo, int colpi,
                                        int sorte_minima);

}  // namespace lottolab::stats
