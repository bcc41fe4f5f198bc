#pragma once

// What the archive updates ask the user and tell them: the source, a results file, the outcome. The
// updates go through this interface, so that their flow runs in tests without a window.

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "app/Segnalatore.h"

namespace lottolab::gui {

class DialoghiArchivio : public app::Segnalatore {
 public:
  // The position in `scelte` of the answer the user gives; nothing when the user cancels.
  virtual std::optional<size_t> Scegli(const std::string& titolo, const std::string& domanda,
                                       const std::vector<std::string>& scelte) = 0;
  // The file the user picks, starting in `cartella`, among those `filtro` shows (Qt's filter
  // syntax); nothing when the user cancels.
  virtual std::optional<std::filesystem::path> ScegliFile(const std::string& titolo,
                                                          const std::filesystem::path& cartella,
                                                          const std::string& filtro) = 0;
  // Tells what a finished task did.
  virtual void Informa(const std::string& titolo, const std::string& testo) = 0;
};

}  // namespace lottolab::gui
