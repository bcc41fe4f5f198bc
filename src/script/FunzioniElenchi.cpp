// The ninety numbers of a wheel ranked by delay, delays on one position, and relative delays inside a
// group of numbers.
//
// The plain forms compute each answer over its range, through the whole-table walk of Tabellone.h or
// the per-combination walks of Ritardi.h. The Turbo forms give the same figures from tables built by
// the run's first Turbo call, which pays off in scripts that ask again at every draw of the archive.

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>

#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "stats/Numeri.h"
#include "stats/Ritardi.h"
#include "stats/Tabellone.h"
#include "stats/UsciteNumeri.h"
#include "vbscript/Utf.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

enum class Calcolo { Semplice, Turbo };

Result<int> RuotaArgomento(const CallArgs& args, size_t i, int ultima) {
  auto ruota = RuotaTabella(args, i);
  if (!ruota) return std::move(ruota).error();
  if (*ruota < 1 || *ruota > ultima) {
    return ArgomentoNonValido(ultima == kTutteLeRuote
                                  ? fmt::format("Ruota non valida: {} (da 1 a 12, TU_ per tutte)", *ruota)
                                  : fmt::format("Ruota non valida: {} (una ruota da 1 a 10 o NZ_)", *ruota));
  }
  return *ruota;
}

Result<int> NumeroArgomento(const CallArgs& args, size_t i) {
  auto numero = args.Double(i);
  if (!numero) return std::move(numero).error();
  return int{stats::Fuori90(*numero)};
}

// A whole number in da..a, named in the message.
Result<int> InteroTra(const CallArgs& args, size_t i, int da, int a, std::string_view nome) {
  auto valore = args.Long(i);
  if (!valore) return std::move(valore).error();
  if (*valore < da || *valore > a)
    return ArgomentoNonValido(fmt::format("{} non valida: {} (da {} a {})", nome, *valore, da, a));
  return *valore;
}

Result<int> SorteArgomento(const CallArgs& args, size_t i) { return InteroTra(args, i, 1, kNumeriPerRuota, "Sorte"); }

struct Intervallo {
  int inizio = 1;
  int fine = 0;
};

// The range of draws from the optional arguments at i_inizio (none when the function starts from the
// first draw) and i_fine: the whole archive by default.
Result<Intervallo> IntervalloArgomento(const TabellaEstrazioni& tab, const CallArgs& args,
                                       std::optional<size_t> i_inizio, size_t i_fine) {
  auto inizio = i_inizio ? EstrazioneArgomento(tab, args, *i_inizio, 1, "Inizio") : Result<int>(1);
  if (!inizio) return std::move(inizio).error();
  auto fine = EstrazioneArgomento(tab, args, i_fine, tab.EstrazioniArchivio(), "Fine");
  if (!fine) return std::move(fine).error();
  if (*inizio > *fine) return ArgomentoNonValido(fmt::format("Inizio ({}) dopo Fine ({})", *inizio, *fine));
  return Intervallo{*inizio, *fine};
}

stats::Posizioni SoloPosizione(int posizione) {
  stats::Posizioni posizioni{};
  posizioni[static_cast<size_t>(posizione - 1)] = true;
  return posizioni;
}

// ---- Delays of the ninety numbers ----

struct StatoElenchi {
  std::optional<stats::UsciteNumeri> uscite;
};

const stats::UsciteNumeri& Uscite(Libreria& lib, const TabellaEstrazioni& tab) {
  auto& stato = lib.Stato<StatoElenchi>();
  if (!stato.uscite) stato.uscite = stats::CalcolaUsciteNumeri(tab);
  return *stato.uscite;
}

// Element n is the delay of number n; element 0 is unused.
using RitardiNumeri = std::array<int, kMassimoNumero + 1>;

