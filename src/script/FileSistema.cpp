#include "FileSistema.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <bitset>
#include <charconv>

namespace lottolab::script {

namespace {

constexpr std::string_view kBom = "\xEF\xBB\xBF";
constexpr std::string_view kSeparatori = " \t,;\r";
constexpr int kMassimo = 90;

// What a bad line shows of itself: its start, printable bytes only.
std::string Estratto(std::string_view riga) {
  std::string mostrato;
  for (char c : riga.substr(0, 40)) mostrato += static_cast<unsigned char>(c) >= 0x20 ? c : '?';
  return riga.size() > 40 ? mostrato + "..." : mostrato;
}

}  // namespace

Esito<std::vector<ColonnaSistema>> LeggiTestoSistema(std::string_view testo, const std::filesystem::path& file) {
  if (testo.starts_with(kBom)) testo.remove_prefix(kBom.size());
  std::vector<ColonnaSistema> colonne;
  int numero_riga = 0;
  while (!testo.empty()) {
    const size_t fine = testo.find('\n');
    const std::string_view riga = testo.substr(0, fine);
    testo.remove_prefix(fine == std::string_view::npos ? testo.size() : fine + 1);
    ++numero_riga;
    const size_t inizio = riga.find_first_not_of(kSeparatori);
    if (inizio == std::string_view::npos || riga[inizio] == '#') continue;
    const auto rifiuto = [&](std::string_view perche) {
      return AvvisoEsclamativo(fmt::format("Il file {} non è un file di colonne di un sistema: riga {} ({}): {}",
                                           file.string(), numero_riga, Estratto(riga), perche));
    };
    ColonnaSistema colonna;
    std::bitset<kMassimo + 1> presente;
    std::string_view resto = riga.substr(inizio);
    while (!resto.empty()) {
      const size_t lungo = std::min(resto.find_first_of(kSeparatori), resto.size());
      const std::string_view parola = resto.substr(0, lungo);
      int n = 0;
      const auto [fine_numero, errore] = std::from_chars(parola.data(), parola.data() + parola.size(), n);
      if (errore != std::errc() || fine_numero != parola.data() + parola.size() || n < 1 || n > kMassimo)
        return rifiuto(fmt::format("\"{}\" non è un numero da 1 a 90", Estratto(parola)));
      if (presente.test(static_cast<size_t>(n))) return rifiuto(fmt::format("il numero {} è ripetuto", n));
      presente.set(static_cast<size_t>(n));
      colonna.push_back(n);
      resto.remove_prefix(lungo);
      const size_t prossimo = resto.find_first_not_of(kSeparatori);
      resto.remove_prefix(prossimo == std::string_view::npos ? resto.size() : prossimo);
    }
    colonne.push_back(std::move(colonna));
  }
  return colonne;
}

std::string RigaSistema(std::span<const int> colonna) { return fmt::format("{}\n", fmt::join(colonna, " ")); }

}  // namespace lottolab::script
