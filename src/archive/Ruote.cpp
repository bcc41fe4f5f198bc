#include "Ruote.h"

#include "text/AsciiCase.h"

namespace lottolab {

namespace {

constexpr std::array<std::string_view, 13> kSigle = {"  ", "BA", "CA", "FI", "GE", "MI", "NA",
                                                     "PA", "RO", "TO", "VE", "NZ", "TT"};
constexpr std::array<std::string_view, 12> kNomi = {"",       "Bari",    "Cagliari", "Firenze", "Genova",  "Milano",
                                                    "Napoli", "Palermo", "Roma",     "Torino",  "Venezia", "Nazionale"};

}  // namespace

std::string_view SiglaRuota(int r) { return r >= 1 && r <= kTutteLeRuote ? kSigle[r] : kSigle[0]; }

std::string_view NomeRuota(int r) { return r >= 1 && r <= kNumeroRuote ? kNomi[r] : kNomi[0]; }

std::optional<int> RuotaDaSigla(std::string_view sigla) {
  for (int r = 1; r <= kTutteLeRuote; ++r) {
    if (text::EqualsIgnoringAsciiCase(sigla, kSigle[r])) return r;
  }
  if (text::EqualsIgnoringAsciiCase(sigla, "RM")) return RO;
  if (text::EqualsIgnoringAsciiCase(sigla, "RN")) return NZ;
  return std::nullopt;
}

}  // namespace lottolab
