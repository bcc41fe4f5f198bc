#pragma once

// How big a structure may be. The editor and the search work on structures a person draws: a handful
// of vertices, a few conditions. A file or an input beyond these limits is refused, when it is read
// and when it is typed, rather than left to exhaust the memory or the patience of the user: the
// search's work grows with the vertices times the conditions at every cell of the table of draws,
// and the editor draws one row of the grid for every draw the figure spans.
//
// The texts the file keeps (captions, conditions) have their own rule: the file's sections end at
// the first "FINE" in any letter case, so a text holding that word would cut its section (see
// FileStrutture.h). Such texts are refused when typed.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "Struttura.h"

namespace lottolab::figures {

inline constexpr size_t kMassimoVertici = 100;
inline constexpr size_t kMassimoLinee = 1000;
inline constexpr size_t kMassimoCondizioni = 100;
// The draws between a figure's first and last row, both counted.
inline constexpr int kMassimeRigheFigura = 200;
// The work the conditions may ask for at each placement of the figure (Condizione::Costo, summed):
// far beyond what drawn figures ask, and at it a search of every draw takes seconds, not hours.
inline constexpr size_t kMassimoCostoCondizioni = 10'000;
// Well above the largest structure within the limits (about 60 KB).
inline constexpr uintmax_t kMassimoByteFile = 1024 * 1024;

// Why the structure goes beyond a limit above, in Italian; nothing when it keeps within them.
std::optional<std::string> LimiteSuperato(const Struttura& struttura);

// Why the file could not keep the text as typed: a word "fine", more than `caratteri` characters,
// a character Windows-1252 lacks. `cosa` names the text for the message ("l'etichetta").
std::optional<std::string> TestoNonAmmesso(std::string_view utf8, size_t caratteri, std::string_view cosa);

// The byte offset in `utf8` where the first "fine" in any letter case starts; npos when none.
size_t PosizioneFine(std::string_view utf8);

}  // namespace lottolab::figures
