#include "gui/script/ScriptConfigurazione.h"

#include "app/Percorsi.h"
#include "gui/principale/Impostazioni.h"

namespace lottolab::gui {

script::ImpostazioniLibreria ImpostazioniLibreriaDa(const app::Configurazione& configurazione) {
  script::ImpostazioniLibreria impostazioni;
  impostazioni.cartella_base = configurazione.base;
  impostazioni.cartella_dati_app = configurazione.base;
  impostazioni.cartella_output = configurazione.base / "scriptOutput";
  impostazioni.sola_lettura = {configurazione.ArchivioLotto(), configurazione.ArchivioModificabile(),
                               app::FileConfigurazione(configurazione.base)};
  impostazioni.archivi_giochi = configurazione.ArchiviGiochi();
  impostazioni.file_agenda = configurazione.FileAgenda();
  impostazioni.file_archivio = configurazione.ArchivioLotto();
  impostazioni.indirizzo_risultati = configurazione.IndirizzoRisultati();
  impostazioni.indirizzi_giochi = configurazione.IndirizziRisultatiGiochi();
  impostazioni.sola_lettura.insert(impostazioni.sola_lettura.end(), impostazioni.archivi_giochi.begin(),
                                   impostazioni.archivi_giochi.end());
  const std::string colore = LeggiImpostazioni(configurazione.ini).colore_sfondo_html;
  if (!colore.empty()) impostazioni.colore_sfondo_html = colore;
  return impostazioni;
}

bool MantieniPaginaHtml(const app::Configurazione& configurazione) {
  return LeggiImpostazioni(configurazione.ini).mantieni_pagina_html;
}

}  // namespace lottolab::gui
