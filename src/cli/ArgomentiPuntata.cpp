#include "ArgomentiPuntata.h"

#include <algorithm>

#include <fmt/format.h>

#include "archive/DateEstrazione.h"

namespace lottolab::cli {

namespace {

Esito<stats::SorteLotto> LeggiSorteLotto(const std::string& testo) {
  if (auto sorte = stats::SorteDaNome(testo)) return *sorte;
  return AvvisoEsclamativo(
      fmt::format("sorte non valida: {} (estratto, ambo, terno, quaterna, cinquina, determinato, ambetto)", testo));
}

}  // namespace

std::string Opzione(const Argomenti& argomenti, const std::string& nome, const std::string& predefinito) {
  auto it = argomenti.opzioni.find(nome);
  return it == argomenti.opzioni.end() ? predefinito : it->second;
}

Esito<std::vector<int>> LeggiNumeri(const std::string& testo) {
  std::vector<int> numeri;
  size_t inizio = 0;
  while (inizio <= testo.size()) {
    size_t virgola = testo.find(',', inizio);
    auto numero = LeggiNumero(testo.substr(inizio, virgola == std::string::npos ? virgola : virgola - inizio));
    if (!numero) return numero.Errore();
    numeri.push_back(*numero);
    if (virgola == std::string::npos) break;
    inizio = virgola + 1;
  }
  return numeri;
}

Esito<GruppoData> LeggiDataPremio(const std::string& testo) {
  if (testo.empty()) return DataOdierna();
  auto data = LeggiData(testo);
  if (!data || !DataValida(*data)) return AvvisoEsclamativo(fmt::format("data non valida: {} (GG/MM/AAAA)", testo));
  return *data;
}

Esito<stats::PuntataLotto> LeggiPuntata(const Argomenti& argomenti, const GruppoData& data,
                                        std::optional<std::vector<int>> numeri) {
  for (const char* richiesta : {"sorte", "numeri", "ruote", "posta"})
    if (!argomenti.opzioni.contains(richiesta) && !(numeri && std::string_view(richiesta) == "numeri"))
      return AvvisoEsclamativo(fmt::format("manca l'opzione --{}", richiesta));
  auto sorte = LeggiSorteLotto(Opzione(argomenti, "sorte"));
  if (!sorte) return sorte.Errore();
  if (!numeri) {
    auto letti = LeggiNumeri(Opzione(argomenti, "numeri"));
    if (!letti) return letti.Errore();
    numeri = std::move(*letti);
  }
  auto ruote = LeggiRuote(Opzione(argomenti, "ruote"));
  if (!ruote) return ruote.Errore();
  auto posta = stats::LeggiEuro(Opzione(argomenti, "posta"));
  if (!posta) return posta.Errore();
  stats::PuntataLotto puntata{*sorte, std::move(*numeri), stats::RuoteGiocate(*ruote), *posta, 0};
  if (const std::string posizione = Opzione(argomenti, "posizione"); !posizione.empty()) {
    auto letta = LeggiPosizioni(posizione);
    if (!letta || std::ranges::count(*letta, true) != 1)
      return AvvisoEsclamativo(fmt::format("posizione non valida: {} (una sola, da 1 a 5)", posizione));
    puntata.posizione = static_cast<int>(std::ranges::find(*letta, true) - letta->begin()) + 1;
  }
  auto controllo = stats::ControllaPuntata(puntata, data);
  if (!controllo) return controllo.Errore();
  return puntata;
}

}  // namespace lottolab::cli
