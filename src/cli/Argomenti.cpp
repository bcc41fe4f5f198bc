#include "Argomenti.h"

#include <algorithm>
#include <charconv>
#include <fmt/format.h>

#include "archive/DateEstrazione.h"
#include "archive/Ruote.h"

namespace lottolab::cli {

namespace {

std::optional<int> Intero(const std::string& testo) {
  int valore = 0;
  auto [fine, ec] = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
  if (ec != std::errc() || fine != testo.data() + testo.size() || testo.empty()) return std::nullopt;
  return valore;
}

std::vector<std::string> DividiVirgole(const std::string& testo) {
  std::vector<std::string> parti;
  size_t inizio = 0;
  for (;;) {
    size_t virgola = testo.find(',', inizio);
    parti.push_back(testo.substr(inizio, virgola == std::string::npos ? virgola : virgola - inizio));
    if (virgola == std::string::npos) return parti;
    inizio = virgola + 1;
  }
}

}  // namespace

Esito<Argomenti> SeparaArgomenti(const std::vector<std::string>& parole, const std::vector<std::string>& ammesse) {
  Argomenti argomenti;
  for (size_t i = 0; i < parole.size(); ++i) {
    const std::string& parola = parole[i];
    if (parola.size() > 2 && parola.starts_with("--")) {
      std::string nome = parola.substr(2);
      if (std::find(ammesse.begin(), ammesse.end(), nome) == ammesse.end())
        return AvvisoEsclamativo(fmt::format("opzione sconosciuta: {}", parola));
      if (i + 1 == parole.size()) return AvvisoEsclamativo(fmt::format("manca il valore dell'opzione {}", parola));
      argomenti.opzioni[nome] = parole[++i];
    } else {
      argomenti.parole.push_back(parola);
    }
  }
  return argomenti;
}

Esito<int> LeggiRuota(const std::string& testo) {
  if (auto ruota = RuotaDaSigla(testo)) return *ruota;
  return AvvisoEsclamativo(fmt::format("ruota sconosciuta: {} (usare BA CA FI GE MI NA PA RO TO VE NZ o TT)", testo));
}

Esito<std::vector<int>> LeggiRuote(const std::string& testo) {
  std::vector<int> ruote;
  for (const std::string& sigla : DividiVirgole(testo)) {
    auto ruota = LeggiRuota(sigla);
    if (!ruota) return ruota.Errore();
    if (std::find(ruote.begin(), ruote.end(), *ruota) == ruote.end()) ruote.push_back(*ruota);
  }
  return ruote;
}

Esito<int> LeggiNumero(const std::string& testo) {
  auto numero = Intero(testo);
  if (!numero || *numero < 1 || *numero > kMassimoNumero)
    return AvvisoEsclamativo(fmt::format("numero non valido: {} (deve essere tra 1 e 90)", testo));
  return *numero;
}

Esito<int> LeggiSorte(const std::string& testo) {
  auto sorte = Intero(testo);
  if (!sorte || *sorte < 1 || *sorte > 5)
    return AvvisoEsclamativo(fmt::format("sorte non valida: {} (deve essere tra 1 e 5)", testo));
  return *sorte;
}

Esito<stats::Posizioni> LeggiPosizioni(const std::string& testo) {
  stats::Posizioni posizioni{};
  for (const std::string& parte : DividiVirgole(testo)) {
    auto posizione = Intero(parte);
    if (!posizione || *posizione < 1 || *posizione > kNumeriPerRuota)
      return AvvisoEsclamativo(fmt::format("posizione non valida: {} (deve essere tra 1 e 5)", parte));
    posizioni[*posizione - 1] = true;
  }
  return posizioni;
}

namespace {

// A reference to a draw of either kind of table: the count, and the last draw on or before a date.
template <typename Tabella>
Esito<int> RiferimentoEstrazione(const Tabella& tabella, const std::string& testo) {
  if (testo.find('/') == std::string::npos) {
    auto indice = Intero(testo);
    if (!indice || !tabella.Contiene(*indice))
      return AvvisoEsclamativo(
          fmt::format("estrazione non trovata: {} (l'archivio ne contiene {})", testo, tabella.EstrazioniArchivio()));
    return *indice;
  }
  auto data = LeggiData(testo);
  if (!data) return data.Errore();
  if (data->mese < 1 || data->mese > 12 || data->giorno < 1 || data->giorno > 31)
    return AvvisoEsclamativo(fmt::format("data non valida: {}", testo));
  int indice = tabella.UltimaEstrazioneEntro(*data);
  if (indice == 0) return AvvisoEsclamativo(fmt::format("nessuna estrazione in archivio fino al {}", testo));
  return indice;
}

template <typename Tabella>
Esito<Intervallo> IntervalloDi(const Tabella& tabella, const Argomenti& argomenti) {
  Intervallo intervallo{1, tabella.EstrazioniArchivio()};
  if (auto it = argomenti.opzioni.find("inizio"); it != argomenti.opzioni.end()) {
    auto inizio = RiferimentoEstrazione(tabella, it->second);
    if (!inizio) return inizio.Errore();
    intervallo.inizio = *inizio;
  }
  if (auto it = argomenti.opzioni.find("fine"); it != argomenti.opzioni.end()) {
    auto fine = RiferimentoEstrazione(tabella, it->second);
    if (!fine) return fine.Errore();
    intervallo.fine = *fine;
  }
  if (intervallo.inizio > intervallo.fine)
    return AvvisoEsclamativo(
        fmt::format("intervallo vuoto: l'inizio ({}) viene dopo la fine ({})", intervallo.inizio, intervallo.fine));
  return intervallo;
}

}  // namespace

Esito<int> LeggiRiferimentoEstrazione(const TabellaEstrazioni& tabella, const std::string& testo) {
  return RiferimentoEstrazione(tabella, testo);
}

Esito<int> LeggiRiferimentoEstrazione(const TabellaGioco& tabella, const std::string& testo) {
  return RiferimentoEstrazione(tabella, testo);
}

Esito<Intervallo> LeggiIntervallo(const TabellaEstrazioni& tabella, const Argomenti& argomenti) {
  return IntervalloDi(tabella, argomenti);
}

Esito<Intervallo> LeggiIntervallo(const TabellaGioco& tabella, const Argomenti& argomenti) {
  return IntervalloDi(tabella, argomenti);
}

}  // namespace lottolab::cli
