// The draws of the range in which a group of numbers wins the sorte on a played wheel are the group's
// events; a combination of the group is then measured in events rather than draws. Its relative delay
// is its delay over the table made of the event draws alone, by the rules of Ritardi.h, and its
// maximum relative delay the historical maximum over that table.
//
// The plain forms walk the table of events at each call; the Turbo forms answer from the figures of
// every combination, computed once by InitCalcoloRitRelTurbo.

#include <fmt/format.h>

#include <algorithm>
#include <numeric>
#include <optional>
#include <vector>

#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "RitardoConRegola.h"
#include "stats/Ritardi.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

struct GruppoRelativo {
  std::vector<int> ruote;
  std::vector<int> numeri;  // sorted, each once
  int sorte = 1;
  TabellaEstrazioni eventi;
};

// Beyond this many combinations the Turbo table would take more memory than a script should.
constexpr int64_t kMassimoCombinazioniTurbo = 3'000'000;

// The figures of every combination of the group, in the order of CombinazioneIndice.
struct TabellaRelativa {
  GruppoRelativo gruppo;
  std::vector<int> ritardo;
  std::vector<int> massimo;
};

struct StatoRitardiRelativi {
  std::optional<GruppoRelativo> semplice;
  std::optional<TabellaRelativa> turbo;
};

TabellaEstrazioni EstrazioniVincenti(const TabellaEstrazioni& tab, const GruppoRelativo& gruppo,
                                     Intervallo intervallo) {
  const std::vector<int> frequenze = stats::SerieFreq(tab, gruppo.ruote, gruppo.numeri, gruppo.sorte, intervallo.fine,
                                                      stats::kTuttePosizioni, intervallo.inizio);
  std::vector<Estrazione> eventi;
  int precedente = 0;
  for (size_t i = 0; i < frequenze.size(); ++i) {
    if (frequenze[i] > precedente) eventi.push_back(tab[intervallo.inizio + static_cast<int>(i)]);
    precedente = frequenze[i];
  }
  return TabellaEstrazioni(std::move(eventi));
}

Result<GruppoRelativo> GruppoArgomenti(const TabellaEstrazioni& tab, const CallArgs& args) {
  GruppoRelativo gruppo;
  VBS_TRY_ASSIGN(auto ruote, RuoteGiocate(args, 0));
  gruppo.ruote = std::move(ruote);
  VBS_TRY_ASSIGN(auto numeri, NumeriArgomento(args, 1));
  std::sort(numeri.begin(), numeri.end());
  numeri.erase(std::unique(numeri.begin(), numeri.end()), numeri.end());
  gruppo.numeri = std::move(numeri);
  VBS_TRY_ASSIGN(auto sorte, SorteArgomento(args, 2));
  gruppo.sorte = sorte;
  if (static_cast<int>(gruppo.numeri.size()) < gruppo.sorte) {
    return ArgomentoNonValido(
        fmt::format("Il gruppo ha {} numeri diversi, meno della sorte {}", gruppo.numeri.size(), gruppo.sorte));
  }
  VBS_TRY_ASSIGN(auto intervallo, IntervalloArgomento(tab, args, 3, 4));
  gruppo.eventi = EstrazioniVincenti(tab, gruppo, intervallo);
  return gruppo;
}

// The combination of argument 0: exactly Sorte different numbers of the group, sorted.
Result<std::vector<int>> CombinazioneArgomento(const CallArgs& args, const GruppoRelativo& gruppo) {
  VBS_TRY_ASSIGN(auto numeri, NumeriArgomento(args, 0));
  std::sort(numeri.begin(), numeri.end());
  const bool diversi = std::adjacent_find(numeri.begin(), numeri.end()) == numeri.end();
  if (static_cast<int>(numeri.size()) != gruppo.sorte || !diversi) {
    return ArgomentoNonValido(fmt::format("La combinazione deve avere {} numeri diversi", gruppo.sorte));
  }
  for (int numero : numeri) {
    if (!std::binary_search(gruppo.numeri.begin(), gruppo.numeri.end(), numero))
      return ArgomentoNonValido(fmt::format("Il numero {} non fa parte del gruppo", numero));
  }
  return numeri;
}

