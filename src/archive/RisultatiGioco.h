#pragma once

// The draws of a results file for one of the other games, read as an import takes them, whoever
// imports: the command line, the desktop, an update.

#include <filesystem>
#include <string>
#include <vector>

#include "Esito.h"
#include "Giochi.h"
#include "TabellaGioco.h"

namespace lottolab {

// The draws of `file` (a text, or a zip holding one) for the game, ready to merge into its archive
// `archivio`. The SuperEnalotto before 2009 and the evening 10eLotto are derived from the Lotto
// archive `lotto`; a text for the generic archive that does not say its K and M is read in those of
// `archivio`, and another generic archive's file is taken whole. What the file leaves in doubt (an
// evening given otherwise than the Lotto gives it, a contest missing from a day, no Lotto archive to
// derive from) is added to `avvisi` in the user's words.
Esito<TabellaGioco> LeggiRisultatiGioco(Gioco gioco, const std::filesystem::path& file,
                                        const std::filesystem::path& archivio, const std::filesystem::path& lotto,
                                        std::vector<std::string>& avvisi);

}  // namespace lottolab
