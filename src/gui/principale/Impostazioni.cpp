#include "gui/principale/Impostazioni.h"

#include "app/Percorsi.h"

namespace lottolab::gui {

namespace {

constexpr std::string_view kChiaveArchivio = "sFileBd";
constexpr std::string_view kChiaveCartellaScript = "sCartellaScript";
constexpr std::string_view kChiaveColoreSfondoHtml = "sColoreSfondoHtml";
constexpr std::string_view kChiaveMantieniPaginaHtml = "bMantieniPaginaHtml";

}  // namespace

ImpostazioniGenerali LeggiImpostazioni(const app::FileIni& ini) {
  ImpostazioniGenerali impostazioni;
  impostazioni.archivio = ini.Leggi(app::kSezioneGenerale, kChiaveArchivio, "BaseDati.dat");
  impostazioni.cartella_script = ini.Leggi(app::kSezioneGenerale, kChiaveCartellaScript, "Script");
  impostazioni.colore_sfondo_html = ini.Leggi(app::kSezioneGenerale, kChiaveColoreSfondoHtml, "#FFFFFF");
  impostazioni.mantieni_pagina_html = ini.Leggi(app::kSezioneGenerale, kChiaveMantieniPaginaHtml, "0") == "1";
  return impostazioni;
}

void ScriviImpostazioni(app::FileIni& ini, const ImpostazioniGenerali& impostazioni) {
  ini.Scrivi(app::kSezioneGenerale, kChiaveArchivio, impostazioni.archivio);
  ini.Scrivi(app::kSezioneGenerale, kChiaveCartellaScript, impostazioni.cartella_script);
  ini.Scrivi(app::kSezioneGenerale, kChiaveColoreSfondoHtml, impostazioni.colore_sfondo_html);
  ini.Scrivi(app::kSezioneGenerale, kChiaveMantieniPaginaHtml, impostazioni.mantieni_pagina_html ? "1" : "0");
}

std::filesystem::path CartellaScript(const app::Configurazione& configurazione) {
  return app::RisolviPercorso(configurazione.base, LeggiImpostazioni(configurazione.ini).cartella_script);
}

Esito<Fatto> SalvaConfigurazione(ContestoGui& contesto, app::FileIni ini) {
  app::Configurazione configurazione{contesto.Configurazione().base, std::move(ini)};
  auto salvato = configurazione.ini.Salva(app::FileConfigurazione(configurazione.base));
  if (!salvato) return salvato.Errore();
  contesto.ImpostaConfigurazione(std::move(configurazione));
  return Fatto{};
}

}  // namespace lottolab::gui