vbs::ScriptError GruppoNonPreparato(std::string_view init) {
  return ArgomentoNonValido(fmt::format("Nessun gruppo preparato: chiamare prima {}", init));
}

Result<Variant> InitCalcoloRitRel(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto gruppo, GruppoArgomenti(*archivio, args));
  const int eventi = gruppo.eventi.EstrazioniArchivio();
  lib.Stato<StatoRitardiRelativi>().semplice = std::move(gruppo);
  return Variant::Long(eventi);
}

template <int (*Statistica)(const TabellaEstrazioni&, std::span<const int>, std::span<const int>, int, int,
                            const stats::Posizioni&, int)>
Result<Variant> RitardoRelativo(Libreria& lib, CallArgs& args) {
  const auto& gruppo = lib.Stato<StatoRitardiRelativi>().semplice;
  if (!gruppo) return GruppoNonPreparato("InitCalcoloRitRel");
  VBS_TRY_ASSIGN(auto combinazione, CombinazioneArgomento(args, *gruppo));
  return Variant::Long(Statistica(gruppo->eventi, gruppo->ruote, combinazione, gruppo->sorte,
                                  gruppo->eventi.EstrazioniArchivio(), stats::kTuttePosizioni, 1));
}

Result<Variant> ResetRitardoRel(Libreria& lib, CallArgs&) {
  lib.Stato<StatoRitardiRelativi>().semplice.reset();
  return Variant();
}

// ---- Relative delays, Turbo ----

// C(n, k), or a value above kMassimoCombinazioniTurbo when it is larger.
int64_t Combinazioni(int n, int k) {
  int64_t c = 1;
  for (int i = 1; i <= k; ++i) {
    c = c * (n - k + i) / i;
    if (c > kMassimoCombinazioniTurbo) return kMassimoCombinazioniTurbo + 1;
  }
  return c;
}

// The place of a combination, given as increasing places 0..n-1 in the group, among the group's
// combinations of its size in colexicographic order.
int64_t CombinazioneIndice(std::span<const int> posti) {
  int64_t indice = 0;
  for (size_t i = 0; i < posti.size(); ++i) indice += Combinazioni(posti[i], static_cast<int>(i) + 1);
  return indice;
}

// Calls visita with the place of every combination of `sorte` elements of `posti`.
template <typename Visita>
void OgniCombinazione(std::span<const int> posti, int sorte, Visita visita) {
  std::vector<int> scelti(static_cast<size_t>(sorte));
  std::vector<int> indici(static_cast<size_t>(sorte));
  std::iota(indici.begin(), indici.end(), 0);
  const int n = static_cast<int>(posti.size());
  while (true) {
    for (int i = 0; i < sorte; ++i)
      scelti[static_cast<size_t>(i)] = posti[static_cast<size_t>(indici[static_cast<size_t>(i)])];
    visita(CombinazioneIndice(scelti));
    int i = sorte - 1;
    while (i >= 0 && indici[static_cast<size_t>(i)] == n - sorte + i) --i;
    if (i < 0) return;
    ++indici[static_cast<size_t>(i)];
    for (int j = i + 1; j < sorte; ++j) indici[static_cast<size_t>(j)] = indici[static_cast<size_t>(j - 1)] + 1;
  }
}

// The places in the group of the numbers drawn on one wheel of an event.
std::vector<int> PostiEstratti(const Estrazione& estrazione, int ruota, const std::vector<int>& numeri) {
  std::vector<int> posti;
  for (int p = 1; p <= kNumeriPerRuota; ++p) {
    auto trovato = std::lower_bound(numeri.begin(), numeri.end(), int{estrazione.Numero(ruota, p)});
    if (trovato != numeri.end() && *trovato == estrazione.Numero(ruota, p))
      posti.push_back(static_cast<int>(trovato - numeri.begin()));
  }
  std::sort(posti.begin(), posti.end());
  posti.erase(std::unique(posti.begin(), posti.end()), posti.end());
  return posti;
}

