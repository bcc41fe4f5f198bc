#pragma once

// Reading a whole file that a user or a script named. The name may lead anywhere: to a device that
// never ends (/dev/zero), a pipe that waits for a writer, a file of many gigabytes. Only regular
// files are read, without waiting, and only up to a size fit for what they hold: the reading is
// archive/FileSicuri.h's, the sentences the script's.

#include <cstdint>
#include <filesystem>
#include <string>

#include "archive/Esito.h"

namespace lottolab::script {

// A script or an include file.
inline constexpr uintmax_t kLimiteFileScript = uintmax_t{16} << 20;
// A text file a script reads line by line: every line becomes a value of the script.
inline constexpr uintmax_t kLimiteFileTesto = uintmax_t{64} << 20;

// The bytes of `file`. Refused with an Italian message naming the file when it cannot be opened,
// is not a regular file (a folder, a device, a pipe), or holds more than `limite` bytes.
Esito<std::string> LeggiFileRegolare(const std::filesystem::path& file, uintmax_t limite);

// Whether `file` is a regular file, after following links; the message says what it is otherwise.
Esito<Fatto> FileRegolare(const std::filesystem::path& file);

}  // namespace lottolab::script
