#pragma once

// Replacing a user's file all at once. The bytes go to a new file beside it, reach the disk, and
// only then take the old file's name in one rename: whatever stops the program half-way (a crash,
// a full disk, a power cut) leaves the old file or the new one, never a mix or a stub.

#include <filesystem>
#include <string>
#include <string_view>

#include "archive/Esito.h"

namespace lottolab::app {

// Writes `byte` as the whole content of `file`. A symbolic link stays a link and its target is
// replaced; the old file's permissions are kept. A path that names a folder, a device or anything
// but a regular file is refused, and so is any failure of the system, with the Italian reason
// (without the path, which the caller names) as the message.
Esito<Fatto> SostituisciFile(const std::filesystem::path& file, std::string_view byte);

}  // namespace lottolab::app
