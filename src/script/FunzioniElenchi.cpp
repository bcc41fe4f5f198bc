// The ninety numbers of a wheel ranked by delay, and the delays of numbers bound to positions.
//
// The plain forms compute each answer over its range, through the whole-table walk of Tabellone.h or
// the per-combination walks of Ritardi.h. The Turbo forms give the same figures from tables built by
// the run's first Turbo call, which pays off in scripts that ask again at every draw of the archive.

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "RitardoConRegola.h"
#include "TabelleEsecuzione.h"
#include "stats/Ritardi.h"
#include "stats/Tabellone.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

enum class Calcolo { Semplice, Turbo };

stats::Posizioni SoloPosizione(int posizione) {
  stats::Posizioni posizioni{};
  posizioni[static_cast<size_t>(posizione - 1)] = true;
  return posizioni;
}

// ---- Delays of the ninety numbers ----

// Element n is the delay of number n; element 0 is unused.
using RitardiNumeri = std::array<int, kMassimoNumero + 1>;

template <Calcolo calcolo>
RitardiNumeri Ritardi(Libreria& lib, const TabellaEstrazioni& tab, int ruota, Intervallo intervallo) {
  RitardiNumeri ritardi{};
  if constexpr (calcolo == Calcolo::Turbo) {
    const stats::IndiceVincite& indice = IndiceDellEsecuzione(lib, tab);
    for (int n = 1; n <= kMassimoNumero; ++n)
      ritardi[n] = indice.Ritardo(ruota, n, 0, intervallo.inizio, intervallo.fine);
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
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto ruota, RuotaArgomento(args, 0, kTutteLeRuote));
  VBS_TRY_ASSIGN(auto intervallo, IntervalloArgomento(*archivio, args, std::nullopt, i_fine));
  return Classifica(Ritardi<calcolo>(lib, *archivio, ruota, intervallo));
}

template <Calcolo calcolo>
Result<Variant> ElencoRitardi(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto ruota, RuotaArgomento(args, 0, kTutteLeRuote));
  VBS_TRY_ASSIGN(auto intervallo, IntervalloArgomento(*archivio, args, 2, 3));
  const RitardiNumeri ritardi = Ritardi<calcolo>(lib, *archivio, ruota, intervallo);
  args.Out(1) = ArrayDaUno(std::span<const int>(ritardi).subspan(1));
  return Variant();
}

template <Calcolo calcolo>
Result<Variant> PiuRitardatario(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto classifica, ClassificaArgomenti<calcolo>(lib, args, 1));
  return Variant::Integer(static_cast<int16_t>(classifica.front()));
}

template <Calcolo calcolo>
Result<Variant> PiuRitardatari(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto quanti, InteroTra(args, 1, 1, kMassimoNumero, "Quantita'"));
  VBS_TRY_ASSIGN(auto classifica, ClassificaArgomenti<calcolo>(lib, args, 3));
  args.Out(2) = ArrayDaUno(std::span<const int>(classifica).first(static_cast<size_t>(quanti)));
  return Variant();
}

template <Calcolo calcolo>
Result<Variant> PosNumeroRit(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto numero, NumeroArgomento(args, 1));
  VBS_TRY_ASSIGN(auto classifica, ClassificaArgomenti<calcolo>(lib, args, 2));
  const auto posto = std::find(classifica.begin(), classifica.end(), numero);
  return Variant::Integer(static_cast<int16_t>(posto - classifica.begin() + 1));
}

template <Calcolo calcolo>
Result<Variant> NumeroPosRit(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto posizione, InteroTra(args, 1, 1, kMassimoNumero, "Posizione in classifica"));
  VBS_TRY_ASSIGN(auto classifica, ClassificaArgomenti<calcolo>(lib, args, 2));
  return Variant::Integer(static_cast<int16_t>((classifica)[static_cast<size_t>(posizione - 1)]));
}

template <Calcolo calcolo>
Result<Variant> RitPos(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  const TabellaEstrazioni& tab = *archivio;
  VBS_TRY_ASSIGN(auto ruota, RuotaArgomento(args, 0, kTutteLeRuote));
  VBS_TRY_ASSIGN(auto numero, NumeroArgomento(args, 1));
  VBS_TRY_ASSIGN(auto posizione, InteroTra(args, 2, 1, kNumeriPerRuota, "Posizione"));
  VBS_TRY_ASSIGN(auto intervallo, IntervalloArgomento(tab, args, 3, 4));
  if constexpr (calcolo == Calcolo::Turbo) {
    return Variant::Long(
        IndiceDellEsecuzione(lib, tab).Ritardo(ruota, numero, posizione, intervallo.inizio, intervallo.fine));
  } else {
    const int ruote[] = {ruota};
    const int numeri[] = {numero};
    return Variant::Long(stats::RitardoCombinazione(tab, ruote, numeri, 1, intervallo.fine, SoloPosizione(posizione),
                                                    intervallo.inizio));
  }
}

