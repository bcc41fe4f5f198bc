#pragma once

// The run of delays that every statistic of a combination follows, whatever the game: each draw of
// the range, from the first, either counts and wins on some wheels, counts without winning, or does
// not count; the delay, frequency, historical maximum and its increment follow from that alone.

#include <algorithm>

#include "Tabellone.h"

namespace lottolab::stats {

// What one draw means for a combination: whether it counts, and on how many selected wheels it wins.
struct Esame {
  bool conta = false;
  int vincite = 0;
};

// The statistics of the range walked so far, updated one draw at a time from the first.
struct Andamento {
  int ritardo = 0;
  int frequenza = 0;
  int storico = 0;
  int massimo_chiuso = 0;

  void Aggiungi(const Esame& esame) {
    frequenza += esame.vincite;
    if (esame.vincite > 0) {
      massimo_chiuso = std::max(massimo_chiuso, ritardo);
      ritardo = 0;
    } else if (esame.conta) {
      ++ritardo;
      storico = std::max(storico, ritardo);
    }
  }

  int IncrStorico() const { return ritardo > massimo_chiuso ? ritardo - massimo_chiuso : 0; }
};

// The four figures of a walk.
inline StatisticaNumero Figure(const Andamento& andamento) {
  return {.ritardo = andamento.ritardo,
          .frequenza = andamento.frequenza,
          .storico = andamento.storico,
          .incr_storico = andamento.IncrStorico()};
}

}  // namespace lottolab::stats
