#include "gui/archivio/AggiornamentoArchivio.h"

#include "archive/ClsEstrazioni.h"
#include "archive/ImportaRisultati.h"
#include "archive/ScaricaRisultati.h"

namespace lottolab::gui {

namespace fs = std::filesystem;

AggiornamentoArchivio::AggiornamentoArchivio(const app::Configurazione& configurazione)
    : m_archivio(configurazione.ArchivioLotto()),
      m_scaricato(configurazione.base / "risultati-scaricati.zip"),
      m_indirizzo(configurazione.IndirizzoRisultati()) {}

Esito<int> AggiornamentoArchivio::ImportaDaFile(const fs::path& file) const {
  std::error_code ec;
  // The first update of a new installation creates the archive's folder along with the archive.
  if (m_archivio.has_parent_path()) fs::create_directories(m_archivio.parent_path(), ec);
  ClsEstrazioni archivio(m_archivio);
  return ImportaRisultati(archivio, file);
}

Esito<int> AggiornamentoArchivio::Scarica() const {
  auto scaricato = ScaricaRisultati(m_indirizzo, m_scaricato);
  if (!scaricato) return scaricato.Errore();
  auto aggiunte = ImportaDaFile(*scaricato);
  std::error_code ec;
  fs::remove(*scaricato, ec);
  return aggiunte;
}

}  // namespace lottolab::gui
