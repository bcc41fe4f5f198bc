#pragma once

// A results file read into the archive of a game besides the Lotto, as `lottolab --gioco X importa`
// reads it: the SuperEnalotto before 2009 and the evening 10eLotto are derived from the configured
// Lotto archive, and what the file leaves in doubt (an evening that differs from the Lotto draw, a
// five-minute contest left out) comes back as warnings rather than stopping the import. Blocks for
// as long as the reading and the writing take: the windows run it off their thread.

#include <filesystem>
#include <string>
#include <vector>

#include "app/Configurazione.h"
#include "archive/Esito.h"

namespace lottolab::gui {

// What an import did: the draws added, or why none could be; and what the user should know either way.
struct EsitoImportazione {
  Esito<int> aggiunte = 0;
  std::vector<std::string> avvisi;
};

// Merges the draws of `file` (text, or a zip holding it) into the configured archive of `gioco`,
// which is written all at once or left as it was.
EsitoImportazione ImportaRisultatiGioco(const app::Configurazione& configurazione, Gioco gioco,
                                        const std::filesystem::path& file);

// "SuperEnalotto: aggiunte 5 estrazioni.", or why none were, after `nome`.
std::string RigaImportazione(const std::string& nome, const Esito<int>& aggiunte);

// `testo` followed by what the user should check; a long list is cut short, so that it does not
// hide the lines above it.
std::string ConAvvisi(std::string testo, const std::vector<std::string>& avvisi);

}  // namespace lottolab::gui
