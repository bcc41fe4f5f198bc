#include "ContestoGui.h"

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
  auto tabella = ClsEstrazioni(m_configurazione.ArchivioLotto()).CaricaEstrazioni();
  if (!tabella) return tabella.Errore();
  m_archivio = std::make_shared<const TabellaEstrazioni>(std::move(tabella).Valore());
  emit ArchivioCambiato();
  return Fatto{};
}

}  // namespace lottolab::gui
