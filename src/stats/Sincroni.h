#pragma once

// The companions of a number: the numbers drawn with it in the same draw, on its wheel or, as an
// option, on any wheel of that draw. Delays count the draws in which the number's wheel was drawn,
// so the Nazionale's years without draws do not age its companions.

#include <array>
#include <optional>

#include "archive/TabellaEstrazioni.h"

namespace lottolab::stats {

enum class CompagniDa { StessaRuota, OgniRuota };

struct Compagno {
  int numero = 0;
  // The draws in which it came out with the number.
  int frequenza = 0;
  // Draws of the wheel since it last came out with the number; when never, every draw of the range.
  int ritardo = 0;
  std::optional<int> ultima_uscita;
};

struct EsitoSincroni {
  // The draws of the range in which the number came out on its wheel.
  int uscite = 0;
  // The draws of the range in which its wheel was drawn.
  int estrazioni_contate = 0;
  // Numbers 1..90 in order; the number itself stays at frequency 0.
  std::array<Compagno, 90> compagni{};
};

// The companions of `numero` (1..90) on `ruota` (1..11) over inizio..fine (within the table,
// inizio <= fine; checked by assertion).
EsitoSincroni CalcolaSincroni(const TabellaEstrazioni& tab, int numero, int ruota, CompagniDa da, int inizio, int fine);

}  // namespace lottolab::stats
