#include "RisultatiGioco.h"

#include <fmt/format.h>

#include "ArchivioGenerico.h"
#include "ArchivioGioco.h"
#include "ClsEstrazioni.h"
#include "DieciELotto.h"
#include "DieciELottoOgniCinqueMinuti.h"
#include "ImportaRisultati.h"
#include "SuperEnalotto.h"
#include "WinForLife.h"

namespace lottolab {

namespace fs = std::filesystem;

namespace {

// An empty table, with a warning, when there is no Lotto archive to read.
TabellaEstrazioni ArchivioDelLotto(const fs::path& file, std::vector<std::string>& avvisi) {
  std::error_code ec;
  if (!fs::exists(file, ec)) {
    avvisi.push_back(fmt::format(
        "L'archivio del Lotto {} non c'è: le estrazioni che ne derivano non sono state ricavate", file.string()));
    return {};
  }
  auto tabella = ClsEstrazioni(file).CaricaEstrazioni();
  if (!tabella) {
    avvisi.push_back(tabella.Errore().testo);
    return {};
  }
  return std::move(tabella).Valore();
}

Esito<TabellaGioco> LeggiEstrazioniGeneriche(const fs::path& archivio, const fs::path& file, std::string_view testo) {
  if (IsArchivioGenerico(testo)) return CaricaArchivioGenerico(file);
  MisureGeneriche misure;
  std::error_code ec;
  if (!MisureDichiarate(testo) && fs::exists(archivio, ec))
    if (auto esistente = CaricaArchivioGenerico(archivio))
      misure = {esistente->formato().numeri, esistente->formato().massimo};
  return LeggiArchivioGenerico(testo, misure);
}

}  // namespace

Esito<TabellaGioco> LeggiRisultatiGioco(Gioco gioco, const fs::path& file, const fs::path& archivio,
                                        const fs::path& lotto, std::vector<std::string>& avvisi) {
  auto letto = LeggiTestoRisultati(file);
  if (!letto) return letto.Errore();
  const std::string_view testo = *letto;
  switch (gioco) {
    case Gioco::SuperEnalotto: {
      auto risultati = LeggiRisultatiSuperEnalotto(testo);
      if (!risultati) return risultati.Errore();
      return ArchivioSuperEnalotto(ArchivioDelLotto(lotto, avvisi), std::move(*risultati));
    }
    case Gioco::DieciELotto: {
      auto risultati = LeggiRisultatiDieciELotto(testo);
      if (!risultati) return risultati.Errore();
      auto costruito = ArchivioDieciELotto(ArchivioDelLotto(lotto, avvisi), *risultati);
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
  return LeggiEstrazioniGeneriche(archivio, file, testo);
}

}  // namespace lottolab
