#pragma once

// The most delayed of the 117,480 terni on one wheel or on all wheels together, with frequency and
// historical maximum. The terni are split in blocks of consecutive places, one block a thread; each
// thread walks the whole range and keeps only the terni of its block, so the threads share nothing
// but the table and the stop flag, and the state of a block (12 bytes a terno) fits in the cache.
//
// The figures are those of Ritardi.h for sorte 3 and every position, as Tabellone.h gives them for
// one number: for every record whose wheels hold five different numbers.

#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "Tabellone.h"
#include "archive/TabellaEstrazioni.h"

namespace lottolab::stats {

inline constexpr int kNumeroTerni = kMassimoNumero * (kMassimoNumero - 1) * (kMassimoNumero - 2) / 6;

// The place of the terno {a, b, c} (three different numbers 1..90 in increasing order) among all
// terni in lexicographic order: 0 for {1, 2, 3}, kNumeroTerni - 1 for {88, 89, 90}.
int IndiceTerno(int a, int b, int c);

struct TernoStatistica {
  std::array<int, 3> numeri{};
  StatisticaNumero dati;

  friend bool operator==(const TernoStatistica&, const TernoStatistica&) = default;
};

// How a long computation reports and is stopped. Both are called from a worker thread, a few hundred
// times a run at most; either may be empty.
struct ControlloCalcolo {
  // The share done, 0..100.
  std::function<void(int)> progresso;
  // True once the user asked to stop.
  std::function<bool()> annullato;
};

// The `quanti` terni (every one when 0) of the highest delay on `ruota` (1..11, or 12 for all
// wheels) over inizio..fine, the most delayed first; equal delays by higher historical maximum, then
// by their numbers. Empty when no draw of the range counts the wheel; nothing when stopped. `thread`
// 0 uses every core.
std::optional<std::vector<TernoStatistica>> CalcolaTerniRitardatari(const TabellaEstrazioni& tab, int ruota, int inizio,
                                                                    int fine, int quanti,
                                                                    const ControlloCalcolo& controllo = {},
                                                                    int thread = 0);

}  // namespace lottolab::stats
