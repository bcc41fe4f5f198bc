#include "gui/principale/ContestoGui.h"

#include "archive/ClsEstrazioni.h"

namespace lottolab::gui {

ContestoGui::ContestoGui(app::Configurazione configurazione, QObject* parent)
    : QObject(parent),
      m_configurazione(std::move(configurazione)),
      m_archivio(std::make_shared<const TabellaEstrazioni>()) {}

void ContestoGui::ImpostaConfigurazione(app::Configurazione configurazione) {
  m_configurazione = std::move(configurazione);
}

Esito<Fatto> ContestoGui::RicaricaArchivio() {
  auto caricate = ClsEstrazioni(m_configurazione.ArchivioLotto()).CaricaEControlla();
  if (!caricate) {
    m_archivio = std::make_shared<const TabellaEstrazioni>();
    m_rapporto = RapportoArchivio{};
    // A missing file is a new installation's empty archive, not a failure to show.
    std::error_code ec;
    const bool esiste = std::filesystem::exists(m_configurazione.ArchivioLotto(), ec) || ec;
    m_errore_caricamento = esiste ? caricate.Errore().testo : std::string();
    emit ArchivioCambiato();
    return caricate.Errore();
  }
  m_archivio = std::make_shared<const TabellaEstrazioni>(std::move(caricate->tabella));
  m_rapporto = std::move(caricate->rapporto);
  m_errore_caricamento.clear();
  emit ArchivioCambiato();
  return Fatto{};
}

}  // namespace lottolab::gui
