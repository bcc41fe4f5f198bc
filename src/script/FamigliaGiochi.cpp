#include "FamigliaGiochi.h"

#include <fmt/format.h>

#include <deque>
#include <string>

#include "NomiPubblici.h"
#include "text/AsciiCase.h"

namespace lottolab::script {

namespace {

struct Declinazione {
  std::string_view suffisso;
  std::string_view numeri;
  std::string_view massimo;
};

constexpr std::array<Declinazione, kNumeroSuffissi> kDeclinazioni{{
    {"SE", "6", "90"},
    {"DL", "20", "90"},
    {"WF", "10", "20"},
    {"FT", "K", "M"},
}};

bool Pubblico(std::string_view nome) {
  for (const FamigliaDiNomi& famiglia : NomiPubblici())
    for (std::string_view pubblico : famiglia.nomi)
      if (text::LowerAscii(pubblico) == text::LowerAscii(nome)) return true;
  return false;
}

}  // namespace

std::vector<ClsFunctionsGeodoScript::Funzione> DeclinaPerGioco(
    std::span<const FunzioneDeiGiochi> funzioni, std::span<const ClsFunctionsGeodoScript::Funzione> altre) {
  // Rows point into these, which never move.
  static std::deque<std::string> testi;
  std::vector<ClsFunctionsGeodoScript::Funzione> righe;
  for (const FunzioneDeiGiochi& funzione : funzioni) {
    for (size_t s = 0; s < kDeclinazioni.size(); ++s) {
      const Declinazione& d = kDeclinazioni[s];
      std::string nome = std::string(funzione.radice) + std::string(d.suffisso);
      if (!Pubblico(nome)) continue;
      const std::string& nome_fisso = testi.emplace_back(std::move(nome));
      const auto declina = [&](std::string_view testo) -> std::string_view {
        return testi.emplace_back(fmt::format(fmt::runtime(testo), fmt::arg("n", d.numeri), fmt::arg("m", d.massimo),
                                              fmt::arg("s", d.suffisso)));
      };
      righe.push_back({nome_fisso, funzione.min_args, funzione.max_args, funzione.chiamate[s],
                       declina(funzione.descrizione), declina(funzione.restituisce), declina(funzione.esempio)});
    }
  }
  righe.insert(righe.end(), altre.begin(), altre.end());
  return righe;
}

}  // namespace lottolab::script
