#pragma once

#include <cstdint>

namespace lottolab::stats {

int16_t FuoriX(double n, int base);
inline int16_t Fuori90(double n) { return FuoriX(n, 90); }

}  // namespace lottolab::stats
