#pragma once

// The disk side of the structure files: a whole file written all or nothing, and a file read only
// when it is an ordinary file of bounded size. The failures carry the reason alone, in Italian, for
// the caller to put in its own message; nothing here knows the structure format.

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "archive/Esito.h"

namespace lottolab::figures {

// The file written anew with `byte`: through a temporary file beside it, flushed to the disk before it
// takes the file's name, so that a failed or interrupted write leaves the old file whole. The new file
// keeps the old one's permissions. A failed write removes its temporary file; a killed process may
// leave one behind, hidden (".NAME.XXXXXX"), never in the file's place.
Esito<Fatto> ScriviFileIntero(const std::filesystem::path& file, std::string_view byte);

// The whole file, refused unless it is an ordinary file of at most `massimo` bytes: a folder, a
// device, a pipe are refused at once, without waiting for a writer or reading without end.
// `troppi` ends the message of a file too big ("troppi per una struttura").
Esito<std::string> LeggiFileOrdinario(const std::filesystem::path& file, uintmax_t massimo, std::string_view troppi);

}  // namespace lottolab::figures
