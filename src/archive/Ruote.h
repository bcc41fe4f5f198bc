#pragma once

// The eleven Lotto wheels in table order, with the index 12 that stands for all of them together.

#include <array>
#include <optional>
#include <string_view>

namespace lottolab {

inline constexpr int kNumeroRuote = 11;
inline constexpr int kNumeriPerRuota = 5;
inline constexpr int kTutteLeRuote = 12;
inline constexpr int kMassimoNumero = 90;

enum Ruota : int { BA = 1, CA, FI, GE, MI, NA, PA, RO, TO, VE, NZ };

// The two-letter code of wheel index r; "TT" for 12, two blanks for any other index.
std::string_view SiglaRuota(int r);

// The wheel's name ("Bari", ...); empty outside 1..11.
std::string_view NomeRuota(int r);

// The wheel index of a code, case-insensitive; "TT" gives 12. The operator's own files write Roma
// as "RM" and Nazionale as "RN": both are accepted too.
std::optional<int> RuotaDaSigla(std::string_view sigla);

}  // namespace lottolab
