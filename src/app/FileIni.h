#pragma once

// A configuration file in the INI form users edit by hand: "[SEZIONE]" headers and "chiave=valore"
// lines. Section and key names match without regard to case, as they always have for these files;
// comments and the order of lines survive a save.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "archive/Esito.h"

namespace lottolab::app {

class FileIni {
 public:
  // Far more than any configuration: a bigger file is refused rather than read into memory.
  static constexpr size_t kDimensioneMassima = 1024 * 1024;

  // An absent file reads as empty; an unreadable one, a folder, a device or a file above
  // kDimensioneMassima is a failure with the reason.
  static Esito<FileIni> Carica(const std::filesystem::path& percorso);
  static FileIni DaTesto(std::string_view testo);

  std::optional<std::string> Leggi(std::string_view sezione, std::string_view chiave) const;
  std::string Leggi(std::string_view sezione, std::string_view chiave, std::string_view predefinito) const;
  // Sets the key, adding it (and its section) when absent; line breaks in the value become blanks.
  void Scrivi(std::string_view sezione, std::string_view chiave, std::string_view valore);

  std::string Testo() const;
  // Replaces the file all at once (see archive/FileSicuri.h): a failed save leaves the old one whole.
  Esito<Fatto> Salva(const std::filesystem::path& percorso) const;

 private:
  struct Riga {
    std::string testo;    // the line as written, for comments and blank lines
    std::string sezione;  // the section a key line belongs to
    std::string chiave;   // empty for anything that is not a key line
    std::string valore;
  };
  // Index of the key's line, or the number of lines when the key is absent.
  size_t IndiceChiave(std::string_view sezione, std::string_view chiave) const;

  std::vector<Riga> m_righe;
};

}  // namespace lottolab::app
