#pragma once

// What loading an archive file found wrong with it. The count of draws follows the file's length
// (rounded to the nearest record), so a cut or padded file still loads; this report is how the user
// learns that it did: bytes beyond the last whole record, and records that cannot be draws (a date
// that does not exist or lies in the future, dates going backwards, an IdEstr that is not the
// record's place, numbers outside 1..90 or repeated on a wheel, a wheel drawn only in part).

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "DateEstrazione.h"
#include "TabellaEstrazioni.h"

namespace lottolab {

struct RapportoArchivio {
  std::filesystem::path file;
  uintmax_t lunghezza = 0;
  int record_interi = 0;      // the whole 67-byte records the file holds
  int byte_sparsi = 0;        // the bytes after the last whole record
  int record_non_validi = 0;  // among the whole records
  int primo_non_valido = 0;   // its index from 1; 0 when every record is a draw
  std::string difetto;        // what is wrong with that record

  bool LunghezzaIntera() const { return byte_sparsi == 0; }
  bool Integro() const { return byte_sparsi == 0 && record_non_validi == 0; }
  // True when the file cannot be an archive of draws; loading it is then refused.
  bool NonEUnArchivio() const;
  // One Italian line per fault found, each naming the file; empty for a sound archive.
  std::vector<std::string> Avvisi() const;
  // The refusal of a file that is not an archive.
  Avviso Rifiuto() const;
};

// Checks every whole record of `tabella`, loaded from `file` of `lunghezza` bytes, against the
// calendar up to the day after `oggi`.
RapportoArchivio ControllaArchivio(const TabellaEstrazioni& tabella, const std::filesystem::path& file,
                                   uintmax_t lunghezza, const GruppoData& oggi = DataOdierna());

// What is wrong with draw `k` of an archive, given the date of the last well-dated draw before it
// (or nothing); empty when it is a draw.
std::string DifettoEstrazione(const Estrazione& estrazione, int k, const GruppoData* precedente,
                              const GruppoData& oggi);

}  // namespace lottolab
