#include "Denaro.h"

#include <cassert>
#include <cstdlib>
#include <fmt/format.h>

namespace lottolab::stats {

namespace {

// Above the largest jackpot ever paid, far below where sums of cents could overflow.
constexpr Centesimi kMassimoLeggibile = 1'000'000'000 * kCentesimiPerEuro;

}  // namespace

Centesimi ArrotondaMetaInSu(int64_t numeratore, int64_t denominatore) {
  assert(numeratore >= 0 && denominatore > 0);
  return (2 * numeratore + denominatore) / (2 * denominatore);
}

Centesimi Percentuale(Centesimi importo, int centesimi_di_punto) {
  return ArrotondaMetaInSu(importo * centesimi_di_punto, 10'000);
}

std::string FormattaEuro(Centesimi importo) {
  const Centesimi assoluto = importo < 0 ? -importo : importo;
  const std::string cifre = std::to_string(assoluto / kCentesimiPerEuro);
  std::string interi;
  for (size_t i = 0; i < cifre.size(); ++i) {
    if (i > 0 && (cifre.size() - i) % 3 == 0) interi += '.';
    interi += cifre[i];
  }
  return fmt::format("{}{},{:02}", importo < 0 ? "-" : "", interi, assoluto % kCentesimiPerEuro);
}

Esito<Centesimi> LeggiEuro(std::string_view testo) {
  auto rifiuta = [&] {
    return AvvisoEsclamativo(
        fmt::format("importo non valido: {} (euro con al più due decimali, per esempio 1 o 0,50)", testo));
  };
  Centesimi euro = 0;
  Centesimi centesimi = 0;
  size_t i = 0;
  for (; i < testo.size() && testo[i] >= '0' && testo[i] <= '9'; ++i) {
    euro = euro * 10 + (testo[i] - '0');
    if (euro * kCentesimiPerEuro > kMassimoLeggibile) return rifiuta();
  }
  if (i == 0) return rifiuta();
  if (i < testo.size()) {
    if (testo[i] != ',' && testo[i] != '.') return rifiuta();
    const std::string_view decimali = testo.substr(i + 1);
    if (decimali.empty() || decimali.size() > 2) return rifiuta();
    for (char c : decimali) {
      if (c < '0' || c > '9') return rifiuta();
      centesimi = centesimi * 10 + (c - '0');
    }
    if (decimali.size() == 1) centesimi *= 10;
  }
  const Centesimi importo = euro * kCentesimiPerEuro + centesimi;
  if (importo > kMassimoLeggibile) return rifiuta();
  return importo;
}

}  // namespace lottolab::stats
