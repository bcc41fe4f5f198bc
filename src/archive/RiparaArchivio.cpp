#include "RiparaArchivio.h"

#include <fmt/format.h>

#include <ctime>
#include <system_error>

#include "FileSicuri.h"
#include "ScritturaArchivio.h"

namespace lottolab {

namespace fs = std::filesystem;

namespace {

// "<archivio>.bak-AAAAMMGGhhmmss", with a further number when a copy of the same second exists.
fs::path NomeCopia(const fs::path& archivio) {
  const std::time_t adesso = std::time(nullptr);
  std::tm locale{};
  localtime_r(&adesso, &locale);
  char data[16];
  std::strftime(data, sizeof data, "%Y%m%d%H%M%S", &locale);
  fs::path copia = archivio;
  copia += std::string(".bak-") + data;
  std::error_code ec;
  for (int n = 2; fs::exists(copia, ec); ++n) {
    copia = archivio;
    copia += fmt::format(".bak-{}-{}", data, n);
  }
  return copia;
}

}  // namespace

Esito<Riparazione> RiparaArchivio(const fs::path& archivio) {
  if (auto regolare = ControllaFileRegolare(archivio); !regolare) return regolare.Errore();
  auto blocco = BloccoScrittura::Acquisisci(archivio);
  if (!blocco) return blocco.Errore();
  auto letto = LeggiArchivio(archivio);
  if (!letto) return letto.Errore();
  if (!letto->esiste)
    return AvvisoEsclamativo(fmt::format("L'archivio {} non esiste: non c'è nulla da riparare.", archivio.string()));
  const RapportoArchivio& rapporto = letto->rapporto;
  Riparazione riparazione;
  riparazione.estrazioni = rapporto.record_interi;
  if (rapporto.LunghezzaIntera()) return riparazione;
  if (rapporto.NonEUnArchivio()) return rapporto.Rifiuto();

  riparazione.copia = NomeCopia(archivio);
  if (auto copiato = SostituisciFile(riparazione.copia, letto->contenuto); !copiato) return copiato.Errore();
  const std::string_view intero(letto->contenuto.data(),
                                static_cast<size_t>(rapporto.record_interi) * kByteRecordArchivio);
  if (auto tagliato = SostituisciFile(archivio, intero); !tagliato) return tagliato.Errore();
  riparazione.eseguita = true;
  riparazione.byte_tolti = rapporto.byte_sparsi;
  return riparazione;
}

std::string DescriviRiparazione(const fs::path& archivio, const Riparazione& riparazione) {
  if (!riparazione.eseguita) {
    return fmt::format("L'archivio {} è già fatto di estrazioni intere ({}): nessuna riparazione necessaria.",
                       archivio.string(), riparazione.estrazioni);
  }
  return fmt::format(
      "Archivio {} riparato: tolti {} byte dopo l'ultima estrazione intera, ora contiene {} estrazioni. "
      "Il file com'era è stato copiato in {}.",
      archivio.string(), riparazione.byte_tolti, riparazione.estrazioni, riparazione.copia.string());
}

}  // namespace lottolab
