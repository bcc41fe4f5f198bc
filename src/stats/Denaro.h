#pragma once

// Money as whole cents of a euro. Prizes are fractions of a stake (250 / 3 per euro, a stake split
// over wheels and combinations), so each is computed as one exact integer fraction and rounded
// once, half up to the cent; sums of cents never drift as sums of binary fractions would.

#include <cstdint>
#include <string>
#include <string_view>

#include "archive/Esito.h"

namespace lottolab::stats {

using Centesimi = int64_t;

inline constexpr Centesimi kCentesimiPerEuro = 100;

// numeratore / denominatore rounded half up; both at least 0, the denominator above 0.
Centesimi ArrotondaMetaInSu(int64_t numeratore, int64_t denominatore);

// The part of an amount taken by a rate in hundredths of a percent (800 = 8%), rounded half up.
Centesimi Percentuale(Centesimi importo, int centesimi_di_punto);

// "2.380,95", "-12,50": the Italian way, thousands grouped by dots.
std::string FormattaEuro(Centesimi importo);

// "1", "0,10", "0.5", "1.234,50" is refused (no thousands separators): a non-negative amount with at
// most two decimals, up to a billion euro; anything else gets the user's message.
Esito<Centesimi> LeggiEuro(std::string_view testo);

}  // namespace lottolab::stats
