#pragma once

// The Lotto archive file: fixed 67-byte little-endian records with no header, draw k at byte
// (k-1)*67. The number of draws follows from the file length alone, so a draw can be read or
// overwritten without touching the others and an append is the only way the file grows. Writes
// never change the file in place, though: each replaces it whole, under a lock (ScritturaArchivio.h).

#include <filesystem>
#include <vector>

#include "ControlloArchivio.h"
#include "Esito.h"
#include "TabellaEstrazioni.h"

namespace lottolab {

// The 67 bytes of a record as they stand on disk, and back.
void CodificaRecord(const Estrazione& estrazione, unsigned char* destinazione);
Estrazione DecodificaRecord(const unsigned char* sorgente, size_t lunghezza = kByteRecordArchivio);

// The number of draws a file of `lunghezza` bytes holds: the length over 67, rounded to the nearest.
int ContaRecordArchivio(uintmax_t lunghezza);

// A loaded archive with what the check of its records found.
struct EstrazioniCaricate {
  TabellaEstrazioni tabella;
  RapportoArchivio rapporto;
};

class ClsEstrazioni {
 public:
  explicit ClsEstrazioni(std::filesystem::path archivio) : m_archivio(std::move(archivio)) {}

  const std::filesystem::path& Archivio() const { return m_archivio; }

  // The file length divided by 67, rounded to the nearest whole number. An empty path means this
  // archive; another path that does not exist holds 0 draws.
  Esito<int> GetNumeroEstrazioni(const std::filesystem::path& percorso = {}) const;

  // The whole archive in one sequential read, checked record by record. A missing file, a path that
  // is not a regular file and a file that is not an archive of draws are refused with the user's
  // message; smaller faults load, and the report tells them.
  Esito<EstrazioniCaricate> CaricaEControlla() const;
  // The same without the report.
  Esito<TabellaEstrazioni> CaricaEstrazioni() const;

  // Draw k (1-based), or the untouched `record` when the file is missing or k lies past its end.
  Esito<Fatto> LeggiEstrazione(int k, Estrazione& record) const;

  // Appends (k = 0 or k = count + 1) or overwrites (1 <= k <= count) one draw, all at once and under
  // the writers' lock. True only when a record was written; k past count + 1 is refused with the
  // user's message, k < 0 writes nothing. An archive whose length is not a multiple of 67 is refused.
  Esito<bool> ScriviEstrazione(const Estrazione& estrazione, int k);

  // Appends, in order and all at once, every record that holds a draw; existing records are never
  // rewritten. Refused as ScriviEstrazione is.
  Esito<Fatto> SalvaFileEstrazioni(const std::vector<Estrazione>& estrazioni);

 private:
  std::filesystem::path m_archivio;
};

}  // namespace lottolab
