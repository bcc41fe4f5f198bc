#include "ComandiFuzz.h"

#include <cstdlib>
#include <sstream>

#include "TestoFuzz.h"
#include "app/ErroreInatteso.h"
#include "cli/Comandi.h"

namespace lottolab::fuzz {

int EseguiComando(const std::vector<std::string>& parole) {
  static const bool base_pronta = [] {
    LavoraInCartellaTemporanea();
    return setenv("LOTTOLAB_HOME", ".", 1) == 0;
  }();
  if (!base_pronta) std::abort();
  std::ostringstream out;
  std::ostringstream err;
  int uscita = cli::EseguiLottolab(parole, out, err);
  if (err.str().find(app::kErroreInatteso) != std::string::npos) std::abort();
  return uscita;
}

}  // namespace lottolab::fuzz
