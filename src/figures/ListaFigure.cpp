#include "ListaFigure.h"

#include <fmt/format.h>

#include <charconv>
#include <optional>

namespace lottolab::figures {

namespace {

constexpr std::string_view kIntestazione = "lottolab-efu ";
constexpr std::string_view kSeparatore = " | ";

std::string_view SenzaSpazi(std::string_view testo) {
  while (!testo.empty() && (testo.front() == ' ' || testo.front() == '\t')) testo.remove_prefix(1);
  while (!testo.empty() && (testo.back() == ' ' || testo.back() == '\t' || testo.back() == '\r'))
    testo.remove_suffix(1);
  return testo;
}

std::optional<int> Intero(std::string_view testo, int minimo, int massimo) {
  int valore = 0;
  const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
  if (errore != std::errc() || fine != testo.data() + testo.size() || valore < minimo || valore > massimo)
    return std::nullopt;
  return valore;
}

std::vector<std::string_view> Dividi(std::string_view testo, std::string_view separatore) {
  std::vector<std::string_view> parti;
  for (size_t inizio = 0;;) {
    const size_t fine = testo.find(separatore, inizio);
    parti.push_back(testo.substr(inizio, fine == std::string_view::npos ? std::string_view::npos : fine - inizio));
    if (fine == std::string_view::npos) return parti;
    inizio = fine + separatore.size();
  }
}

// Whole numbers separated by blanks, each in minimo..massimo; an empty text is an empty list.
std::optional<std::vector<int>> Interi(std::string_view testo, int minimo, int massimo) {
  std::vector<int> valori;
  for (std::string_view parte : Dividi(SenzaSpazi(testo), " ")) {
    if (parte.empty()) continue;
    auto valore = Intero(parte, minimo, massimo);
    if (!valore) return std::nullopt;
    valori.push_back(*valore);
  }
  return valori;
}

constexpr int kMassimoId = 10'000'000;

std::optional<FiguraSalvata> Figura(std::string_view riga) {
  const auto campi = Dividi(riga, kSeparatore);
  if (campi.size() != 4) return std::nullopt;
  FiguraSalvata figura;
  auto estrazione = Intero(SenzaSpazi(campi[0]), 1, kMassimoId);
  auto ruote = Interi(campi[1], 1, 11);
  auto giocati = Interi(campi[3], 1, 90);
  if (!estrazione || !ruote || !giocati) return std::nullopt;
  figura.estrazione = *estrazione;
  figura.ruote = std::move(*ruote);
  figura.giocati = std::move(*giocati);
  for (std::string_view vertice : Dividi(SenzaSpazi(campi[2]), " ")) {
    const auto parti = Dividi(vertice, ".");
    if (parti.size() != 4) return std::nullopt;
    auto id = Intero(parti[0], 1, kMassimoId);
    auto ruota = Intero(parti[1], 1, 11);
    auto posizione = Intero(parti[2], 1, 5);
    auto numero = Intero(parti[3], 1, 90);
    if (!id || !ruota || !posizione || !numero) return std::nullopt;
    figura.vertici.push_back({*id, *ruota, *posizione, *numero});
  }
  return figura;
}

std::optional<EsitoSalvato> EsitoLetto(std::string_view riga) {
  const auto campi = Dividi(riga, kSeparatore);
  if (campi.size() != 4) return std::nullopt;
  EsitoSalvato esito;
  auto figura = Intero(SenzaSpazi(campi[0]), 1, kMassimoId);
  auto seguita = Intero(SenzaSpazi(campi[1]), 0, kMassimoId);
  const std::string_view stato = SenzaSpazi(campi[3]);
  if (!figura || !seguita || (stato != "aperta" && stato != "chiusa")) return std::nullopt;
  esito.figura = *figura;
  esito.seguita_fino_a = *seguita;
  esito.chiusa = stato == "chiusa";
  for (std::string_view vincita : Dividi(SenzaSpazi(campi[2]), " ")) {
    if (vincita.empty()) continue;
    const auto parti = Dividi(vincita, "@");
    if (parti.size() != 2) return std::nullopt;
    auto sorte = Intero(parti[0], 1, 10);
    auto id = Intero(parti[1], 1, kMassimoId);
    if (!sorte || !id) return std::nullopt;
    esito.vincite.push_back({*sorte, *id});
  }
  return esito;
}

std::string Elenco(const std::vector<int>& valori) {
  std::string testo;
  for (int valore : valori) testo += (testo.empty() ? "" : " ") + std::to_string(valore);
  return testo;
}

}  // namespace

uint64_t ImprontaFile(std::string_view byte) {
  uint64_t impronta = 0xcbf29ce484222325ULL;
  for (unsigned char c : byte) impronta = (impronta ^ c) * 0x100000001b3ULL;
  return impronta;
}

Esito<ListaFigure> LeggiListaFigure(std::string_view testo, std::string_view file) {
  const auto rifiuto = [file](size_t riga, std::string_view motivo) {
    return Avviso{TipoAvviso::Critico, "", fmt::format("File {} non valido: riga {}: {}", file, riga, motivo)};
  };
  const auto righe = Dividi(testo, "\n");
  const std::string_view prima = righe.empty() ? std::string_view() : SenzaSpazi(righe[0]);
  if (!prima.starts_with(kIntestazione))
    return rifiuto(1, "non è una lista di figure trovate (manca \"lottolab-efu\")");
  const auto versione = Intero(prima.substr(kIntestazione.size()), 1, 1'000);
  if (!versione) return rifiuto(1, "versione non leggibile");
  if (*versione > kVersioneListaFigure)
    return rifiuto(1, fmt::format("scritto da una versione più recente del programma (formato {})", *versione));

  ListaFigure lista;
  std::string sezione;
  for (size_t n = 1; n < righe.size(); ++n) {
    const std::string_view riga = SenzaSpazi(righe[n]);
    const size_t numero_riga = n + 1;
    if (riga.empty()) continue;
    if (riga.front() == '[' && riga.back() == ']') {
      sezione = std::string(riga.substr(1, riga.size() - 2));
      continue;
    }
    if (sezione.empty()) return rifiuto(numero_riga, "una riga fuori da ogni sezione");
    if (sezione == "FIG") {
      const size_t uguale = riga.find('=');
      const std::string_view chiave = riga.substr(0, uguale);
      const std::string_view valore = uguale == std::string_view::npos ? "" : riga.substr(uguale + 1);
      if (chiave == "struttura") {
        lista.struttura = std::string(valore);
      } else if (chiave == "impronta") {
        const auto [fine, errore] = std::from_chars(valore.data(), valore.data() + valore.size(), lista.impronta, 16);
        if (errore != std::errc() || fine != valore.data() + valore.size())
          return rifiuto(numero_riga, "impronta non leggibile");
      } else if (chiave == "intervallo") {
        const auto estremi = Dividi(valore, "-");
        auto inizio = estremi.size() == 2 ? Intero(estremi[0], 1, kMassimoId) : std::nullopt;
        auto fine = estremi.size() == 2 ? Intero(estremi[1], 1, kMassimoId) : std::nullopt;
        if (!inizio || !fine || *inizio > *fine) return rifiuto(numero_riga, "intervallo non leggibile");
        lista.inizio = *inizio;
        lista.fine = *fine;
      } else if (chiave == "ruote") {
        auto ruote = Interi(valore, 1, 11);
        if (!ruote) return rifiuto(numero_riga, "ruote non leggibili");
        lista.ruote = std::move(*ruote);
      } else {
        lista.sconosciute.push_back({sezione, std::string(riga)});
      }
    } else if ((sezione == "TRO" || sezione == "ESP") && riga.front() >= '0' && riga.front() <= '9') {
      if (sezione == "TRO") {
        auto figura = Figura(riga);
        if (!figura) return rifiuto(numero_riga, "figura trovata non leggibile");
        lista.trovate.push_back(std::move(*figura));
      } else {
        auto esito = EsitoLetto(riga);
        if (!esito) return rifiuto(numero_riga, "esito non leggibile");
        lista.esiti.push_back(std::move(*esito));
      }
    } else {
      lista.sconosciute.push_back({sezione, std::string(riga)});
    }
  }
  for (const EsitoSalvato& esito : lista.esiti)
    if (esito.figura > static_cast<int>(lista.trovate.size()))
      return Avviso{
          TipoAvviso::Critico, "",
          fmt::format("File {} non valido: l'esito della figura {} non ha la sua figura in [TRO]", file, esito.figura)};
  return lista;
}

std::string TestoListaFigure(const ListaFigure& lista) {
  std::string testo = fmt::format("{}{}\n[FIG]\n", kIntestazione, kVersioneListaFigure);
  testo += fmt::format("struttura={}\nimpronta={:016x}\nintervallo={}-{}\nruote={}\n", lista.struttura, lista.impronta,
                       lista.inizio, lista.fine, Elenco(lista.ruote));
  const auto sconosciute = [&](std::string_view sezione) {
    for (const RigaSconosciuta& riga : lista.sconosciute)
      if (riga.sezione == sezione) testo += riga.testo + "\n";
  };
  sconosciute("FIG");
  testo += "[TRO]\n";
  for (const FiguraSalvata& figura : lista.trovate) {
    std::string vertici;
    for (const VerticeTrovato& v : figura.vertici)
      vertici += fmt::format("{}{}.{}.{}.{}", vertici.empty() ? "" : " ", v.id_estr, v.ruota, v.posizione, v.numero);
    testo +=
        fmt::format("{} | {} | {} | {}\n", figura.estrazione, Elenco(figura.ruote), vertici, Elenco(figura.giocati));
  }
  sconosciute("TRO");
  testo += "[ESP]\n";
  for (const EsitoSalvato& esito : lista.esiti) {
    std::string vincite;
    for (const VincitaFigura& v : esito.vincite)
      vincite += fmt::format("{}{}@{}", vincite.empty() ? "" : " ", v.sorte, v.id_estr);
    testo += fmt::format("{} | {} | {} | {}\n", esito.figura, esito.seguita_fino_a, vincite,
                         esito.chiusa ? "chiusa" : "aperta");
  }
  sconosciute("ESP");
  std::string altra;
  for (const RigaSconosciuta& riga : lista.sconosciute) {
    if (riga.sezione == "FIG" || riga.sezione == "TRO" || riga.sezione == "ESP") continue;
    if (riga.sezione != altra) testo += "[" + riga.sezione + "]\n";
    altra = riga.sezione;
    testo += riga.testo + "\n";
  }
  return testo;
}

}  // namespace lottolab::figures
