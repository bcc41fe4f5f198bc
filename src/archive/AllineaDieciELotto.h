#pragma once

// The evening 10eLotto archive follows the Lotto archive it is derived from. Once the Lotto archive
// has grown, the evenings it now gives are derived again: those after the 10eLotto archive's last
// evening are added, and those that the archive held from the published results alone (only their
// Numero Oro) take their Extra, Doppio Oro and Gong from the Lotto draw. The evenings already held
// keep their contest numbers; none is ever dropped.

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "Esito.h"
#include "TabellaEstrazioni.h"

namespace lottolab {

struct DieciELottoAllineato {
  int aggiunte = 0;    // evenings the archive did not hold
  int completate = 0;  // evenings it held that the Lotto draw now gives otherwise
  // The evenings where the results held differ from what the Lotto archive gives, in the user's
  // words; the Lotto's are kept.
  std::vector<std::string> differenze;
};

// Derives the 10eLotto archive `file` again from `lotto` and the evenings it holds, under the
// writers' lock, and writes it all at once when something changed; nothing when there is no such
// file (no 10eLotto archive to keep up). A 10eLotto archive that does not load, or holding an
// evening within the Lotto archive's years that the Lotto archive lacks, is refused, the file left
// as it was.
Esito<std::optional<DieciELottoAllineato>> AllineaDieciELotto(const TabellaEstrazioni& lotto,
                                                              const std::filesystem::path& file);

}  // namespace lottolab
