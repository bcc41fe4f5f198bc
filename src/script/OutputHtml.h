#pragma once

// The HTML page of a run: opened before Main with the page head, filled with the script's text
// output and tables, closed after the run whatever happened. A page stops growing at
// kLimitePaginaHtml: a script that writes in a loop must not fill the disk, and no window could
// show such a page anyway. One line at its end says that the rest was left out.

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "archive/Esito.h"

namespace lottolab::script {

inline constexpr uintmax_t kLimitePaginaHtml = uintmax_t{32} << 20;

class OutputHtml {
 public:
  // Creates the file (replacing an older one) and writes the head of the page. The folder must
  // exist: "Path di lavoro <folder> non valido !" otherwise.
  Esito<Fatto> Apri(const std::filesystem::path& file, std::string_view colore_sfondo);
  // Text as the script wrote it; the colour is one of the script's colour indices.
  void Scrivi(std::string_view testo, int16_t colore, bool grassetto);
  // Markup written as it is (tables).
  void ScriviMarkup(std::string_view markup);
  void Chiudi();
  // The page as written so far; empty when none was opened.
  std::string Testo();

  bool Aperto() const { return m_file.is_open(); }
  // Whether the page reached kLimitePaginaHtml and was cut.
  bool Troncato() const { return m_troncato; }
  const std::filesystem::path& Percorso() const { return m_percorso; }

 private:
  // Writes `parte` unless the page would pass its limit, which ends it with the notice instead.
  void Aggiungi(std::string_view parte);

  std::ofstream m_file;
  std::filesystem::path m_percorso;
  uintmax_t m_scritti = 0;
  bool m_troncato = false;
};

// The HTML colour of a script colour index ("#FF0000" for Rosso_); black for an unknown index.
std::string_view ColoreHtml(int16_t colore);

// Text with <, >, & and " written as entities.
std::string TestoHtml(std::string_view testo);

}  // namespace lottolab::script
