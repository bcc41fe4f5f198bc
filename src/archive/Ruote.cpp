#include "Ruote.h"

#include <cctype>

namespace lottolab {

namespace {

constexpr std::array<std::string_view, 13> kSigle = {"  ", "BA", "CA", "FI", "GE", "MI", "NA",
                                                     "PA", "RO", "TO", "VE", "NZ", "TT"};
constexpr std::array<std::string_view, 12> kNomi = {"",       "Bari",    "Cagliari", "Firenze",
                                                    "Genova", "Milano",  "Napoli",   "Palermo",
                                                    "Roma",   "Torino",  "Venezia",  "Nazionale"};

bool UgualiSenzaMaiuscole(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    if (std::toupper(static_cast<unsigned char>(a[i])) != std::toupper(static_cast<unsigned char>(b[i])))
      return false;
  }
  return true;
}

}  // namespace

std::string_view SiglaRuota(int r) {
  return r >= 1 && r <= kTutteLeRuote ? kSigle[r] : kSigle[0];
}

std::string_view NomeRuota(int r) {
  return r >= 1 && r <= kNumeroRuote ? kNomi[r] : kNomi[0];
}

std::optional<int> RuotaDaSigla(std::string_view sigla) {
  for (int r = 1; r <= kTutteLeRuote; ++r) {
    if (UgualiSenzaMaiuscole(sigla, kSigle[r])) return r;
  }
  if (UgualiSenzaMaiuscole(sigla, "RM")) return RO;
  if (UgualiSenzaMaiuscole(sigla, "RN")) return NZ;
  return std::nullopt;
}

}  // namespace lottolab
