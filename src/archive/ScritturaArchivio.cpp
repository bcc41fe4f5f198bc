#include "ScritturaArchivio.h"

#include <fmt/format.h>
#include <unistd.h>

#include "ClsEstrazioni.h"

namespace lottolab {

namespace fs = std::filesystem;

namespace {

// The table and the check of an archive's bytes.
ArchivioLetto Decodifica(const fs::path& file, std::string contenuto) {
  ArchivioLetto archivio;
  archivio.esiste = true;
  archivio.contenuto = std::move(contenuto);
  const auto* byte = reinterpret_cast<const unsigned char*>(archivio.contenuto.data());
  const size_t lunghezza = archivio.contenuto.size();
  const int conteggio = ContaRecordArchivio(lunghezza);
  std::vector<Estrazione> estrazioni(static_cast<size_t>(conteggio));
  for (int k = 0; k < conteggio; ++k) {
    const size_t inizio = static_cast<size_t>(k) * kByteRecordArchivio;
    estrazioni[static_cast<size_t>(k)] = DecodificaRecord(byte + inizio, lunghezza - inizio);
  }
  archivio.tabella = TabellaEstrazioni(std::move(estrazioni));
  archivio.rapporto = ControllaArchivio(archivio.tabella, file, lunghezza);
  return archivio;
}

}  // namespace

Esito<ArchivioLetto> LeggiArchivio(const fs::path& file) {
  auto letto = LeggiFileRegolare(file, kLimiteArchivio);
  if (!letto) return letto.Errore();
  if (!letto->has_value()) {
    ArchivioLetto vuoto;
    vuoto.rapporto.file = file;
    return vuoto;
  }
  return Decodifica(file, std::move(**letto));
}

Esito<ScritturaArchivio> ScritturaArchivio::Apri(const fs::path& file) {
  // Checked before the lock, so that no lock file is left beside a folder or in /dev.
  if (auto regolare = ControllaFileRegolare(file); !regolare) return regolare.Errore();
  auto blocco = BloccoScrittura::Acquisisci(file);
  if (!blocco) return blocco.Errore();
  auto letto = LeggiArchivio(file);
  if (!letto) return letto.Errore();
  const RapportoArchivio& rapporto = letto->rapporto;
  if (letto->esiste && ::access(file.c_str(), W_OK) != 0) {
    return AvvisoEsclamativo(fmt::format("L'archivio {} è di sola lettura: non vi si può scrivere.", file.string()));
  }
  if (!rapporto.LunghezzaIntera()) {
    return AvvisoEsclamativo(fmt::format(
        "L'archivio {} ha {} byte oltre l'ultima estrazione intera (la sua lunghezza non è un multiplo di 67): "
        "non vi si aggiunge nulla, perché ogni estrazione aggiunta sarebbe letta spostata. Per ripararlo: "
        "lottolab ripara, che ne fa prima una copia e poi toglie l'estrazione incompleta.",
        file.string(), rapporto.byte_sparsi));
  }
  if (rapporto.NonEUnArchivio()) return rapporto.Rifiuto();
  return ScritturaArchivio(file, std::move(blocco).Valore(), std::move(letto).Valore());
}

Esito<Fatto> ScritturaArchivio::Accoda(const std::vector<Estrazione>& estrazioni) {
  std::string contenuto = m_letto.contenuto;
  for (const Estrazione& estrazione : estrazioni) {
    const size_t fine = contenuto.size();
    contenuto.resize(fine + kByteRecordArchivio);
    CodificaRecord(estrazione, reinterpret_cast<unsigned char*>(contenuto.data() + fine));
  }
  return Sostituisci(std::move(contenuto));
}

Esito<Fatto> ScritturaArchivio::Sovrascrivi(int k, const Estrazione& estrazione) {
  std::string contenuto = m_letto.contenuto;
  CodificaRecord(estrazione,
                 reinterpret_cast<unsigned char*>(contenuto.data() + static_cast<size_t>(k - 1) * kByteRecordArchivio));
  return Sostituisci(std::move(contenuto));
}

Esito<Fatto> ScritturaArchivio::Sostituisci(std::string contenuto) {
  auto scritto = SostituisciFile(m_file, contenuto);
  if (!scritto) return scritto.Errore();
  // The table follows the file, so that a second write through this object builds on the first.
  m_letto = Decodifica(m_file, std::move(contenuto));
  return Fatto{};
}

}  // namespace lottolab
