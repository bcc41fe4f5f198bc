#pragma once

// The example scripts that come with the program. They are compiled into it from esempi/ (see
// IncorporaEsempi.cmake), so a copied or moved binary still has them, and they are written into the
// user's scripts folder the first time a front end runs with a base folder that lacks them.

#include <cstddef>
#include <filesystem>
#include <span>
#include <string_view>

#include "archive/Esito.h"

namespace lottolab::app {

struct Esempio {
  std::string_view nome;   // the file's name, such as "01_ritardi_frequenze.ls"
  std::string_view testo;  // its bytes, as written in esempi/
};

// Every example, in the order of their names.
std::span<const Esempio> Esempi();

// Script/Esempi/ in the base folder.
std::filesystem::path CartellaEsempi(const std::filesystem::path& base);

// Writes `esempi` into CartellaEsempi(base) when nothing has that name yet, and gives how many files
// it wrote: 0 when the folder (or anything else under its name) is already there, since a user may
// have edited or removed an example and must find the folder as left. The files are written into a
// hidden folder beside it, which then takes its name in one rename, so the folder appears whole or
// not at all, also when two programs start at once. A failure is an Italian warning naming the
// folder; nothing is left behind.
Esito<size_t> InstallaEsempi(const std::filesystem::path& base, std::span<const Esempio> esempi = Esempi());

}  // namespace lottolab::app
