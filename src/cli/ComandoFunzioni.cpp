#include <cctype>
#include <fmt/format.h>
#include <fmt/ostream.h>
#include <fstream>
#include <unordered_map>

#include "Comandi.h"
#include "script/OutputHtml.h"
#include "script/Riferimento.h"

namespace lottolab::cli {

namespace {

// An anchor for a family title: letters and digits only.
std::string Ancora(std::string_view titolo) {
  std::string ancora;
  for (char c : titolo)
    if (std::isalnum(static_cast<unsigned char>(c))) ancora += c;
  return ancora;
}

void ScriviPagina(std::ostream& out) {
  const auto& schede = script::Riferimento();
  out << "<!DOCTYPE html>\n<html lang=\"it\">\n<head>\n<meta charset=\"utf-8\">\n"
         "<title>Funzioni degli script</title>\n<style>\n"
         "body{font-family:sans-serif} td,th{padding:2px 8px;text-align:left;vertical-align:top}\n"
         "tr.assente td{color:#999} code{font-weight:bold} td.esempio code{font-weight:normal}\n</style>\n"
         "</head>\n<body>\n<h1>Funzioni degli script</h1>\n<p>";
  for (size_t i = 0; i < schede.size(); ++i)
    if (i == 0 || schede[i].famiglia != schede[i - 1].famiglia)
      fmt::print(out, "<a href=\"#{}\">{}</a> ", Ancora(schede[i].famiglia), script::TestoHtml(schede[i].famiglia));
  out << "</p>\n";
  for (size_t i = 0; i < schede.size(); ++i) {
    const script::SchedaFunzione& scheda = schede[i];
    if (i == 0 || scheda.famiglia != schede[i - 1].famiglia) {
      if (i > 0) out << "</table>\n";
      fmt::print(out,
                 "<h2 id=\"{}\">{}</h2>\n<table>\n<tr><th>Nome</th><th>Argomenti</th><th>Restituisce</th>"
                 "<th>Significato</th><th>Esempio</th></tr>\n",
                 Ancora(scheda.famiglia), script::TestoHtml(scheda.famiglia));
    }
    if (!scheda.legata) {
      fmt::print(out,
                 "<tr class=\"assente\"><td><code>{}</code></td><td></td><td></td><td>non ancora disponibile</td>"
                 "<td></td></tr>\n",
                 scheda.nome);
      continue;
    }
    fmt::print(out,
               "<tr id=\"{0}\"><td><code>{0}</code></td><td>{1}</td><td>{2}</td><td>{3}</td>"
               "<td class=\"esempio\"><code>{4}</code></td></tr>\n",
               scheda.nome, script::TestoHtml(scheda.argomenti), script::TestoHtml(scheda.restituisce),
               script::TestoHtml(scheda.significato), script::TestoHtml(scheda.esempio));
  }
  if (!schede.empty()) out << "</table>\n";
  out << "</body>\n</html>\n";
}

}  // namespace

int ComandoFunzioni(Contesto& contesto, const Parole& parole) {
  if (parole.size() == 2 && parole[0] == "--html") {
    std::ofstream pagina(parole[1], std::ios::binary | std::ios::trunc);
    ScriviPagina(pagina);
    if (!pagina.flush())
      return contesto.Fallisci(AvvisoEsclamativo(fmt::format("impossibile scrivere il file {}", parole[1])));
    return kUscitaRiuscita;
  }
  if (!parole.empty()) return contesto.Fallisci(AvvisoEsclamativo("uso: lottolab funzioni [--html FILE]"));
  size_t totale = 0;
  size_t implementate = 0;
  for (const script::SchedaFunzione& scheda : script::Riferimento()) {
    fmt::print(contesto.out, "{}\t{}\t{}\n", scheda.nome, scheda.legata ? "si" : "no", scheda.argomenti);
    ++totale;
    implementate += scheda.legata;
  }
  fmt::print(contesto.err, "implementate: {} su {}\n", implementate, totale);
  return kUscitaRiuscita;
}

}  // namespace lottolab::cli
