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
// it in any case; the number of records is the section's length over the record's, rounded, and
// that many records are read from right behind the marker. So a "FINE" inside a caption, a
// condition or a record's bytes cuts its section short: the format has no escape for it, and files
// written so are read as they always were.

#include <filesystem>
#include <optional>
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

// The structure the bytes hold; captions and conditions trimmed of blanks at both ends. Nothing
// when a marker is missing.
std::optional<Struttura> DecodificaStruttura(std::string_view byte);

// The file written anew with CodificaStruttura's bytes.
Esito<Fatto> SalvaStruttura(const std::filesystem::path& file, const Struttura& struttura);
Esito<Fatto> SalvaStrutturaConCondizione(const std::filesystem::path& file, const Struttura& struttura,
                                         std::string_view condizione);
// A file that is not a structure gives "File <path> non valido".
Esito<Struttura> CaricaStruttura(const std::filesystem::path& file);

}  // namespace lottolab::figures