template <Calcolo calcolo>
RitardiNumeri Ritardi(Libreria& lib, const TabellaEstrazioni& tab, int ruota, Intervallo intervallo) {
  RitardiNumeri ritardi{};
  if constexpr (calcolo == Calcolo::Turbo) {
    const stats::UsciteNumeri& uscite = Uscite(lib, tab);
    for (int n = 1; n <= kMassimoNumero; ++n)
      ritardi[n] = uscite.Ritardo(ruota, n, 0, intervallo.inizio, intervallo.fine);
  } else {
    const stats::TabelloneRuote tabellone = stats::CalcolaTabellone(tab, intervallo.inizio, intervallo.fine);
    for (int n = 1; n <= kMassimoNumero; ++n) ritardi[n] = tabellone.Dati(ruota, n).ritardo;
  }
  return ritardi;
}

// The numbers from the most delayed down; equal delays keep the smaller number first.
std::array<int, kMassimoNumero> Classifica(const RitardiNumeri& ritardi) {
  std::array<int, kMassimoNumero> numeri{};
  std::iota(numeri.begin(), numeri.end(), 1);
  std::stable_sort(numeri.begin(), numeri.end(), [&ritardi](int a, int b) { return ritardi[a] > ritardi[b]; });
  return numeri;
}

// What the ranking functions share: the wheel at 0 and an optional Fine at i_fine.
template <Calcolo calcolo>
Result<std::array<int, kMassimoNumero>> ClassificaArgomenti(Libreria& lib, const CallArgs& args, size_t i_fine) {
  auto archivio = lib.Archivio();
  if (!archivio) return std::move(archivio).error();
  auto ruota = RuotaArgomento(args, 0, kTutteLeRuote);
  if (!ruota) return std::move(ruota).error();
  auto intervallo = IntervalloArgomento(**archivio, args, std::nullopt, i_fine);
  if (!intervallo) return std::move(intervallo).error();
  return Classifica(Ritardi<calcolo>(lib, **archivio, *ruota, *intervallo));
}

template <Calcolo calcolo>
Result<Variant> ElencoRitardi(Libreria& lib, CallArgs& args) {
  auto archivio = lib.Archivio();
  if (!archivio) return std::move(archivio).error();
  auto ruota = RuotaArgomento(args, 0, kTutteLeRuote);
  if (!ruota) return std::move(ruota).error();
  auto intervallo = IntervalloArgomento(**archivio, args, 2, 3);
  if (!intervallo) return std::move(intervallo).error();
  const RitardiNumeri ritardi = Ritardi<calcolo>(lib, **archivio, *ruota, *intervallo);
  args.Out(1) = ArrayDaUno(std::span<const int>(ritardi).subspan(1));
  return Variant();
}

template <Calcolo calcolo>
Result<Variant> PiuRitardatario(Libreria& lib, CallArgs& args) {
  auto classifica = ClassificaArgomenti<calcolo>(lib, args, 1);
  if (!classifica) return std::move(classifica).error();
  return Variant::Integer(static_cast<int16_t>(classifica->front()));
}

template <Calcolo calcolo>
Result<Variant> PiuRitardatari(Libreria& lib, CallArgs& args) {
  auto quanti = InteroTra(args, 1, 1, kMassimoNumero, "Quantita'");
  if (!quanti) return std::move(quanti).error();
  auto classifica = ClassificaArgomenti<calcolo>(lib, args, 3);
  if (!classifica) return std::move(classifica).error();
  args.Out(2) = ArrayDaUno(std::span<const int>(*classifica).first(static_cast<size_t>(*quanti)));
  return Variant();
}

template <Calcolo calcolo>
Result<Variant> PosNumeroRit(Libreria& lib, CallArgs& args) {
  auto numero = NumeroArgomento(args, 1);
  if (!numero) return std::move(numero).error();
  auto classifica = ClassificaArgomenti<calcolo>(lib, args, 2);
  if (!classifica) return std::move(classifica).error();
  const auto posto = std::find(classifica->begin(), classifica->end(), *numero);
  return Variant::Integer(static_cast<int16_t>(posto - classifica->begin() + 1));
}