struct NumeroInPosizione {
  int numero = 0;
  int posizione = 0;
};

// Numero at i and its position at i + 1, which the message calls `nome_posizione`.
Result<NumeroInPosizione> NumeroInPosizioneArgomento(const CallArgs& args, size_t i, std::string_view nome_posizione) {
  VBS_TRY_ASSIGN(auto numero, NumeroArgomento(args, i));
  VBS_TRY_ASSIGN(auto posizione, InteroTra(args, i + 1, 1, kNumeriPerRuota, nome_posizione));
  return NumeroInPosizione{numero, posizione};
}

// Whether one wheel of the draw holds every number in its own position.
bool InPosizione(const Estrazione& estrazione, std::span<const int> ruote, std::span<const NumeroInPosizione> posti) {
  return std::any_of(ruote.begin(), ruote.end(), [&](int ruota) {
    return std::all_of(posti.begin(), posti.end(), [&](const NumeroInPosizione& posto) {
      return estrazione.Numero(ruota, posto.posizione) == posto.numero;
    });
  });
}

Result<Variant> AmboPosRit(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto ruota, RuotaArgomento(args, 0, kTutteLeRuote));
  VBS_TRY_ASSIGN(auto primo, NumeroInPosizioneArgomento(args, 1, "Posizione1"));
  VBS_TRY_ASSIGN(auto secondo, NumeroInPosizioneArgomento(args, 3, "Posizione2"));
  if (primo.numero == secondo.numero || primo.posizione == secondo.posizione)
    return ArgomentoNonValido("Un ambo posizionale vuole due numeri diversi in due posizioni diverse");
  VBS_TRY_ASSIGN(auto intervallo, IntervalloArgomento(*archivio, args, 5, 6));
  const int ruote[] = {ruota};
  const std::vector<int> singole = RuoteSingole(ruote);
  const NumeroInPosizione posti[] = {primo, secondo};
  return Variant::Long(
      RitardoConRegola(*archivio, singole, intervallo.inizio, intervallo.fine,
                       [&](const Estrazione& estrazione) { return InPosizione(estrazione, singole, posti); }));
}

// Every run between two outings in order, then the open run, so that the last element is RitPos.
// kConUscita counts each closed run with the draw that closed it: the draws it took to come out.
template <bool kConUscita>
Result<Variant> RitPosCrono(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto ruota, RuotaArgomento(args, 0, kTutteLeRuote));
  VBS_TRY_ASSIGN(auto posto, NumeroInPosizioneArgomento(args, 1, "Posizione"));
  VBS_TRY_ASSIGN(auto intervallo, IntervalloArgomento(*archivio, args, 4, 5));
  const int ruote[] = {ruota};
  const std::vector<int> singole = RuoteSingole(ruote);
  const NumeroInPosizione posti[] = {posto};
  std::vector<int> ritardi =
      CronologiaConRegola(*archivio, singole, intervallo.inizio, intervallo.fine,
                          [&](const Estrazione& estrazione) { return InPosizione(estrazione, singole, posti); });
  if (kConUscita && !ritardi.empty())
    std::for_each(ritardi.begin(), ritardi.end() - 1, [](int& ritardo) { ++ritardo; });
  args.Out(3) = ArrayDaUno(ritardi);
  return Variant::Long(static_cast<int32_t>(ritardi.size()));
}

