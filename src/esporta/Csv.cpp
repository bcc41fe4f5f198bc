#include "esporta/Csv.h"

#include <algorithm>
#include <fmt/format.h>

#include "archive/FileSicuri.h"

namespace lottolab::esporta {

namespace {

constexpr std::string_view kMarcaUtf8 = "\xEF\xBB\xBF";

void AggiungiCampo(std::string& testo, std::string_view campo) {
  if (campo.find_first_of(";\"\r\n") == std::string_view::npos) {
    testo += campo;
    return;
  }
  testo += '"';
  for (char c : campo) testo += c == '"' ? std::string_view("\"\"") : std::string_view(&c, 1);
  testo += '"';
}

std::string NumeroItaliano(double numero) {
  std::string testo = fmt::format("{}", numero);
  std::replace(testo.begin(), testo.end(), '.', ',');
  return testo;
}

}  // namespace

std::string TestoCsv(const RigheCsv& righe) {
  std::string testo(kMarcaUtf8);
  for (const auto& riga : righe) {
    for (size_t c = 0; c < riga.size(); ++c) {
      if (c) testo += ';';
      AggiungiCampo(testo, riga[c]);
    }
    testo += "\r\n";
  }
  return testo;
}

Esito<RigheCsv> LeggiTestoCsv(std::string_view testo, size_t massimo_campi) {
  if (testo.starts_with(kMarcaUtf8)) testo.remove_prefix(kMarcaUtf8.size());
  RigheCsv righe;
  if (testo.empty()) return righe;
  std::vector<std::string> riga;
  size_t campi = 0;
  size_t numero_riga = 1;
  size_t i = 0;
  for (;;) {
    std::string campo;
    if (testo[i] == '"') {
      const size_t inizio = numero_riga;
      for (++i;; ++i) {
        if (i >= testo.size())
          return AvvisoEsclamativo(fmt::format("Riga {}: un campo tra virgolette non si chiude", inizio));
        if (testo[i] == '"' && (i + 1 >= testo.size() || testo[i + 1] != '"')) break;
        if (testo[i] == '"') ++i;
        if (testo[i] == '\n') ++numero_riga;
        campo += testo[i];
      }
      ++i;
    }
    const size_t fine = std::min(testo.find_first_of(";\n", i), testo.size());
    campo += testo.substr(i, fine - i);
    i = fine;
    if ((i == testo.size() || testo[i] == '\n') && campo.ends_with('\r')) campo.pop_back();
    riga.push_back(std::move(campo));
    if (++campi > massimo_campi) return AvvisoEsclamativo(fmt::format("Il testo ha più di {} campi", massimo_campi));
    if (i < testo.size() && testo[i] == ';') {
      ++i;
      if (i == testo.size()) riga.emplace_back();
      if (i == testo.size()) break;
      continue;
    }
    righe.push_back(std::move(riga));
    riga.clear();
    ++numero_riga;
    if (++i >= testo.size()) break;
  }
  if (!riga.empty()) righe.push_back(std::move(riga));
  return righe;
}

RigheCsv RigheDelFoglio(const Foglio& foglio) {
  int righe = 0;
  int colonne = 0;
  for (const auto& [p, cella] : foglio.celle) {
    righe = std::max(righe, p.riga);
    colonne = std::max(colonne, p.colonna);
  }
  RigheCsv tabella(static_cast<size_t>(righe), std::vector<std::string>(static_cast<size_t>(colonne)));
  for (const auto& [p, cella] : foglio.celle) {
    std::string& campo = tabella[static_cast<size_t>(p.riga - 1)][static_cast<size_t>(p.colonna - 1)];
    if (const auto* testo = std::get_if<std::string>(&cella.valore)) campo = *testo;
    if (const auto* numero = std::get_if<double>(&cella.valore)) campo = NumeroItaliano(*numero);
    if (const auto* vero = std::get_if<bool>(&cella.valore)) campo = *vero ? "VERO" : "FALSO";
  }
  return tabella;
}

Esito<Fatto> ScriviCsv(const RigheCsv& righe, const std::filesystem::path& file) {
  return SostituisciFile(file, TestoCsv(righe));
}

}  // namespace lottolab::esporta