template <Calcolo calcolo>
Result<Variant> NumeroPosRit(Libreria& lib, CallArgs& args) {
  auto posizione = InteroTra(args, 1, 1, kMassimoNumero, "Posizione in classifica");
  if (!posizione) return std::move(posizione).error();
  auto classifica = ClassificaArgomenti<calcolo>(lib, args, 2);
  if (!classifica) return std::move(classifica).error();
  return Variant::Integer(static_cast<int16_t>((*classifica)[static_cast<size_t>(*posizione - 1)]));
}

template <Calcolo calcolo>
Result<Variant> RitPos(Libreria& lib, CallArgs& args) {
  auto archivio = lib.Archivio();
  if (!archivio) return std::move(archivio).error();
  const TabellaEstrazioni& tab = **archivio;
  auto ruota = RuotaArgomento(args, 0, kTutteLeRuote);
  if (!ruota) return std::move(ruota).error();
  auto numero = NumeroArgomento(args, 1);
  if (!numero) return std::move(numero).error();
  auto posizione = InteroTra(args, 2, 1, kNumeriPerRuota, "Posizione");
  if (!posizione) return std::move(posizione).error();
  auto intervallo = IntervalloArgomento(tab, args, 3, 4);
  if (!intervallo) return std::move(intervallo).error();
  if constexpr (calcolo == Calcolo::Turbo) {
    return Variant::Long(Uscite(lib, tab).Ritardo(*ruota, *numero, *posizione, intervallo->inizio, intervallo->fine));
  } else {
    const int ruote[] = {*ruota};
    const int numeri[] = {*numero};
    return Variant::Long(stats::RitardoCombinazione(tab, ruote, numeri, 1, intervallo->fine, SoloPosizione(*posizione),
                                                    intervallo->inizio));
  }
}

// The delays are taken over the draws before IdEstr, so the first draw's numbers have none: 0.
Result<Variant> GetRitardoEstratti(Libreria& lib, CallArgs& args) {
  auto archivio = lib.Archivio();
  if (!archivio) return std::move(archivio).error();
  const TabellaEstrazioni& tab = **archivio;
  auto id_estr = EstrazioneArgomento(tab, args, 0, 0, "IdEstr");
  if (!id_estr) return std::move(id_estr).error();
  auto ruota = RuotaArgomento(args, 1, kNumeroRuote);
  if (!ruota) return std::move(ruota).error();
  const Estrazione& estrazione = tab[*id_estr];
  std::array<int, kNumeriPerRuota> ritardi{};
  for (int p = 1; p <= kNumeriPerRuota; ++p) {
    const int numero = estrazione.Numero(*ruota, p);
    if (!estrazione.Presente() || numero < 1 || numero > kMassimoNumero) return Variant::Boolean(false);
    const int ruote[] = {*ruota};
    const int numeri[] = {numero};
    ritardi[static_cast<size_t>(p - 1)] = stats::RitardoCombinazione(tab, ruote, numeri, 1, *id_estr - 1);
  }
  args.Out(2) = ArrayDaUno(ritardi);
  return Variant::Boolean(true);
}

// ---- Relative delays ----
//
// The draws of the range in which a group of numbers wins the sorte on a played wheel are the group's
// events; a combination of the group is then measured in events rather than draws. Its relative delay
// is its delay over the table made of the event draws alone, by the rules of Ritardi.h, and its
// maximum relative delay the historical maximum over that table.

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
  auto ruote = RuoteGiocate(args, 0);
  if (!ruote) return std::move(ruote).error();
  gruppo.ruote = std::move(*ruote);
  auto numeri = NumeriArgomento(args, 1);
  if (!numeri) return std::move(numeri).error();
  std::sort(numeri->begin(), numeri->end());
  numeri->erase(std::unique(numeri->begin(), numeri->end()), numeri->end());
  gruppo.numeri = std::move(*numeri);
  auto sorte = SorteArgomento(args, 2);
  if (!sorte) return std::move(sorte).error();
  gruppo.sorte = *sorte;
  if (static_cast<int>(gruppo.numeri.size()) < gruppo.sorte) {
    return ArgomentoNonValido(
        fmt::format("Il gruppo ha {} numeri diversi, meno della sorte {}", gruppo.numeri.size(), gruppo.sorte));
  }
  auto intervallo = IntervalloArgomento(tab, args, 3, 4);
  if (!intervallo) return std::move(intervallo).error();
  gruppo.eventi = EstrazioniVincenti(tab, gruppo, *intervallo);
  return gruppo;
}

