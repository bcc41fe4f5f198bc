#pragma once

// The library's public names, by the word they start with: the names users' scripts may call. The
// library binds a name only when it does what the name promises, so this list is also the measure
// of what is still missing (`lottolab funzioni`). The constants (BA_, TU_, Rosso_, ...) are not here.

#include <span>
#include <string_view>

namespace lottolab::script {

struct FamigliaDiNomi {
  std::string_view famiglia;  // the leading word ("Estratto", "Get"), or "Altre"
  std::span<const std::string_view> nomi;
};

std::span<const FamigliaDiNomi> NomiPubblici();

}  // namespace lottolab::script
