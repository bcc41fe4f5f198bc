#include "OutputHtml.h"

#include <fmt/format.h>
#include <iterator>

#include "InterfacciaScript.h"

namespace lottolab::script {

namespace fs = std::filesystem;

Esito<Fatto> OutputHtml::Apri(const fs::path& file, std::string_view colore_sfondo) {
  Chiudi();
  std::error_code errore;
  if (!fs::is_directory(file.parent_path(), errore))
    return AvvisoEsclamativo(fmt::format("Path di lavoro {} non valido !", file.parent_path().string()));
  m_file.open(file, std::ios::binary | std::ios::trunc);
  if (!m_file) return AvvisoEsclamativo(fmt::format("Impossibile creare il file {}", file.string()));
  m_percorso = file;
  m_scritti = 0;
  m_troncato = false;
  Aggiungi(fmt::format("<html>\n<body bgcolor ={}>\n<pre>\n", colore_sfondo));
  return Fatto{};
}

void OutputHtml::Aggiungi(std::string_view parte) {
  if (m_troncato) return;
  if (m_scritti + parte.size() > kLimitePaginaHtml) {
    m_troncato = true;
    m_file << fmt::format(
        "</pre>\n<p><b><font color=\"#FF0000\">Output troncato: la pagina ha raggiunto {} MB, il "
        "resto dell'output non è stato scritto.</font></b></p>\n<pre>\n",
        kLimitePaginaHtml >> 20);
    return;
  }
  m_scritti += parte.size();
  m_file << parte;
}

void OutputHtml::Scrivi(std::string_view testo, int16_t colore, bool grassetto) {
  if (!Aperto() || testo.empty() || m_troncato) return;
  std::string parte;
  const bool colorato = colore != kNero;
  if (colorato) parte += fmt::format("<font color=\"{}\">", ColoreHtml(colore));
  if (grassetto) parte += "<b>";
  parte += TestoHtml(testo);
  if (grassetto) parte += "</b>";
  if (colorato) parte += "</font>";
  Aggiungi(parte);
}

void OutputHtml::ScriviMarkup(std::string_view markup) {
  if (Aperto()) Aggiungi(markup);
}

void OutputHtml::Chiudi() {
  if (!Aperto()) return;
  m_file << "</pre>\n</body>\n</html>\n";
  m_file.close();
}

std::string OutputHtml::Testo() {
  if (m_percorso.empty()) return {};
  if (Aperto()) m_file.flush();
  std::ifstream pagina(m_percorso, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(pagina), std::istreambuf_iterator<char>());
}

std::string_view ColoreHtml(int16_t colore) {
  static constexpr std::string_view kColori[] = {"#000000", "#0000FF", "#FF0000", "#008000",
                                                 "#FFFF00", "#FFFFFF", "#00FFFF", "#FF00FF"};
  if (colore < 0 || colore > kMagenta) return kColori[kNero];
  return kColori[colore];
}

std::string TestoHtml(std::string_view testo) {
  std::string html;
  html.reserve(testo.size());
  for (char c : testo) {
    switch (c) {
      case '<': html += "&lt;"; break;
      case '>': html += "&gt;"; break;
      case '&': html += "&amp;"; break;
      case '"': html += "&quot;"; break;
      default: html += c;
    }
  }
  return html;
}

}  // namespace lottolab::script
