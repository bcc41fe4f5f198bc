#pragma once

// File-name patterns as Windows reads them, shared by the engine's FileSystemObject and the
// library's file functions so that a pattern selects the same files in both.

#include <string_view>

namespace text {

// Whether `name` fits `pattern`: '*' any run of characters, '?' any one, letters in either case
// (the script language's folding, Latin letters included).
bool MatchesWildcard(std::u16string_view pattern, std::u16string_view name);

}  // namespace text
