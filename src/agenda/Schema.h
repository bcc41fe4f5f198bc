#pragma once

// The agenda's tables and how a file of an older version is brought up to date. The version lives in
// the file's user_version, our mark in its application_id. Each migration is the SQL that takes
// version i to i+1; they run in order inside one transaction, so that a file is either wholly at its
// old version or wholly at the new one.

#include <cstdint>
#include <string_view>
#include <vector>

#include "Sqlite.h"

namespace lottolab::agenda {

inline constexpr int64_t kIdApplicazione = 0x4C4C4147;  // "LLAG"

// Element i takes the schema from version i to version i+1; the current version is their count.
const std::vector<std::string_view>& Migrazioni();
inline int VersioneSchema() { return static_cast<int>(Migrazioni().size()); }

// Checks that the open file is an agenda this program can read, and brings it to the current
// version: a new empty file gets the whole schema. A file that is damaged, not a database, another
// program's database, or of a newer version is refused with an Italian message naming it, and is
// never written.
[[nodiscard]] Esito<Fatto> PreparaSchema(const Connessione& connessione);

}  // namespace lottolab::agenda
