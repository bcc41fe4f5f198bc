#pragma once

// The numbers that followed a "spia": each time a number (or an ambo) came out on a wheel, which
// numbers came out in the next draws on a chosen wheel or on all of them. A case counts only when
// all its following draws are in the range, so that the last, unfinished one does not lower the
// percentages; it is the current situation instead.

#include <array>
#include <optional>
#include <vector>

#include "TerniRitardatari.h"
#include "archive/TabellaEstrazioni.h"

namespace lottolab::stats {

struct DomandaSpia {
  // One number, or two for an ambo (second 0 for a single number), on `ruota_spia` (1..11).
  std::array<int, 2> spia{};
  int ruota_spia = 1;
  // Where the followers are looked for: 1..11, or kTutteLeRuote.
  int ruota_esito = kTutteLeRuote;
  // How many draws after the spia's are looked at, 1..kMassimiColpiSpia.
  int colpi = 1;
  int inizio = 1;
  int fine = 0;
};

inline constexpr int kMassimiColpiSpia = 100;

struct NumeroSeguito {
  int numero = 0;
  // The cases in which it came out within the colpi.
  int presenze = 0;
  // Over those cases, the colpi to its first appearance added up (for the mean) and the least.
  int somma_colpi = 0;
  int colpo_minimo = 0;
};

struct EsitoSpia {
  // The cases counted: the spia's appearances followed by all their colpi within the range.
  int casi = 0;
  // The spia's appearances in the range, the last unfinished one included.
  int uscite = 0;
  // Draws after the spia's last appearance up to the end of the range; none when it never came.
  std::optional<int> ritardo_attuale;
  std::optional<int> ultima_uscita;
  // Numbers 1..90 in order.
  std::array<NumeroSeguito, 90> seguiti{};
};

// The figures of `domanda` over its range (inizio..fine within the table, inizio <= fine, both
// checked by assertion). Nothing when the computation was stopped through `controllo`.
std::optional<EsitoSpia> CalcolaNumeriSpia(const TabellaEstrazioni& tab, const DomandaSpia& domanda,
                                           const ControlloCalcolo& controllo = {});

}  // namespace lottolab::stats