// The delays are taken over the draws before IdEstr, so the first draw's numbers have none: 0.
Result<Variant> GetRitardoEstratti(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  const TabellaEstrazioni& tab = *archivio;
  VBS_TRY_ASSIGN(auto id_estr, EstrazioneArgomento(tab, args, 0, 0, "IdEstr"));
  VBS_TRY_ASSIGN(auto ruota, RuotaArgomento(args, 1, kNumeroRuote));
  const Estrazione& estrazione = tab[id_estr];
  std::array<int, kNumeriPerRuota> ritardi{};
  for (int p = 1; p <= kNumeriPerRuota; ++p) {
    const int numero = estrazione.Numero(ruota, p);
    if (!estrazione.Presente() || numero < 1 || numero > kMassimoNumero) return Variant::Boolean(false);
    const int ruote[] = {ruota};
    const int numeri[] = {numero};
    ritardi[static_cast<size_t>(p - 1)] = stats::RitardoCombinazione(tab, ruote, numeri, 1, id_estr - 1);
  }
  args.Out(2) = ArrayDaUno(ritardi);
  return Variant::Boolean(true);
}

const Libreria::Funzione kElenchi[] = {
    {"ElencoRitardi", 2, 4, &ElencoRitardi<Calcolo::Semplice>,
     "Ruota, aRet, [Inizio = 1], [Fine = ultima estrazione]: riempie aRet(1..90) con il ritardo di ogni numero su "
     "Ruota (TU_ per tutte) in Inizio..Fine, come lo dà EstrattoRitardo",
     "niente (Sub): in aRet i 90 ritardi (array da 1, Long)", "ElencoRitardi BA_, aRit : Scrivi aRit(90)"},
    {"ElencoRitardiTurbo", 2, 4, &ElencoRitardi<Calcolo::Turbo>,
     "Ruota, aRet, [Inizio = 1], [Fine = ultima estrazione]: ciò che riempie ElencoRitardi, dalle tabelle costruite "
     "dalla prima chiamata Turbo dell'esecuzione",
     "niente (Sub): in aRet i 90 ritardi (array da 1, Long)",
     "ElencoRitardiTurbo TU_, aRit, 1, EstrazioniArchivio : Scrivi aRit(1)"},
    {"PiuRitardatario", 1, 2, &PiuRitardatario<Calcolo::Semplice>,
     "Ruota, [Fine = ultima estrazione]: il numero con il ritardo maggiore su Ruota a Fine, il più piccolo tra "
     "quelli a pari ritardo (Integer)",
     "Integer: il numero più ritardatario", "Scrivi PiuRitardatario(BA_)"},
    {"PiuRitardatarioTurbo", 1, 2, &PiuRitardatario<Calcolo::Turbo>,
     "Ruota, [Fine = ultima estrazione]: ciò che dà PiuRitardatario, dalle tabelle costruite dalla prima chiamata "
     "Turbo dell'esecuzione",
     "Integer: il numero più ritardatario", "Scrivi PiuRitardatarioTurbo(BA_, EstrazioniArchivio - 1)"},
    {"PiuRitardatari", 3, 4, &PiuRitardatari<Calcolo::Semplice>,
     "Ruota, Quanti, aRet, [Fine = ultima estrazione]: riempie aRet(1..Quanti) con i Quanti (1..90) numeri più "
     "ritardatari su Ruota a Fine, dal più ritardatario in giù, a pari ritardo prima il numero più piccolo",
     "niente (Sub): in aRet i Quanti numeri (array da 1)", "PiuRitardatari BA_, 5, aN : Scrivi aN(1) & \" \" & aN(5)"},
    {"PiuRitardatariTurbo", 3, 4, &PiuRitardatari<Calcolo::Turbo>,
     "Ruota, Quanti, aRet, [Fine = ultima estrazione]: ciò che riempie PiuRitardatari, dalle tabelle costruite dalla "
     "prima chiamata Turbo dell'esecuzione",
     "niente (Sub): in aRet i Quanti numeri (array da 1)", "PiuRitardatariTurbo TU_, 5, aN : Scrivi aN(1)"},
    {"PosNumeroRit", 2, 3, &PosNumeroRit<Calcolo::Semplice>,
     "Ruota, Numero, [Fine = ultima estrazione]: il posto 1..90 di Numero nella classifica di PiuRitardatari, 1 per "
     "il più ritardatario (Integer)",
     "Integer: il posto in classifica, 1..90", "Scrivi PosNumeroRit(BA_, 90)"},
    {"PosNumeroRitTurbo", 2, 3, &PosNumeroRit<Calcolo::Turbo>,
     "Ruota, Numero, [Fine = ultima estrazione]: ciò che dà PosNumeroRit, dalle tabelle costruite dalla prima "
     "chiamata Turbo dell'esecuzione",
     "Integer: il posto in classifica, 1..90", "Scrivi PosNumeroRitTurbo(BA_, 90)"},
    {"NumeroPosRit", 2, 3, &NumeroPosRit<Calcolo::Semplice>,
     "Ruota, Posizione, [Fine = ultima estrazione]: il numero al posto Posizione (1..90) della classifica di "
     "PiuRitardatari (Integer)",
     "Integer: il numero a quel posto", "Scrivi NumeroPosRit(BA_, 2)"},
    {"NumeroPosRitTurbo", 2, 3, &NumeroPosRit<Calcolo::Turbo>,
     "Ruota, Posizione, [Fine = ultima estrazione]: ciò che dà NumeroPosRit, dalle tabelle costruite dalla prima "
     "chiamata Turbo dell'esecuzione",
     "Integer: il numero a quel posto", "Scrivi NumeroPosRitTurbo(BA_, 2)"},
    {"RitPos", 3, 5, &RitPos<Calcolo::Semplice>,
     "Ruota, Numero, Posizione, [Inizio = 1], [Fine = ultima estrazione]: il ritardo di Numero come estratto nella "
     "sola posizione Posizione (1..5) di Ruota (TU_ per tutte) a Fine (Long)",
     "Long: il ritardo posizionale", "Scrivi RitPos(BA_, 90, 1)"},
    {"RitPosTurbo", 3, 5, &RitPos<Calcolo::Turbo>,
     "Ruota, Numero, Posizione, [Inizio = 1], [Fine = ultima estrazione]: ciò che dà RitPos, dalle tabelle costruite "
     "dalla prima chiamata Turbo dell'esecuzione",
     "Long: il ritardo posizionale", "Scrivi RitPosTurbo(BA_, 90, 1)"},
    {"AmboPosRit", 5, 7, &AmboPosRit,
     "Ruota, Numero1, Posizione1, Numero2, Posizione2, [Inizio = 1], [Fine = ultima estrazione]: il ritardo "
     "dell'ambo posizionale su Ruota (TU_ per tutte) a Fine: le estrazioni dopo l'ultima in cui Numero1 è uscito "
     "in Posizione1 e Numero2 in Posizione2 (due posizioni diverse, 1..5) sulla stessa ruota, contate come in "
     "RitPos (Long)",
     "Long: il ritardo dell'ambo posizionale", "Scrivi AmboPosRit(TU_, 12, 1, 34, 2)"},
    {"RitPosCronoRp1", 4, 6, &RitPosCrono<true>,
     "Ruota, Numero, Posizione, aRet, [Inizio = 1], [Fine = ultima estrazione]: la cronologia di RitPosCrono con "
     "ogni ritardo chiuso contato insieme all'estrazione dell'uscita (ritardo + 1: le estrazioni che sono servite); "
     "l'ultimo, il ritardo aperto a Fine, resta quello di RitPos",
     "Long: quanti ritardi; in aRet i ritardi (array da 1)", "n = RitPosCronoRp1(BA_, 90, 1, aR) : Scrivi aR(1)"},
    {"RitPosCrono", 4, 6, &RitPosCrono<false>,
     "Ruota, Numero, Posizione, aRet, [Inizio = 1], [Fine = ultima estrazione]: la cronologia dei ritardi di "
     "RitPos: riempie aRet(1..) con il ritardo chiuso da ogni uscita di Numero in Posizione su Ruota (TU_ per "
     "tutte) in Inizio..Fine, una per estrazione, dalla più vecchia, e per ultimo il ritardo a Fine, quello di "
     "RitPos; restituisce quanti sono (Long)",
     "Long: quanti ritardi; in aRet i ritardi (array da 1), l'ultimo quello attuale",
     "n = RitPosCrono(BA_, 90, 1, aRit) : Scrivi n & \" \" & aRit(n)"},
    {"GetRitardoEstratti", 3, 3, &GetRitardoEstratti,
     "IdEstr, Ruota, aRet: riempie aRet(1..5) con i ritardi su Ruota (una sola ruota), calcolati sulle estrazioni "
     "precedenti IdEstr, dei cinque numeri estratti lì in IdEstr, nell'ordine delle loro posizioni; True, oppure "
     "False lasciando aRet invariato se la ruota non è stata estratta",
     "Boolean: True se la ruota fu estratta; in aRet i cinque ritardi (array da 1)",
     "If GetRitardoEstratti(EstrazioniArchivio, BA_, aRit) Then Scrivi aRit(1)"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniElenchi() { return kElenchi; }

}  // namespace lottolab::script
