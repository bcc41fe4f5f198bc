#pragma once

// The scripts opened last, kept in the configuration file (section SCRIPT_RECENTI, keys
// File1..File8, most recent first) so that the list survives a restart.

#include <string>
#include <vector>

#include "app/FileIni.h"

namespace lottolab::gui {

inline constexpr int kMassimoScriptRecenti = 8;

std::vector<std::string> LeggiScriptRecenti(const app::FileIni& ini);

// Puts `file` first; an earlier entry for the same file moves up rather than repeating, and the
// oldest entry drops off past kMassimoScriptRecenti.
void AggiungiScriptRecente(app::FileIni& ini, const std::string& file);

}  // namespace lottolab::gui