// The combination of argument 0: exactly Sorte different numbers of the group, sorted.
Result<std::vector<int>> CombinazioneArgomento(const CallArgs& args, const GruppoRelativo& gruppo) {
  auto numeri = NumeriArgomento(args, 0);
  if (!numeri) return std::move(numeri).error();
  std::sort(numeri->begin(), numeri->end());
  const bool diversi = std::adjacent_find(numeri->begin(), numeri->end()) == numeri->end();
  if (static_cast<int>(numeri->size()) != gruppo.sorte || !diversi) {
    return ArgomentoNonValido(fmt::format("La combinazione deve avere {} numeri diversi", gruppo.sorte));
  }
  for (int numero : *numeri) {
    if (!std::binary_search(gruppo.numeri.begin(), gruppo.numeri.end(), numero))
      return ArgomentoNonValido(fmt::format("Il numero {} non fa parte del gruppo", numero));
  }
  return numeri;
}

vbs::ScriptError GruppoNonPreparato(std::string_view init) {
  return ArgomentoNonValido(fmt::format("Nessun gruppo preparato: chiamare prima {}", init));
}

Result<Variant> InitCalcoloRitRel(Libreria& lib, CallArgs& args) {
  auto archivio = lib.Archivio();
  if (!archivio) return std::move(archivio).error();
  auto gruppo = GruppoArgomenti(**archivio, args);
  if (!gruppo) return std::move(gruppo).error();
  const int eventi = gruppo->eventi.EstrazioniArchivio();
  lib.Stato<StatoRitardiRelativi>().semplice = std::move(*gruppo);
  return Variant::Long(eventi);
}

template <int (*Statistica)(const TabellaEstrazioni&, std::span<const int>, std::span<const int>, int, int,
                            const stats::Posizioni&, int)>
