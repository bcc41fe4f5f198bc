#pragma once

// The archive file of a game other than the Lotto: fixed little-endian records with no header,
// draw k at byte (k-1) * size, as the Lotto archive is. A record is IdEstr (4 bytes), the date group
// (annual index, day, month, year: 2 bytes each), the contest (2), the time of day in minutes (2,
// only for games with a time), then one byte for each main number, each extra number and each
// special number of the game. The file is written whole, aside and then renamed, so a failed write leaves the old one.

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "Esito.h"
#include "TabellaGioco.h"

namespace lottolab {

size_t ByteRecordGioco(const FormatoGioco& formato);

void CodificaRecordGioco(const FormatoGioco& formato, const EstrazioneGioco& estrazione, unsigned char* destinazione);
EstrazioneGioco DecodificaRecordGioco(const FormatoGioco& formato, const unsigned char* sorgente);

// What is wrong with draw k of the game, in the user's words; nothing when it is sound. The
// draw before it, when given, must not come later.
std::optional<std::string> DifettoEstrazioneGioco(const FormatoGioco& formato, const EstrazioneGioco& estrazione, int k,
                                                  const EstrazioneGioco* precedente);

// The whole archive, every record checked; a missing file is an empty archive. A file whose length
// is no whole number of records, or with a record that is not a draw of this game, is refused with
// a message naming the file and the record.
Esito<TabellaGioco> CaricaArchivioGioco(const FormatoGioco& formato, const std::filesystem::path& file);

// The table written as the archive, all at once.
Esito<Fatto> SalvaArchivioGioco(const TabellaGioco& tabella, const std::filesystem::path& file);

// The draws of `archivio` and those of `nuove` that it does not hold, in order of date and time,
// numbered again from 1. A draw is known by its date (and time, for games that have one); one that
// both hold with different numbers refuses the merge, naming it, so that a correction is never made
// behind the user's back.
Esito<TabellaGioco> UnisciEstrazioni(const TabellaGioco& archivio, const std::vector<EstrazioneGioco>& nuove);

// The whole import: under the writers' lock, loads the archive `file` (a missing one is empty),
// merges the new draws and writes it back all at once when something was added. Returns how many
// draws were added; on any failure the file is left as it was.
Esito<int> ImportaEstrazioniGioco(const FormatoGioco& formato, const std::filesystem::path& file,
                                  const std::vector<EstrazioneGioco>& nuove);

}  // namespace lottolab
