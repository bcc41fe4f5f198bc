#pragma once

// A saved forecast against the draws that followed it: won (the first winning draw, its best sorte
// and wheels), still open, lost once its colpi ran out, or made at a draw the archive no longer
// holds. Computed when asked, never stored, so a grown or rebuilt archive is always the one judged.

#include "ArchivioPrevisioni.h"
#include "archive/TabellaEstrazioni.h"
#include "stats/EsitoPrevisione.h"

namespace lottolab::previsioni {

enum class StatoPrevisione { Vinta, InCorso, Negativa, FuoriArchivio };

struct VerificaPrevisione {
  StatoPrevisione stato = StatoPrevisione::InCorso;
  stats::EsitoPrevisione esito;
};

// Checks `previsione` (as ControllaPrevisione accepts it) on `archivio`, closing at the first win of
// any sorte.
VerificaPrevisione Verifica(const TabellaEstrazioni& archivio, const Previsione& previsione);

}  // namespace lottolab::previsioni
