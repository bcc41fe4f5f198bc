#pragma once

// The settings the desktop edits, as they stand in section GENERALE of the configuration file, and
// the one way to change them: write the file first, then let the running program follow, so that
// what the user sees is always what the next start will read.

#include <string>

#include "app/FileIni.h"
#include "gui/principale/ContestoGui.h"

namespace lottolab::gui {

struct ImpostazioniGenerali {
  std::string archivio;               // key sFileBd, as written: relative paths are from the base folder
  std::string cartella_script;        // key sCartellaScript
  std::string colore_sfondo_html;     // key sColoreSfondoHtml, "#RRGGBB"
  bool mantieni_pagina_html = false;  // key bMantieniPaginaHtml, 0/1
};

ImpostazioniGenerali LeggiImpostazioni(const app::FileIni& ini);
void ScriviImpostazioni(app::FileIni& ini, const ImpostazioniGenerali& impostazioni);

// The scripts folder of the configuration, resolved from the base folder.
std::filesystem::path CartellaScript(const app::Configurazione& configurazione);

// Saves `ini` as the configuration file of the context's base folder and, once it is on disk, makes
// it the context's configuration. On a failed save the context keeps its configuration.
Esito<Fatto> SalvaConfigurazione(ContestoGui& contesto, app::FileIni ini);

}  // namespace lottolab::gui
