#pragma once

// The archive file of a game other than the Lotto: fixed little-endian records, draw k at byte
// (k-1) * size, as the Lotto archive is. A record is IdEstr (4 bytes), the date group (annual index,
// day, month, year: 2 bytes each), the contest (2), the time of day in minutes (2, only for games
// with a time), then one byte for each main number, each extra number and each special number of
// the game. The known games need nothing more, their format being fixed; the generic archive, whose
// K numbers of 1..M a draw no name tells, opens with 8 bytes that say them ("LLFT", then K and M as
// little-endian 16-bit numbers), so that the file alone is enough to read it. The file is written
// whole, aside and then renamed, so a failed write leaves the old one.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Esito.h"
#include "TabellaGioco.h"

namespace lottolab {

size_t ByteRecordGioco(const FormatoGioco& formato);

// "archivio del SuperEnalotto", "archivio generico": the archive as a message names it.
std::string NomeArchivioGioco(const FormatoGioco& formato);

// The largest number a draw of the generic archive may hold, and the bytes before its first record.
inline constexpr int kMassimoNumeroGenerico = 255;
inline constexpr size_t kByteTestataGenerico = 8;

void CodificaRecordGioco(const FormatoGioco& formato, const EstrazioneGioco& estrazione, unsigned char* destinazione);
EstrazioneGioco DecodificaRecordGioco(const FormatoGioco& formato, const unsigned char* sorgente);

// What is wrong with draw k of the game, in the user's words; nothing when it is sound. The
// draw before it, when given, must not come later.
std::optional<std::string> DifettoEstrazioneGioco(const FormatoGioco& formato, const EstrazioneGioco& estrazione, int k,
                                                  const EstrazioneGioco* precedente);

// The whole archive, every record checked; a missing file is an empty archive. A file whose length
// is no whole number of records, or with a record that is not a draw of this game, is refused with
// a message naming the file and the record. For the generic archive the file's own K and M must be
// the format's (a format of 0 numbers takes the file's, and then a missing file is refused).
Esito<TabellaGioco> CaricaArchivioGioco(const FormatoGioco& formato, const std::filesystem::path& file);

// The generic archive in the format its first 8 bytes give, every record checked as
// CaricaArchivioGioco does. A missing file, a file that does not open with those 8 bytes, K outside
// 1..20, M outside K..255, or a length that is not the 8 bytes and whole records is refused with a
// message naming the file (and the record).
Esito<TabellaGioco> CaricaArchivioGenerico(const std::filesystem::path& file);

// Whether these bytes, a file's first, open a generic archive rather than a text of draws.
bool IsArchivioGenerico(std::string_view primi_byte);

// The table written as the archive, all at once; a generic archive with its 8 bytes first.
Esito<Fatto> SalvaArchivioGioco(const TabellaGioco& tabella, const std::filesystem::path& file);

// The draws of `archivio` and those of `nuove` that it does not hold, in order of date and time,
// numbered again from 1. A draw is known by its date (and time, for games that have one); one that
// both hold with different numbers refuses the merge, naming it, so that a correction is never made
// behind the user's back.
Esito<TabellaGioco> UnisciEstrazioni(const TabellaGioco& archivio, const std::vector<EstrazioneGioco>& nuove);

// The whole import: under the writers' lock, loads the archive `file` (a missing one is empty),
// merges the new draws and writes it back all at once when something was added. Returns how many
// draws were added; on any failure the file is left as it was. A generic archive takes only draws
// of its own K and M: others are refused, naming both.
Esito<int> ImportaEstrazioniGioco(const FormatoGioco& formato, const std::filesystem::path& file,
                                  const std::vector<EstrazioneGioco>& nuove);

}  // namespace lottolab
