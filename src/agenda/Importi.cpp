#include "Importi.h"

#include <fmt/format.h>

namespace lottolab::agenda {

namespace {

constexpr int64_t kMassimoEuro = 1'000'000;

}  // namespace

Esito<int64_t> LeggiImporto(std::string_view testo) {
  const auto rifiuto = AvvisoEsclamativo(
      fmt::format("importo non valido: {} (euro con al più due decimali, per esempio 1 o 0,50)", testo));
  const size_t separatore = testo.find_first_of(",.");
  const std::string_view interi = testo.substr(0, separatore);
  const std::string_view decimali = separatore == std::string_view::npos ? "" : testo.substr(separatore + 1);
  if (interi.empty() || interi.size() > 7 || decimali.size() > 2) return rifiuto;
  if (separatore != std::string_view::npos && decimali.empty()) return rifiuto;
  int64_t euro = 0, centesimi = 0;
  for (char c : interi) {
    if (c < '0' || c > '9') return rifiuto;
    euro = euro * 10 + (c - '0');
  }
  for (size_t i = 0; i < 2; ++i) {
    const char c = i < decimali.size() ? decimali[i] : '0';
    if (c < '0' || c > '9') return rifiuto;
    centesimi = centesimi * 10 + (c - '0');
  }
  if (euro > kMassimoEuro) return rifiuto;
  return euro * 100 + centesimi;
}

std::string FormattaImporto(int64_t centesimi) {
  const bool negativo = centesimi < 0;
  const uint64_t assoluto = negativo ? 0 - static_cast<uint64_t>(centesimi) : static_cast<uint64_t>(centesimi);
  return fmt::format("{}{},{:02}", negativo ? "-" : "", assoluto / 100, assoluto % 100);
}

}  // namespace lottolab::agenda