// One walk of the events: each combination's latest win and longest closed run, in counted events,
// as the delay rules of Ritardi.h count draws.
TabellaRelativa CalcolaTabellaRelativa(GruppoRelativo gruppo, int64_t combinazioni) {
  TabellaRelativa tabella;
  const std::vector<int> ruote = RuoteSingole(gruppo.ruote);
  const int quanti_eventi = gruppo.eventi.EstrazioniArchivio();
  // contati[k]: counted events among the first k.
  std::vector<int> contati(static_cast<size_t>(quanti_eventi) + 1, 0);
  std::vector<int> ultima(static_cast<size_t>(combinazioni), 0);  // 1-based event of the latest win, 0 none
  tabella.massimo.assign(static_cast<size_t>(combinazioni), 0);
  for (int k = 1; k <= quanti_eventi; ++k) {
    const Estrazione& evento = gruppo.eventi[k];
    const bool contato = std::any_of(ruote.begin(), ruote.end(), [&](int r) { return evento.RuotaEstratta(r); });
    contati[static_cast<size_t>(k)] = contati[static_cast<size_t>(k - 1)] + (contato ? 1 : 0);
    for (int ruota : ruote) {
      const std::vector<int> posti = PostiEstratti(evento, ruota, gruppo.numeri);
      if (static_cast<int>(posti.size()) < gruppo.sorte) continue;
      OgniCombinazione(posti, gruppo.sorte, [&](int64_t c) {
        int& da = ultima[static_cast<size_t>(c)];
        if (da == k) return;
        const int chiuso = contati[static_cast<size_t>(k - 1)] - contati[static_cast<size_t>(da)];
        tabella.massimo[static_cast<size_t>(c)] = std::max(tabella.massimo[static_cast<size_t>(c)], chiuso);
        da = k;
      });
    }
  }
  tabella.ritardo.resize(static_cast<size_t>(combinazioni));
  for (size_t c = 0; c < tabella.ritardo.size(); ++c) {
    tabella.ritardo[c] = contati.back() - contati[static_cast<size_t>(ultima[c])];
    tabella.massimo[c] = std::max(tabella.massimo[c], tabella.ritardo[c]);
  }
  tabella.gruppo = std::move(gruppo);
  return tabella;
}

Result<Variant> InitCalcoloRitRelTurbo(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto gruppo, GruppoArgomenti(*archivio, args));
  const int64_t combinazioni = Combinazioni(static_cast<int>(gruppo.numeri.size()), gruppo.sorte);
  if (combinazioni > kMassimoCombinazioniTurbo) {
    return ArgomentoNonValido(
        fmt::format("Troppe combinazioni per la tabella Turbo (al massimo {})", kMassimoCombinazioniTurbo));
  }
  const int eventi = gruppo.eventi.EstrazioniArchivio();
  lib.Stato<StatoRitardiRelativi>().turbo = CalcolaTabellaRelativa(std::move(gruppo), combinazioni);
  return Variant::Long(eventi);
}

template <std::vector<int> TabellaRelativa::*Figura>
Result<Variant> RitardoRelativoTurbo(Libreria& lib, CallArgs& args) {
  const auto& tabella = lib.Stato<StatoRitardiRelativi>().turbo;
  if (!tabella) return GruppoNonPreparato("InitCalcoloRitRelTurbo");
  const std::vector<int>& numeri = tabella->gruppo.numeri;
  VBS_TRY_ASSIGN(auto combinazione, CombinazioneArgomento(args, tabella->gruppo));
  std::vector<int> posti;
  for (int numero : combinazione)
    posti.push_back(static_cast<int>(std::lower_bound(numeri.begin(), numeri.end(), numero) - numeri.begin()));
  return Variant::Long(((*tabella).*Figura)[static_cast<size_t>(CombinazioneIndice(posti))]);
}

Result<Variant> ResetRitardoRelTurbo(Libreria& lib, CallArgs&) {
  lib.Stato<StatoRitardiRelativi>().turbo.reset();
  return Variant();
}

