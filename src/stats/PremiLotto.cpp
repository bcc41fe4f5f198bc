#include "PremiLotto.h"

#include <algorithm>
#include <bitset>
#include <fmt/format.h>
#include <set>
#include <utility>

#include "Combinazioni.h"
#include "archive/DateEstrazione.h"
#include "archive/Ruote.h"

namespace lottolab::stats {

namespace {

int Precedente(int n) { return n == 1 ? kMassimoNumero : n - 1; }
int Seguente(int n) { return n == kMassimoNumero ? 1 : n + 1; }

// Each ambetto combination as (played number, neighbour of another played number); the pair never
// repeats the other way round, since a neighbour is never a played number.
std::set<std::pair<int, int>> CoppieAmbetto(std::span<const int> numeri) {
  std::bitset<kMassimoNumero + 1> giocato;
  for (int n : numeri) giocato.set(static_cast<size_t>(n));
  std::set<std::pair<int, int>> coppie;
  for (int x : numeri)
    for (int y : numeri) {
      if (x == y) continue;
      for (int vicino : {Precedente(y), Seguente(y)})
        if (!giocato.test(static_cast<size_t>(vicino))) coppie.emplace(x, vicino);
    }
  return coppie;
}

int64_t VinteAmbetto(const std::set<std::pair<int, int>>& coppie, const CinquinaRuota& estratti) {
  const auto presente = [&](int n) { return std::ranges::find(estratti, n) != estratti.end(); };
  return std::ranges::count_if(coppie,
                               [&](const auto& coppia) { return presente(coppia.first) && presente(coppia.second); });
}

int64_t Intero(double combinazioni) { return static_cast<int64_t>(combinazioni + 0.5); }

int Presenti(std::span<const int> numeri, const CinquinaRuota& estratti) {
  return static_cast<int>(
      std::ranges::count_if(numeri, [&](int n) { return std::ranges::find(estratti, n) != estratti.end(); }));
}

}  // namespace

CinquinaRuota NumeriRuota(const Estrazione& estrazione, int ruota) {
  CinquinaRuota numeri{};
  for (int p = 1; p <= kNumeriPerRuota; ++p) numeri[static_cast<size_t>(p - 1)] = estrazione.Numero(ruota, p);
  return numeri;
}

std::vector<int> RuoteGiocate(std::span<const int> ruote) {
  std::vector<int> giocate;
  auto aggiungi = [&](int r) {
    if (std::ranges::find(giocate, r) == giocate.end()) giocate.push_back(r);
  };
  for (int r : ruote) {
    if (r == kTutteLeRuote)
      for (int citta = BA; citta <= VE; ++citta) aggiungi(citta);
    else
      aggiungi(r);
  }
  return giocate;
}

Esito<Fatto> ControllaPuntata(const PuntataLotto& puntata, const GruppoData& data) {
  const std::string_view nome = NomeSorte(puntata.sorte);
  const int massimo = LimitiPosteLotto().massimo_numeri;
  const int quanti = static_cast<int>(puntata.numeri.size());
  if (!MoltiplicatoreLotto(puntata.sorte, data))
    return AvvisoEsclamativo(fmt::format("la sorte {} non si giocava il {}", nome, FormattaData(data)));
  for (size_t i = 0; i < puntata.numeri.size(); ++i) {
    const int n = puntata.numeri[i];
    if (n < 1 || n > kMassimoNumero) return AvvisoEsclamativo(fmt::format("numero non valido: {} (da 1 a 90)", n));
    if (std::find(puntata.numeri.begin(), puntata.numeri.begin() + static_cast<std::ptrdiff_t>(i), n) !=
        puntata.numeri.begin() + static_cast<std::ptrdiff_t>(i))
      return AvvisoEsclamativo(fmt::format("il numero {} è giocato due volte", n));
  }
  const int minimo = std::max(1, NumeriDellaSorte(puntata.sorte));
  if (quanti < minimo || quanti > massimo)
    return AvvisoEsclamativo(
        fmt::format("per la sorte {} si giocano da {} a {} numeri, non {}", nome, minimo, massimo, quanti));
  if (puntata.ruote.empty()) return AvvisoEsclamativo("nessuna ruota giocata");
  for (int r : puntata.ruote)
    if (r < 1 || r > kNumeroRuote) return AvvisoEsclamativo(fmt::format("ruota non valida: {}", r));
  const bool determinato = puntata.sorte == SorteLotto::EstrattoDeterminato;
  if (determinato && (puntata.posizione < 1 || puntata.posizione > kNumeriPerRuota))
    return AvvisoEsclamativo("per l'estratto determinato serve la posizione, da 1 a 5");
  if (!determinato && puntata.posizione != 0)
    return AvvisoEsclamativo(
        fmt::format("la posizione vale solo per l'estratto determinato, non per la sorte {}", nome));
  const PosteLotto& poste = LimitiPosteLotto();
  if (puntata.posta < poste.minima_sorte || puntata.posta > poste.massima_biglietto)
    return AvvisoEsclamativo(fmt::format("la posta sulla sorte {} va da {} a {} euro, non {}", nome,
                                         FormattaEuro(poste.minima_sorte), FormattaEuro(poste.massima_biglietto),
                                         FormattaEuro(puntata.posta)));
  if (puntata.sorte == SorteLotto::Ambetto && CombinazioniAmbetto(puntata.numeri) == 0)
    return AvvisoEsclamativo("questi numeri non formano nessun ambetto");
  return Fatto{};
}

Esito<Fatto> ControllaBiglietto(Centesimi totale) {
  const PosteLotto& poste = LimitiPosteLotto();
  if (totale < poste.minima_biglietto || totale > poste.massima_biglietto || totale % poste.passo_biglietto != 0)
    return AvvisoEsclamativo(fmt::format("la giocata costa {} euro: un biglietto va da {} a {} euro, a multipli di {}",
                                         FormattaEuro(totale), FormattaEuro(poste.minima_biglietto),
                                         FormattaEuro(poste.massima_biglietto), FormattaEuro(poste.passo_biglietto)));
  return Fatto{};
}

int CombinazioniAmbetto(std::span<const int> numeri) { return static_cast<int>(CoppieAmbetto(numeri).size()); }

int64_t CombinazioniGiocate(const PuntataLotto& puntata) {
  const int n = static_cast<int>(puntata.numeri.size());
  switch (puntata.sorte) {
    case SorteLotto::Ambetto: return CombinazioniAmbetto(puntata.numeri);
    case SorteLotto::EstrattoDeterminato: return n;
    default: return Intero(Combinazioni(n, NumeriDellaSorte(puntata.sorte)));
  }
}

Centesimi PremioPerCombinazione(const PuntataLotto& puntata, const GruppoData& data) {
  const Centesimi moltiplicatore = MoltiplicatoreLotto(puntata.sorte, data).value_or(0);
  const int64_t divisore =
      kCentesimiPerEuro * static_cast<int64_t>(puntata.ruote.size()) * CombinazioniGiocate(puntata);
  return ArrotondaMetaInSu(moltiplicatore * puntata.posta, divisore);
}

int64_t CombinazioniVincenti(const PuntataLotto& puntata, const CinquinaRuota& estratti) {
  switch (puntata.sorte) {
    case SorteLotto::EstrattoDeterminato: {
      const int uscito = estratti[static_cast<size_t>(puntata.posizione - 1)];
      return uscito != 0 && std::ranges::find(puntata.numeri, uscito) != puntata.numeri.end() ? 1 : 0;
    }
    case SorteLotto::Ambetto: return VinteAmbetto(CoppieAmbetto(puntata.numeri), estratti);
    default: return Intero(Combinazioni(Presenti(puntata.numeri, estratti), NumeriDellaSorte(puntata.sorte)));
  }
}

std::vector<EsitoPossibile> EsitiPossibili(const PuntataLotto& puntata) {
  std::vector<EsitoPossibile> esiti;
  if (puntata.sorte == SorteLotto::EstrattoDeterminato) return {{1, 1}};
  if (puntata.sorte != SorteLotto::Ambetto) {
    const int k = NumeriDellaSorte(puntata.sorte);
    const int massimo = std::min(static_cast<int>(puntata.numeri.size()), kNumeriPerRuota);
    for (int m = k; m <= massimo; ++m) esiti.push_back({m, Intero(Combinazioni(m, k))});
    return esiti;
  }
  // A winning ambetto needs only the played numbers and their neighbours: every group of up to five
  // of those (at most thirty numbers), the rest of the wheel drawn elsewhere, shows every count of
  // combinations one wheel can give.
  std::vector<int> candidati(puntata.numeri);
  for (int n : puntata.numeri)
    for (int vicino : {Precedente(n), Seguente(n)})
      if (std::ranges::find(candidati, vicino) == candidati.end()) candidati.push_back(vicino);
  const auto coppie = CoppieAmbetto(puntata.numeri);
  std::set<int64_t> conteggi;
  const int quanti = static_cast<int>(candidati.size());
  for (int k = 2; k <= std::min(quanti, kNumeriPerRuota); ++k) {
    SviluppoCombinazioni gruppi(quanti, k);
    while (gruppi.Avanza()) {
      CinquinaRuota estratti{};
      for (size_t i = 0; i < gruppi.Gruppo().size(); ++i)
        estratti[i] = candidati[static_cast<size_t>(gruppi.Gruppo()[i])];
      if (int64_t vinte = VinteAmbetto(coppie, estratti); vinte > 0) conteggi.insert(vinte);
    }
  }
  for (int64_t c : conteggi) esiti.push_back({static_cast<int>(c), c});
  return esiti;
}

Tassato TassaVincitaLotto(Centesimi lordo, const GruppoData& data) {
  if (auto massima = VincitaMassimaBiglietto(data)) lordo = std::min(lordo, *massima);
  const Centesimi ritenuta = Percentuale(lordo, RitenutaLotto(data));
  return {lordo, ritenuta, lordo - ritenuta};
}

}  // namespace lottolab::stats
