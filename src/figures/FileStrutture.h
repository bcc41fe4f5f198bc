#pragma once

// The structure file ("Struttura utente", *.dat). Binary, little-endian, with no counts: three
// sections, each opened by a marker and closed by "FINE":
//
//   "OFFSET_STRUCT" vertex records (29 bytes) "FINE"
//   "OFFSET_LINEE"  line records (6 bytes)    "FINE"
//   "OFFSET_COND"   condition records (500)   "FINE"
//
// A vertex record is Index (16 bits), IdEstrazione (32), FulcroOrizz, FulcroVert (16, true = -1),
// Riga, Colonna, two reserved fields, VersoVert, VersoOrizz (16 each), the caption (5 single-byte
// characters, blank-padded), UsaPerChiusura (16, true = -1). A line record is its number and the
// Index of its start and end vertex. A condition record is the text in 500 single-byte characters,
// blank-padded. Texts are Windows-1252 on disk.
//
// Reading finds each section's marker (exact case) and ends the section at the first "FINE" after
// it in any case, which must come before the next section's marker; the number of records is the
// section's length over the record's, rounded, and that many records are read from right behind
// the marker. So a "FINE" inside a caption, a condition or a record's bytes cuts its section short:
// the format has no escape for it, files written so are read as they always were, and the editor
// refuses such texts (LimitiStrutture.h). A section with no "FINE" of its own makes the file not
// valid: it is what a file cut short looks like.

#include <filesystem>
#include <string>
#include <string_view>

#include "Struttura.h"
#include "archive/Esito.h"

namespace lottolab::figures {

inline constexpr size_t kByteVertice = 29;
inline constexpr size_t kByteLinea = 6;
inline constexpr size_t kByteCondizione = 500;
inline constexpr size_t kCaratteriCaption = 5;

// The bytes of the file for the structure as the editor saves it: vertices with Index 0 are left
// out, captions cut or padded to 5 characters, conditions to 500.
std::string CodificaStruttura(const Struttura& struttura);
// The bytes as any other window that shows a structure saves it: its condition section holds one
// record, `condizione`, whatever the structure's own list.
std::string CodificaStrutturaConCondizione(const Struttura& struttura, std::string_view condizione);

// The structure the bytes hold; captions and conditions trimmed of blanks at both ends. Fails, saying
// why in Italian, when a section or its end is missing or the structure exceeds LimitiStrutture.h.
Esito<Struttura> DecodificaStruttura(std::string_view byte);

// The file written anew with CodificaStruttura's bytes, all or nothing: through a temporary file
// flushed to the disk and renamed over it. Refused, leaving the file as it was, when the bytes would
// not read back whole (a "fine" in a text) or the structure exceeds LimitiStrutture.h.
Esito<Fatto> SalvaStruttura(const std::filesystem::path& file, const Struttura& struttura);
Esito<Fatto> SalvaStrutturaConCondizione(const std::filesystem::path& file, const Struttura& struttura,
                                         std::string_view condizione);
// A file that is not a structure gives "File <path> non valido: <why>"; so does anything that is not an
// ordinary file of at most kMassimoByteFile bytes (a folder, a device, a pipe), never waiting on it.
Esito<Struttura> CaricaStruttura(const std::filesystem::path& file);
// Whether the file is an ordinary file holding the three sections of a structure file with their ends,
// whatever they hold: a file a structure may be saved over.
bool FileDiStruttura(const std::filesystem::path& file);

}  // namespace lottolab::figures
