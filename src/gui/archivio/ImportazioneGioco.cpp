#include "gui/archivio/ImportazioneGioco.h"

#include <fmt/format.h>

#include <algorithm>

#include "app/ErroreInatteso.h"
#include "archive/ArchivioGioco.h"
#include "archive/RisultatiGioco.h"

namespace lottolab::gui {

namespace fs = std::filesystem;

namespace {

constexpr size_t kAvvisiMostrati = 8;

}  // namespace

EsitoImportazione ImportaRisultatiGioco(const app::Configurazione& configurazione, Gioco gioco, const fs::path& file) {
  EsitoImportazione esito;
  auto nuove = LeggiRisultatiGioco(gioco, file, configurazione.ArchivioGioco(gioco), configurazione.ArchivioLotto(),
                                   esito.avvisi);
  if (!nuove) {
    esito.aggiunte = nuove.Errore();
    return esito;
  }
  const fs::path archivio = configurazione.ArchivioGioco(gioco);
  std::error_code ec;
  // The first import of a new installation creates the archive's folder along with the archive.
  if (archivio.has_parent_path()) fs::create_directories(archivio.parent_path(), ec);
  esito.aggiunte = ImportaEstrazioniGioco(nuove->formato(), archivio, nuove->Tutte());
  return esito;
}

std::string RigaImportazione(const std::string& nome, const Esito<int>& aggiunte) {
  if (!aggiunte) return fmt::format("{}: non aggiornato. {}", nome, aggiunte.Errore().testo);
  if (*aggiunte == 0) return fmt::format("{}: già aggiornato, nessuna nuova estrazione.", nome);
  if (*aggiunte == 1) return fmt::format("{}: aggiunta 1 estrazione.", nome);
  return fmt::format("{}: aggiunte {} estrazioni.", nome, *aggiunte);
}

std::string ConAvvisi(std::string testo, const std::vector<std::string>& avvisi) {
  if (avvisi.empty()) return testo;
  testo += "\n\nDa controllare:";
  for (size_t i = 0; i < std::min(avvisi.size(), kAvvisiMostrati); ++i) testo += "\n- " + avvisi[i];
  if (avvisi.size() > kAvvisiMostrati) testo += fmt::format("\n- e altri {} avvisi.", avvisi.size() - kAvvisiMostrati);
  return testo;
}

}  // namespace lottolab::gui
