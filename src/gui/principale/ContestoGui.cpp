#include "gui/principale/ContestoGui.h"

#include "app/ErroreInatteso.h"
#include "archive/ArchivioGioco.h"
#include "archive/ClsEstrazioni.h"

namespace lottolab::gui {

ContestoGui::ContestoGui(app::Configurazione configurazione, QObject* parent)
    : QObject(parent),
      m_configurazione(std::move(configurazione)),
      m_archivio(std::make_shared<const TabellaEstrazioni>()) {
  for (size_t i = 0; i < kGiochi; ++i)
    m_giochi[i].tabella = std::make_shared<const TabellaGioco>(Formato(static_cast<Gioco>(i)));
}

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

std::shared_ptr<const TabellaGioco> ContestoGui::ArchivioGioco(Gioco gioco) const {
  return m_giochi[static_cast<size_t>(gioco)].tabella;
}

const std::string& ContestoGui::ErroreGioco(Gioco gioco) const { return m_giochi[static_cast<size_t>(gioco)].errore; }

void ContestoGui::RicaricaArchiviGiochi() {
  for (Gioco gioco : kGiochiDesktop) {
    const FormatoGioco& formato = Formato(gioco);
    ArchivioCaricato& caricato = m_giochi[static_cast<size_t>(gioco)];
    // A path the system refuses to even look at is one more archive that cannot be read: the
    // desktop opens all the same, and the game's window says why it is empty.
    try {
      auto tabella = CaricaArchivioGioco(formato, m_configurazione.ArchivioGioco(gioco));
      if (tabella) {
        caricato = {std::make_shared<const TabellaGioco>(std::move(tabella).Valore()), {}};
        continue;
      }
      caricato.errore = tabella.Errore().testo;
    } catch (...) {
      caricato.errore = app::DescriviEccezioneCorrente();
    }
    caricato.tabella = std::make_shared<const TabellaGioco>(formato);
  }
  emit ArchiviGiochiCambiati();
}

}  // namespace lottolab::gui
