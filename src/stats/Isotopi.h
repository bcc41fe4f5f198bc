#pragma once

// Isotopes: a number drawn in the same position on two or more wheels of one draw. The events are
// listed draw by draw, and each number in each position gets the frequency and the delay of its
// isotope event. Only the wheels chosen take part; a wheel not drawn that day holds no number.

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "archive/TabellaEstrazioni.h"

namespace lottolab::stats {

struct EventoIsotopo {
  int id_estr = 0;
  int posizione = 0;
  int numero = 0;
  // Bit r - 1 for every wheel r that held the number in that position.
  uint16_t ruote = 0;
};

struct StatisticaIsotopo {
  int frequenza = 0;
  // Draws since the last event; every draw of the range when none.
  int ritardo = 0;
  std::optional<int> ultima_uscita;
};

struct EsitoIsotopi {
  std::vector<EventoIsotopo> eventi;
  // [numero - 1][posizione - 1].
  std::array<std::array<StatisticaIsotopo, kNumeriPerRuota>, 90> statistiche{};
};

// The isotopes among the wheels of `ruote` (bit r - 1 for wheel r, at least two wheels) over
// inizio..fine (within the table, inizio <= fine; checked by assertion).
EsitoIsotopi CalcolaIsotopi(const TabellaEstrazioni& tab, uint16_t ruote, int inizio, int fine);

}  // namespace lottolab::stats
