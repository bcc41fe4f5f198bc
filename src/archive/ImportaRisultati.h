#pragma once

// Import of the results that the operator publishes: a text file, often inside a zip, with one line
// per wheel per draw, "AAAA/MM/GG <tab> wheel <tab> n1 .. n5", numbers in drawn order. The file
// repeats the whole history every time, so the import checks what the archive already holds against
// it and keeps only what is newer. Anything malformed, or contradicting the archive, stops the import
// before a byte is written: a half-updated archive would be worse than a stale one.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "ClsEstrazioni.h"
#include "Esito.h"
#include "Estrazione.h"
#include "TabellaEstrazioni.h"

namespace lottolab {

// The draws of `testo` that `archivio` does not yet hold, numbered from archivio.EstrazioniArchivio()+1,
// each with its annual index, ready to append. Fails, naming the line and the reason, on bad input or
// on a draw that differs from, or is missing in, the archive.
Esito<std::vector<Estrazione>> LeggiNuoveEstrazioni(const TabellaEstrazioni& archivio, std::string_view testo);

// The text of a results file, of this game or another: the file itself, or the text file a zip
// holds (its first ".txt" entry, or its only entry). A missing or unreadable file is refused with the
// user's message.
Esito<std::string> LeggiTestoRisultati(const std::filesystem::path& file);

// The draws of a results file read by LeggiTestoRisultati.
Esito<std::vector<Estrazione>> LeggiNuoveEstrazioniDaFile(const TabellaEstrazioni& archivio,
                                                          const std::filesystem::path& file);

// The whole user action: loads the archive (an absent archive file counts as empty), reads the new
// draws of `file` and appends them, all under the writers' lock so that a second import at the same
// time waits and then finds them archived. Returns how many were added; on any failure, a kill
// included, the archive file is left exactly as it was. An archive whose length is not a whole
// number of records is refused.
Esito<int> ImportaRisultati(ClsEstrazioni& archivio_file, const std::filesystem::path& file);

}  // namespace lottolab
