#include <fmt/format.h>
#include <fmt/ostream.h>
#include <fstream>
#include <unordered_map>

#include "Comandi.h"
#include "script/ClsFunctionsGeodoScript.h"
#include "script/NomiPubblici.h"
#include "script/OutputHtml.h"
#include "text/AsciiCase.h"

namespace lottolab::cli {

namespace {

using Funzione = script::ClsFunctionsGeodoScript::Funzione;

// The bound functions by lower-case name.
std::unordered_map<std::string, const Funzione*> Legate() {
  std::unordered_map<std::string, const Funzione*> legate;
  for (const Funzione& funzione : script::ClsFunctionsGeodoScript::Funzioni())
    legate.emplace(text::LowerAscii(funzione.nome), &funzione);
  return legate;
}

// A row's text is "arguments: meaning"; a text without arguments is all meaning.
std::pair<std::string_view, std::string_view> ArgomentiESignificato(std::string_view descrizione) {
  const size_t due_punti = descrizione.find(": ");
  if (due_punti == std::string_view::npos) return {{}, descrizione};
  return {descrizione.substr(0, due_punti), descrizione.substr(due_punti + 2)};
}

void ScriviPagina(std::ostream& out, const std::unordered_map<std::string, const Funzione*>& legate) {
  out << "<!DOCTYPE html>\n<html lang=\"it\">\n<head>\n<meta charset=\"utf-8\">\n"
         "<title>Funzioni degli script</title>\n<style>\n"
         "body{font-family:sans-serif} td,th{padding:2px 8px;text-align:left;vertical-align:top}\n"
         "tr.assente td{color:#999} code{font-weight:bold}\n</style>\n</head>\n<body>\n"
         "<h1>Funzioni degli script</h1>\n<p>";
  for (const script::FamigliaDiNomi& famiglia : script::NomiPubblici())
    fmt::print(out, "<a href=\"#{0}\">{0}</a> ", famiglia.famiglia);
  out << "</p>\n";
  for (const script::FamigliaDiNomi& famiglia : script::NomiPubblici()) {
    fmt::print(out, "<h2 id=\"{0}\">{0}</h2>\n<table>\n<tr><th>Nome</th><th>Argomenti</th><th>Significato</th></tr>\n",
               famiglia.famiglia);
    for (std::string_view nome : famiglia.nomi) {
      auto it = legate.find(text::LowerAscii(nome));
      if (it == legate.end()) {
        fmt::print(out, "<tr class=\"assente\"><td><code>{}</code></td><td></td><td>non ancora disponibile</td></tr>\n",
                   nome);
        continue;
      }
      auto [argomenti, significato] = ArgomentiESignificato(it->second->descrizione);
      fmt::print(out, "<tr><td><code>{}</code></td><td>{}</td><td>{}</td></tr>\n", nome, script::TestoHtml(argomenti),
                 script::TestoHtml(significato));
    }
    out << "</table>\n";
  }
  out << "</body>\n</html>\n";
}

}  // namespace

int ComandoFunzioni(Contesto& contesto, const Parole& parole) {
  const auto legate = Legate();
  if (parole.size() == 2 && parole[0] == "--html") {
    std::ofstream pagina(parole[1], std::ios::binary | std::ios::trunc);
    ScriviPagina(pagina, legate);
    if (!pagina.flush())
      return contesto.Fallisci(AvvisoEsclamativo(fmt::format("impossibile scrivere il file {}", parole[1])));
    return kUscitaRiuscita;
  }
  if (!parole.empty()) return contesto.Fallisci(AvvisoEsclamativo("uso: lottolab funzioni [--html FILE]"));
  size_t totale = 0;
  size_t implementate = 0;
  for (const script::FamigliaDiNomi& famiglia : script::NomiPubblici()) {
    for (std::string_view nome : famiglia.nomi) {
      auto it = legate.find(text::LowerAscii(nome));
      const bool presente = it != legate.end();
      fmt::print(contesto.out, "{}\t{}\t{}\n", nome, presente ? "si" : "no",
                 presente ? ArgomentiESignificato(it->second->descrizione).first : "");
      ++totale;
      implementate += presente;
    }
  }
  fmt::print(contesto.err, "implementate: {} su {}\n", implementate, totale);
  return kUscitaRiuscita;
}

}  // namespace lottolab::cli
