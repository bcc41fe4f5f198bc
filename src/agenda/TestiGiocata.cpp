#include "TestiGiocata.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <charconv>

#include "Importi.h"
#include "archive/DateEstrazione.h"
#include "archive/Ruote.h"

namespace lottolab::agenda {

std::string TestoNumeri(const Giocata& giocata) {
  std::string testo;
  for (const auto& colonna : giocata.colonne)
    testo += fmt::format("{}{}", testo.empty() ? "" : " / ", fmt::join(colonna, "."));
  if (giocata.numero_speciale) testo += fmt::format(" +{}", giocata.numero_speciale);
  return testo;
}

std::string TestoRuote(const Giocata& giocata) {
  if (giocata.ruote.empty()) return "-";
  std::string testo;
  for (int ruota : giocata.ruote) testo += fmt::format("{}{}", testo.empty() ? "" : ",", SiglaRuota(ruota));
  return testo;
}

std::string TestoPoste(const Giocata& giocata) {
  std::string testo;
  for (const Posta& posta : giocata.poste)
    testo += fmt::format("{}{} {}", testo.empty() ? "" : " ", posta.sorte, FormattaImporto(posta.centesimi));
  if (!giocata.progressione.empty()) testo += fmt::format(" x{}", fmt::join(giocata.progressione, ","));
  return testo;
}

std::string TestoDal(const Giocata& giocata) {
  if (giocata.dal) return FormattaData(*giocata.dal);
  return fmt::format("estr. {}", giocata.id_estr_dal.value_or(0));
}

std::string TestoVincita(const VincitaColpo& vincita) {
  std::string testo = vincita.sorte;
  if (!vincita.numeri.empty()) testo += fmt::format(" {}", fmt::join(vincita.numeri, "."));
  if (vincita.ruota != 0) testo += fmt::format(" su {}", SiglaRuota(vincita.ruota));
  testo += fmt::format(" ({}), ", vincita.combinazioni);
  return testo + (vincita.importo_noto ? "lordo " + FormattaImporto(vincita.lordo) : std::string("importo non noto"));
}

Esito<std::vector<std::vector<int>>> LeggiColonne(std::string_view testo) {
  std::vector<std::vector<int>> colonne(1);
  size_t i = 0;
  while (i < testo.size()) {
    const char c = testo[i];
    if (c == '/' || c == ';' || c == '\n') {
      if (!colonne.back().empty()) colonne.emplace_back();
      ++i;
    } else if (c == ' ' || c == ',' || c == '.' || c == '\t' || c == '\r') {
      ++i;
    } else {
      int numero = 0;
      auto [fine, ec] = std::from_chars(testo.data() + i, testo.data() + testo.size(), numero);
      const size_t letti = static_cast<size_t>(fine - (testo.data() + i));
      if (ec != std::errc() || letti == 0 || numero < 0) {
        size_t parola = i;
        while (parola < testo.size() && std::string_view(" ,./;\n\t").find(testo[parola]) == std::string_view::npos)
          ++parola;
        return AvvisoEsclamativo(fmt::format("numero non valido: {}", testo.substr(i, parola - i)));
      }
      colonne.back().push_back(numero);
      i += letti;
    }
  }
  if (colonne.back().empty()) colonne.pop_back();
  if (colonne.empty()) return AvvisoEsclamativo("mancano i numeri della giocata");
  return colonne;
}

}  // namespace lottolab::agenda
