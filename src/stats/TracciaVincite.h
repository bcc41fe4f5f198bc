#pragma once

// The state that a forward walk of the draws keeps for one combination on one wheel, shared by the
// whole-table statistics (Tabellone, AnaliticoAmbi, TerniRitardatari) so that they agree to the unit.

#include <algorithm>

#include "Tabellone.h"

namespace lottolab::stats {

struct TracciaVincite {
  // The wheel's counted draws up to the last win, the winning draw included.
  int contate_alla_vincita = 0;
  // The longest run that a win has closed.
  int massimo_chiuso = 0;
  int frequenza = 0;

  // A win in a draw that comes after `contate` counted draws of the wheel. On all wheels together a
  // second win in the same draw finds a run of -1 and changes nothing but the frequency.
  void Vince(int contate, bool estratta) {
    ++frequenza;
    massimo_chiuso = std::max(massimo_chiuso, contate - contate_alla_vincita);
    contate_alla_vincita = contate + (estratta ? 1 : 0);
  }

  // The figures once the walk has counted `contate` draws of the wheel.
  StatisticaNumero Statistica(int contate) const {
    const int ritardo = contate - contate_alla_vincita;
    return {ritardo, frequenza, std::max(massimo_chiuso, ritardo), std::max(ritardo - massimo_chiuso, 0)};
  }
};

}  // namespace lottolab::stats
