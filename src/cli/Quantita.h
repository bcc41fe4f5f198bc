#pragma once

// Counts in the command line's reports, in the singular when there is one: "importata 1
// estrazione", "importate 3 estrazioni".

#include <fmt/format.h>

#include <string>
#include <string_view>

namespace lottolab::cli {

inline std::string Quantita(long long quanti, std::string_view uno, std::string_view molti) {
  return fmt::format("{} {}", quanti, quanti == 1 ? uno : molti);
}

// A participle and its count: "importata 1 estrazione".
inline std::string Fatte(long long quanti, std::string_view participio_uno, std::string_view participio_molti,
                         std::string_view uno, std::string_view molti) {
  return fmt::format("{} {}", quanti == 1 ? participio_uno : participio_molti, Quantita(quanti, uno, molti));
}

}  // namespace lottolab::cli
