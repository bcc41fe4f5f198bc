#include "ClsFunctions.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "Numeri.h"

namespace lottolab::stats {

namespace {

// A whole number as a 16-bit result, held at the limits.
int16_t Limitato16(double v) {
  if (std::isnan(v)) return 0;
  return static_cast<int16_t>(
      std::clamp(v, double{std::numeric_limits<int16_t>::min()}, double{std::numeric_limits<int16_t>::max()}));
}

}  // namespace

int16_t ClsFunctions::Fuori90(double n) {
  double v = std::nearbyint(n);
  if (v == 0) v = 90;
  // Taking 90 off while above 90 ends on the remainder in 1..90; fmod is exact for any size.
  if (v > 90) v = std::fmod(v - 1, 90) + 1;
  return Limitato16(v);
}

int16_t ClsFunctions::Diametrale(double n) { return Fuori90(n + 45); }

int16_t ClsFunctions::Simmetrico(double n) { return n > 0 ? Limitato16(std::nearbyint(91 - n)) : int16_t{-1}; }

int16_t ClsFunctions::Differenza_ab(double a, double b) {
  const double d = std::fabs(std::nearbyint(a) - std::nearbyint(b));
  return d == 0 ? int16_t{90} : Limitato16(d);
}

int16_t ClsFunctions::DiffCiclometrica(double a, double b) { return DistanzaX(a, b, 90); }

int16_t ClsFunctions::Cadenza(std::string_view testo) {
  const auto fine = testo.find_last_not_of(' ');
  if (fine == std::string_view::npos) return 0;
  const char ultimo = testo[fine];
  return static_cast<int16_t>(ultimo >= '0' && ultimo <= '9' ? ultimo - '0' : 0);
}

int16_t ClsFunctions::Cadenza(double n) { return stats::Cadenza(n); }

int16_t ClsFunctions::FuoriX(double n, int16_t base) { return stats::FuoriX(n, base); }

int16_t ClsFunctions::DiametraleD(double n) { return stats::DiametraleD(n); }

int16_t ClsFunctions::Figura(double n) { return stats::Figura(n); }

int16_t ClsFunctions::Decina(double n) { return stats::Decina(n); }

int16_t ClsFunctions::DecinaNaturale(double n) { return stats::DecinaNaturale(n); }

int16_t ClsFunctions::DecinaCabalistica(double n) { return stats::DecinaCabalistica(n); }

int16_t ClsFunctions::ControFigura(double n) { return stats::ControFigura(n); }

int16_t ClsFunctions::Radicale(double n) { return stats::Radicale(n); }

int16_t ClsFunctions::vert(double n) { return stats::vert(n); }

int16_t ClsFunctions::Gemello(double n) { return stats::Gemello(n); }

int16_t ClsFunctions::Distanza(double a, double b) { return stats::Distanza(a, b); }

}  // namespace lottolab::stats
