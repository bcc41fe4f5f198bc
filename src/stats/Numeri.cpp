#include "Numeri.h"

#include <cmath>

namespace lottolab::stats {

int16_t FuoriX(double n, int base) {
  double r = std::fmod(std::nearbyint(n), base);
  if (r <= 0) r += base;
  return static_cast<int16_t>(r);
}

}  // namespace lottolab::stats
