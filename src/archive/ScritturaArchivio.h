#pragma once

// An archive file opened for writing. Opening takes the writers' lock beside the file and reads it
// whole; every write then replaces the file all at once (see FileSicuri.h) while the lock is held,
// so a reader sees the old archive or the new one and two writers never both append the same draws.
// A file whose length is not a whole number of records, or that is not an archive at all, is never
// written: appending to it would shift every later record.

#include <filesystem>
#include <string>
#include <vector>

#include "ControlloArchivio.h"
#include "Esito.h"
#include "FileSicuri.h"
#include "TabellaEstrazioni.h"

namespace lottolab {

// The largest archive file read: about a million draws, over a hundred times the whole history.
inline constexpr size_t kLimiteArchivio = size_t{64} << 20;

// The contents of an archive file as read from disk, and what the check found in them.
struct ArchivioLetto {
  bool esiste = false;
  std::string contenuto;
  TabellaEstrazioni tabella;
  RapportoArchivio rapporto;
};

// Reads and checks the archive `file`; a path that is not a regular file, or one too large, is
// refused with the user's message. A missing file reads as an empty archive that does not exist.
Esito<ArchivioLetto> LeggiArchivio(const std::filesystem::path& file);

class ScritturaArchivio {
 public:
  // Locks and reads `file` (a missing one is an empty archive). Refuses a file that cannot be
  // written, one whose length is not a multiple of 67 (saying how to repair it) and one that is
  // not an archive.
  static Esito<ScritturaArchivio> Apri(const std::filesystem::path& file);

  const std::filesystem::path& File() const { return m_file; }
  const TabellaEstrazioni& Tabella() const { return m_letto.tabella; }
  int Conteggio() const { return m_letto.tabella.EstrazioniArchivio(); }

  // Appends the records in order; the file is created when missing.
  Esito<Fatto> Accoda(const std::vector<Estrazione>& estrazioni);
  // Replaces record k, 1 <= k <= Conteggio().
  Esito<Fatto> Sovrascrivi(int k, const Estrazione& estrazione);

 private:
  ScritturaArchivio(std::filesystem::path file, BloccoScrittura blocco, ArchivioLetto letto)
      : m_file(std::move(file)), m_blocco(std::move(blocco)), m_letto(std::move(letto)) {}
  Esito<Fatto> Sostituisci(std::string contenuto);

  std::filesystem::path m_file;
  BloccoScrittura m_blocco;
  ArchivioLetto m_letto;
};

}  // namespace lottolab
