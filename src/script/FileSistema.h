#pragma once

// The text file of a system's columns that LeggiColonnaSistema reads and SalvaColonnaSistema
// writes: one column a line, its numbers (1..90, all different, at most 90) separated by spaces,
// tabs, commas or semicolons; blank lines and lines starting with '#' are passed over and number no
// column. UTF-8 with or without a BOM, lines ending in LF or CRLF. A file that breaks the layout
// anywhere is refused whole, naming its first bad line, so that a column is never read from a file
// that only looks like a system.

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "archive/Esito.h"

namespace lottolab::script {

using ColonnaSistema = std::vector<int>;

// A file of columns holds at most this many bytes.
inline constexpr uintmax_t kLimiteFileSistema = uintmax_t{16} << 20;

// The columns of the text; the message names `file` and the first bad line.
Esito<std::vector<ColonnaSistema>> LeggiTestoSistema(std::string_view testo, const std::filesystem::path& file);

// The line of a column, "3 11 19 27", with its newline.
std::string RigaSistema(std::span<const int> colonna);

}  // namespace lottolab::script
