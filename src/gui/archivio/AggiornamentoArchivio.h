#pragma once

// The update of the archive file behind the desktop's "Aggiorna archivio": from the operator's
// published results or from a results file the user already has. Both block for as long as the
// download or the import takes, so the window runs them on another thread; they touch only files,
// never the table the windows show, which is reloaded afterwards.

#include <filesystem>
#include <string>

#include "app/Configurazione.h"
#include "archive/Esito.h"

namespace lottolab::gui {

class AggiornamentoArchivio {
 public:
  explicit AggiornamentoArchivio(const app::Configurazione& configurazione);

  // Appends the draws of `file` (text, or a zip holding it) that the archive lacks; how many.
  Esito<int> ImportaDaFile(const std::filesystem::path& file) const;

  // Downloads the results from the configured address and imports them; how many were added.
  Esito<int> Scarica() const;

 private:
  std::filesystem::path m_archivio;
  std::filesystem::path m_scaricato;
  std::string m_indirizzo;
};

}  // namespace lottolab::gui