Result<Variant> RitardoRelativo(Libreria& lib, CallArgs& args) {
  const auto& gruppo = lib.Stato<StatoRitardiRelativi>().semplice;
  if (!gruppo) return GruppoNonPreparato("InitCalcoloRitRel");
  auto combinazione = CombinazioneArgomento(args, *gruppo);
  if (!combinazione) return std::move(combinazione).error();
  return Variant::Long(Statistica(gruppo->eventi, gruppo->ruote, *combinazione, gruppo->sorte,
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

std::vector<int> RuoteSingole(const std::vector<int>& ruote) {
  std::vector<int> singole;
  for (int ruota : ruote) {
    if (ruota == kTutteLeRuote) {
      for (int r = 1; r <= kNumeroRuote; ++r) singole.push_back(r);
    } else {
      singole.push_back(ruota);
    }
  }
  std::sort(singole.begin(), singole.end());
  singole.erase(std::unique(singole.begin(), singole.end()), singole.end());
  return singole;
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
  auto archivio = lib.Archivio();
  if (!archivio) return std::move(archivio).error();
  auto gruppo = GruppoArgomenti(**archivio, args);
  if (!gruppo) return std::move(gruppo).error();
  const int64_t combinazioni = Combinazioni(static_cast<int>(gruppo->numeri.size()), gruppo->sorte);
  if (combinazioni > kMassimoCombinazioniTurbo) {
    return ArgomentoNonValido(
        fmt::format("Troppe combinazioni per la tabella Turbo (al massimo {})", kMassimoCombinazioniTurbo));
  }
  const int eventi = gruppo->eventi.EstrazioniArchivio();
  lib.Stato<StatoRitardiRelativi>().turbo = CalcolaTabellaRelativa(std::move(*gruppo), combinazioni);
  return Variant::Long(eventi);
}

template <std::vector<int> TabellaRelativa::*Figura>
Result<Variant> RitardoRelativoTurbo(Libreria& lib, CallArgs& args) {
  const auto& tabella = lib.Stato<StatoRitardiRelativi>().turbo;
  if (!tabella) return GruppoNonPreparato("InitCalcoloRitRelTurbo");
  const std::vector<int>& numeri = tabella->gruppo.numeri;
  auto combinazione = CombinazioneArgomento(args, tabella->gruppo);
  if (!combinazione) return std::move(combinazione).error();
  std::vector<int> posti;
  for (int numero : *combinazione)
    posti.push_back(static_cast<int>(std::lower_bound(numeri.begin(), numeri.end(), numero) - numeri.begin()));
  return Variant::Long(((*tabella).*Figura)[static_cast<size_t>(CombinazioneIndice(posti))]);
}

Result<Variant> ResetRitardoRelTurbo(Libreria& lib, CallArgs&) {
  lib.Stato<StatoRitardiRelativi>().turbo.reset();
  return Variant();
}

const Libreria::Funzione kElenchi[] = {
    {"ElencoRitardi", 2, 4, &ElencoRitardi<Calcolo::Semplice>,
     "Ruota, aRet, [Inizio = 1], [Fine = ultima estrazione]: riempie aRet(1..90) con il ritardo di ogni numero su "
     "Ruota (TU_ per tutte) in Inizio..Fine, come lo dà EstrattoRitardo"},
    {"ElencoRitardiTurbo", 2, 4, &ElencoRitardi<Calcolo::Turbo>,
     "Ruota, aRet, [Inizio = 1], [Fine = ultima estrazione]: ciò che riempie ElencoRitardi, dalle tabelle costruite "
     "dalla prima chiamata Turbo dell'esecuzione"},
    {"PiuRitardatario", 1, 2, &PiuRitardatario<Calcolo::Semplice>,
     "Ruota, [Fine = ultima estrazione]: il numero con il ritardo maggiore su Ruota a Fine, il più piccolo tra "
     "quelli a pari ritardo (Integer)"},
    {"PiuRitardatarioTurbo", 1, 2, &PiuRitardatario<Calcolo::Turbo>,
     "Ruota, [Fine = ultima estrazione]: ciò che dà PiuRitardatario, dalle tabelle costruite dalla prima chiamata "
     "Turbo dell'esecuzione"},
    {"PiuRitardatari", 3, 4, &PiuRitardatari<Calcolo::Semplice>,
     "Ruota, Quanti, aRet, [Fine = ultima estrazione]: riempie aRet(1..Quanti) con i Quanti (1..90) numeri più "
     "ritardatari su Ruota a Fine, dal più ritardatario in giù, a pari ritardo prima il numero più piccolo"},
    {"PiuRitardatariTurbo", 3, 4, &PiuRitardatari<Calcolo::Turbo>,
     "Ruota, Quanti, aRet, [Fine = ultima estrazione]: ciò che riempie PiuRitardatari, dalle tabelle costruite dalla "
     "prima chiamata Turbo dell'esecuzione"},
    {"PosNumeroRit", 2, 3, &PosNumeroRit<Calcolo::Semplice>,
     "Ruota, Numero, [Fine = ultima estrazione]: il posto 1..90 di Numero nella classifica di PiuRitardatari, 1 per "
     "il più ritardatario (Integer)"},
    {"PosNumeroRitTurbo", 2, 3, &PosNumeroRit<Calcolo::Turbo>,
     "Ruota, Numero, [Fine = ultima estrazione]: ciò che dà PosNumeroRit, dalle tabelle costruite dalla prima "
     "chiamata Turbo dell'esecuzione"},
    {"NumeroPosRit", 2, 3, &NumeroPosRit<Calcolo::Semplice>,
     "Ruota, Posizione, [Fine = ultima estrazione]: il numero al posto Posizione (1..90) della classifica di "
     "PiuRitardatari (Integer)"},
    {"NumeroPosRitTurbo", 2, 3, &NumeroPosRit<Calcolo::Turbo>,
     "Ruota, Posizione, [Fine = ultima estrazione]: ciò che dà NumeroPosRit, dalle tabelle costruite dalla prima "
     "chiamata Turbo dell'esecuzione"},
    {"RitPos", 3, 5, &RitPos<Calcolo::Semplice>,
     "Ruota, Numero, Posizione, [Inizio = 1], [Fine = ultima estrazione]: il ritardo di Numero come estratto nella "
     "sola posizione Posizione (1..5) di Ruota (TU_ per tutte) a Fine (Long)"},
    {"RitPosTurbo", 3, 5, &RitPos<Calcolo::Turbo>,
     "Ruota, Numero, Posizione, [Inizio = 1], [Fine = ultima estrazione]: ciò che dà RitPos, dalle tabelle costruite "
     "dalla prima chiamata Turbo dell'esecuzione"},
    {"GetRitardoEstratti", 3, 3, &GetRitardoEstratti,
     "IdEstr, Ruota, aRet: riempie aRet(1..5) con i ritardi su Ruota (una sola ruota), calcolati sulle estrazioni "
     "precedenti IdEstr, dei cinque numeri estratti lì in IdEstr, nell'ordine delle loro posizioni; True, oppure "
     "False lasciando aRet invariato se la ruota non è stata estratta"},
    {"InitCalcoloRitRel", 3, 5, &InitCalcoloRitRel,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione]: prepara i ritardi relativi delle "
     "combinazioni di Sorte numeri del gruppo aNumeri, contati negli eventi del gruppo: le estrazioni di "
     "Inizio..Fine in cui escono almeno Sorte numeri del gruppo su una ruota di aRuote; restituisce il numero di "
     "eventi (Long)"},
    {"InitCalcoloRitRelTurbo", 3, 5, &InitCalcoloRitRelTurbo,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione]: ciò che fa InitCalcoloRitRel, calcolando "
     "subito i valori di ogni combinazione (al massimo 3.000.000) per GetRitRelTurbo e GetRitRelMaxTurbo"},
    {"GetRitRel", 1, 1, &RitardoRelativo<&stats::RitardoCombinazione>,
     "aNumeri: il ritardo relativo della combinazione aNumeri (Sorte numeri del gruppo): gli eventi del gruppo dopo "
     "l'ultimo in cui è uscita, tutti se non è mai uscita (Long)"},
    {"GetRitRelTurbo", 1, 1, &RitardoRelativoTurbo<&TabellaRelativa::ritardo>,
     "aNumeri: ciò che dà GetRitRel, per il gruppo di InitCalcoloRitRelTurbo"},
    {"GetRitRelMax", 1, 1, &RitardoRelativo<&stats::StoricoCombinazione>,
     "aNumeri: il ritardo relativo massimo della combinazione aNumeri: la serie più lunga di eventi del gruppo senza "
     "di essa, compresa quella in corso (Long)"},
    {"GetRitRelMaxTurbo", 1, 1, &RitardoRelativoTurbo<&TabellaRelativa::massimo>,
     "aNumeri: ciò che dà GetRitRelMax, per il gruppo di InitCalcoloRitRelTurbo"},
    {"ResetRitardoRel", 0, 0, &ResetRitardoRel, "dimentica il gruppo di InitCalcoloRitRel"},
    {"ResetRitardoRelTurbo", 0, 0, &ResetRitardoRelTurbo, "dimentica il gruppo e le tabelle di InitCalcoloRitRelTurbo"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniElenchi() { return kElenchi; }

}  // namespace lottolab::script
