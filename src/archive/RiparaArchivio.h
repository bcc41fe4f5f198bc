#pragma once

// The repair of an archive whose length is not a whole number of records: a cut write of an older
// version, a copy stopped half-way, bytes added by another program. The bytes after the last whole
// record are cut, since no record can be rebuilt from them; a dated copy of the file as it was is
// kept beside it first, so that nothing the user had is lost.

#include <filesystem>
#include <string>

#include "Esito.h"

namespace lottolab {

struct Riparazione {
  bool eseguita = false;        // false when the archive needed no repair
  std::filesystem::path copia;  // the copy of the archive as it was
  int byte_tolti = 0;
  int estrazioni = 0;  // the draws the archive holds afterwards
};

// Under the writers' lock, copies `archivio` to "<archivio>.bak-AAAAMMGGhhmmss" and then cuts it to
// its whole records, each step all at once. A missing file, one that is not a regular file and one
// that is not an archive of draws are refused with the user's message.
Esito<Riparazione> RiparaArchivio(const std::filesystem::path& archivio);

// What the repair did, in one Italian sentence or two.
std::string DescriviRiparazione(const std::filesystem::path& archivio, const Riparazione& riparazione);

}  // namespace lottolab
