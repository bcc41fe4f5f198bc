#pragma once

// The search of the draws that hold some numbers: all of them or at least K, on one wheel or spread
// over the chosen wheels, within a range of draws.

#include <optional>
#include <vector>

#include "stats/EstrazioniPerAnalisi.h"
#include "stats/TerniRitardatari.h"

namespace lottolab::stats {

enum class DoveNumeri { SuUnaRuota, Ovunque };

struct FiltroEstrazioni {
  int inizio = 1;
  int fine = 0;             // 0: the last draw
  std::vector<int> ruote;   // none: every wheel
  std::vector<int> numeri;  // none: every draw in which a chosen wheel was drawn
  int almeno = 0;           // how many of the numbers must be there; 0 or more than there are: all
  DoveNumeri dove = DoveNumeri::SuUnaRuota;
};

// The draws that pass the filter, in archive order. Only drawn wheels are looked at; a number
// repeated in the filter counts once, and one outside 1..massimo can never be found. Nothing when
// stopped.
std::optional<std::vector<int>> CercaEstrazioni(const EstrazioniPerAnalisi& estrazioni, const FiltroEstrazioni& filtro,
                                                const ControlloCalcolo& controllo = {});

}  // namespace lottolab::stats
