#pragma once

// A zip written by the test from named parts, to hand the reader files no spreadsheet would write.

#include <zip.h>

#include <filesystem>
#include <map>
#include <string>

namespace lottolab::test {

inline void ScriviZip(const std::filesystem::path& file, const std::map<std::string, std::string>& parti) {
  int errore = 0;
  zip_t* zip = zip_open(file.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &errore);
  for (const auto& [nome, contenuto] : parti) {
    zip_source_t* sorgente = zip_source_buffer(zip, contenuto.data(), contenuto.size(), 0);
    zip_file_add(zip, nome.c_str(), sorgente, ZIP_FL_OVERWRITE);
  }
  zip_close(zip);
}

}  // namespace lottolab::test
