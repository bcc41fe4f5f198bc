#include "gui/archivio/ImportazioneGioco.h"

#include <fmt/format.h>

#include <algorithm>

#include "app/ErroreInatteso.h"
#include "archive/ArchivioGenerico.h"
#include "archive/ArchivioGioco.h"
#include "archive/ClsEstrazioni.h"
#include "archive/DieciELotto.h"
#include "archive/DieciELottoOgniCinqueMinuti.h"
#include "archive/ImportaRisultati.h"
#include "archive/SuperEnalotto.h"
#include "archive/WinForLife.h"

namespace lottolab::gui {

namespace fs = std::filesystem;

namespace {

constexpr size_t kAvvisiMostrati = 8;

// The Lotto archive that the SuperEnalotto before 2009 and the evening 10eLotto are derived from;
// an empty table, with a warning, when there is none to read.
TabellaEstrazioni ArchivioDelLotto(const fs::path& file, std::vector<std::string>& avvisi) {
  std::error_code ec;
  if (!fs::exists(file, ec)) {
    avvisi.push_back(
        fmt::format("L'archivio del Lotto {} non c'è: le estrazioni che ne derivano non sono state ricavate.",
                    app::PercorsoPerMessaggio(file.string())));
    return {};
  }
  auto tabella = ClsEstrazioni(file).CaricaEstrazioni();
  if (!tabella) {
    avvisi.push_back(tabella.Errore().testo);
    return {};
  }
  return std::move(tabella).Valore();
}

// A text for the generic archive, or another generic archive's file. A text that does not say its
// K and M is read in those of the archive it goes into.
Esito<TabellaGioco> LeggiEstrazioniGeneriche(const fs::path& archivio, const fs::path& file, std::string_view testo) {
  if (IsArchivioGenerico(testo)) return CaricaArchivioGenerico(file);
  MisureGeneriche misure;
  std::error_code ec;
  if (!MisureDichiarate(testo) && fs::exists(archivio, ec))
    if (auto esistente = CaricaArchivioGenerico(archivio))
      misure = {esistente->formato().numeri, esistente->formato().massimo};
  return LeggiArchivioGenerico(testo, misure);
}

Esito<TabellaGioco> LeggiRisultati(const app::Configurazione& configurazione, Gioco gioco, const fs::path& file,
                                   std::vector<std::string>& avvisi) {
  auto letto = LeggiTestoRisultati(file);
  if (!letto) return letto.Errore();
  const std::string_view testo = *letto;
  switch (gioco) {
    case Gioco::SuperEnalotto: {
      auto risultati = LeggiRisultatiSuperEnalotto(testo);
      if (!risultati) return risultati.Errore();
      return ArchivioSuperEnalotto(ArchivioDelLotto(configurazione.ArchivioLotto(), avvisi), std::move(*risultati));
    }
    case Gioco::DieciELotto: {
      auto risultati = LeggiRisultatiDieciELotto(testo);
      if (!risultati) return risultati.Errore();
      auto costruito = ArchivioDieciELotto(ArchivioDelLotto(configurazione.ArchivioLotto(), avvisi), *risultati);
      avvisi.insert(avvisi.end(), costruito.differenze.begin(), costruito.differenze.end());
      return std::move(costruito.tabella);
    }
    case Gioco::DieciELottoOgniCinqueMinuti: {
      auto risultati = LeggiRisultatiCinqueMinuti(testo);
      if (!risultati) return risultati.Errore();
      avvisi.insert(avvisi.end(), risultati->segnalazioni.begin(), risultati->segnalazioni.end());
      return std::move(risultati->tabella);
    }
    case Gioco::WinForLife: return LeggiRisultatiWinForLife(testo);
    case Gioco::Generico: break;
  }
  return LeggiEstrazioniGeneriche(configurazione.ArchivioGioco(gioco), file, testo);
}

}  // namespace

EsitoImportazione ImportaRisultatiGioco(const app::Configurazione& configurazione, Gioco gioco, const fs::path& file) {
  EsitoImportazione esito;
  auto nuove = LeggiRisultati(configurazione, gioco, file, esito.avvisi);
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
