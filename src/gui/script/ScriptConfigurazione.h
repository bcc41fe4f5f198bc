#pragma once

// What a run from the script window takes from the configuration: the folders of the base folder
// and the settings of the HTML page.

#include "app/Configurazione.h"
#include "script/ClsFunctionsGeodoScript.h"

namespace lottolab::gui {

// The library's folders under the base folder (pages in scriptOutput/), the files no script may
// change (the archives, lottolab.ini) and the page's background from sColoreSfondoHtml when set.
// The archive and the mode are left to the run.
script::ImpostazioniLibreria ImpostazioniLibreriaDa(const app::Configurazione& configurazione);

// Key bMantieniPaginaHtml: the page of the previous run stays in view while the next one runs.
bool MantieniPaginaHtml(const app::Configurazione& configurazione);

}  // namespace lottolab::gui