const Libreria::Funzione kRitardiRelativi[] = {
    {"InitCalcoloRitRel", 3, 5, &InitCalcoloRitRel,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione]: prepara i ritardi relativi delle "
     "combinazioni di Sorte numeri del gruppo aNumeri, contati negli eventi del gruppo: le estrazioni di "
     "Inizio..Fine in cui escono almeno Sorte numeri del gruppo su una ruota di aRuote; restituisce il numero di "
     "eventi (Long)",
     "Long: il numero di eventi del gruppo",
     "aR = Array(BA_, NA_) : Scrivi InitCalcoloRitRel(aR, Array(1, 2, 3, 4, 5, 6), AMBO_)"},
    {"InitCalcoloRitRelTurbo", 3, 5, &InitCalcoloRitRelTurbo,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione]: ciò che fa InitCalcoloRitRel, calcolando "
     "subito i valori di ogni combinazione (al massimo 3.000.000) per GetRitRelTurbo e GetRitRelMaxTurbo",
     "Long: il numero di eventi del gruppo; errore 5 oltre 3.000.000 combinazioni",
     "aR = Array(BA_, NA_) : Scrivi InitCalcoloRitRelTurbo(aR, Array(1, 2, 3, 4, 5, 6), AMBO_)"},
    {"GetRitRel", 1, 1, &RitardoRelativo<&stats::RitardoCombinazione>,
     "aNumeri: il ritardo relativo della combinazione aNumeri (Sorte numeri del gruppo): gli eventi del gruppo dopo "
     "l'ultimo in cui è uscita, tutti se non è mai uscita (Long)",
     "Long: il ritardo relativo in eventi; errore 5 senza InitCalcoloRitRel",
     "aR = Array(TU_) : n = InitCalcoloRitRel(aR, Array(1, 2, 3, 4, 5, 6), AMBO_) : Scrivi GetRitRel(Array(1, 2))"},
    {"GetRitRelTurbo", 1, 1, &RitardoRelativoTurbo<&TabellaRelativa::ritardo>,
     "aNumeri: ciò che dà GetRitRel, per il gruppo di InitCalcoloRitRelTurbo",
     "Long: il ritardo relativo in eventi; errore 5 senza InitCalcoloRitRelTurbo",
     "aR = Array(TU_) : n = InitCalcoloRitRelTurbo(aR, Array(1, 2, 3, 4, 5, 6), AMBO_) : Scrivi "
     "GetRitRelTurbo(Array(1, 2))"},
    {"GetRitRelMax", 1, 1, &RitardoRelativo<&stats::StoricoCombinazione>,
     "aNumeri: il ritardo relativo massimo della combinazione aNumeri: la serie più lunga di eventi del gruppo senza "
     "di essa, compresa quella in corso (Long)",
     "Long: il ritardo relativo massimo in eventi; errore 5 senza InitCalcoloRitRel",
     "aR = Array(TU_) : n = InitCalcoloRitRel(aR, Array(1, 2, 3, 4, 5, 6), AMBO_) : Scrivi GetRitRelMax(Array(3, 4))"},
    {"GetRitRelMaxTurbo", 1, 1, &RitardoRelativoTurbo<&TabellaRelativa::massimo>,
     "aNumeri: ciò che dà GetRitRelMax, per il gruppo di InitCalcoloRitRelTurbo",
     "Long: il ritardo relativo massimo in eventi; errore 5 senza InitCalcoloRitRelTurbo",
     "aR = Array(TU_) : n = InitCalcoloRitRelTurbo(aR, Array(1, 2, 3, 4, 5, 6), AMBO_) : Scrivi "
     "GetRitRelMaxTurbo(Array(3, 4))"},
    {"ResetRitardoRel", 0, 0, &ResetRitardoRel, "dimentica il gruppo di InitCalcoloRitRel", "niente (Sub)",
     "ResetRitardoRel"},
    {"ResetRitardoRelTurbo", 0, 0, &ResetRitardoRelTurbo, "dimentica il gruppo e le tabelle di InitCalcoloRitRelTurbo",
     "niente (Sub)", "ResetRitardoRelTurbo"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniRitardiRelativi() { return kRitardiRelativi; }

}  // namespace lottolab::script
