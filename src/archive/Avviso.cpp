#include "Avviso.h"

#include <fmt/format.h>

namespace lottolab {

Avviso AvvisoCritico(std::string procedura, int numero, std::string descrizione) {
  return Avviso{TipoAvviso::Critico, std::move(procedura), fmt::format("{}- {}", numero, descrizione)};
}

}  // namespace lottolab
