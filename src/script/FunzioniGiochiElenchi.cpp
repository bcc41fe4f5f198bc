// The numbers of a game ranked by delay, and delays of numbers bound to positions, in the archives of
// the games besides the Lotto; the delays of all the numbers come from one walk (TabelloneGioco).

#include <fmt/format.h>

#include <algorithm>
#include <numeric>
#include <vector>

#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "FamigliaGiochi.h"

namespace lottolab::script {

namespace {

using namespace famiglia;
using S = Suffisso;

// The ranges of the lists must not be empty.
Result<Intervallo> IntervalloOrdinato(const TabellaGioco& tab, const CallArgs& args, std::optional<size_t> i_inizio,
                                      size_t i_fine) {
  VBS_TRY_ASSIGN(auto intervallo, IntervalloGioco(tab, args, i_inizio, i_fine));
  if (intervallo.inizio > intervallo.fine)
    return ArgomentoNonValido(fmt::format("Inizio ({}) dopo Fine ({})", intervallo.inizio, intervallo.fine));
  return intervallo;
}

// Element n is the delay of number n, 1..M; element 0 is unused.
std::vector<int> Ritardi(const TabellaGioco& tab, Intervallo intervallo) {
  const std::vector<stats::StatisticaNumero> figure = stats::TabelloneGioco(tab, intervallo.fine, intervallo.inizio);
  std::vector<int> ritardi;
  for (const stats::StatisticaNumero& f : figure) ritardi.push_back(f.ritardo);
  return ritardi;
}

// aRet, [Inizio], [Fine]: aRet(1..M) the delay of every number.
template <Suffisso kSuffisso>
Result<Variant> ElencoRitardi(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto intervallo, IntervalloOrdinato(*tab, args, 1, 2));
  const std::vector<int> ritardi = Ritardi(*tab, intervallo);
  args.Out(0) = ArrayDaUno(std::span<const int>(ritardi).subspan(1));
  return Variant();
}

Result<Variant> ElencoRitardiNumeroOroDL(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, S::DL));
  VBS_TRY_ASSIGN(auto intervallo, IntervalloOrdinato(*tab, args, 1, 2));
  std::vector<int> ritardi;
  for (int numero = 1; numero <= tab->formato().massimo_speciale; ++numero) {
    ritardi.push_back(
        stats::PercorsoGioco(*tab, intervallo.inizio, intervallo.fine, [numero](const EstrazioneGioco& e) {
          return e.speciali[0] == numero;
        }).ritardo);
  }
  args.Out(0) = ArrayDaUno(ritardi);
  return Variant();
}

// The numbers 1..M from the most delayed down at Fine (argument i_fine); equal delays keep the
// smaller number first.
Result<std::vector<int>> Classifica(Libreria& lib, Suffisso suffisso, const CallArgs& args, size_t i_fine) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, suffisso));
  VBS_TRY_ASSIGN(auto intervallo, IntervalloOrdinato(*tab, args, std::nullopt, i_fine));
  const std::vector<int> ritardi = Ritardi(*tab, intervallo);
  std::vector<int> numeri(ritardi.size() - 1);
  std::iota(numeri.begin(), numeri.end(), 1);
  std::stable_sort(numeri.begin(), numeri.end(), [&ritardi](int a, int b) {
    return ritardi[static_cast<size_t>(a)] > ritardi[static_cast<size_t>(b)];
  });
  return numeri;
}

template <Suffisso kSuffisso>
Result<Variant> PiuRitardatario(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto classifica, Classifica(lib, kSuffisso, args, 0));
  return Variant::Integer(static_cast<int16_t>(classifica.front()));
}

template <Suffisso kSuffisso>
Result<Variant> PiuRitardatari(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto classifica, Classifica(lib, kSuffisso, args, 2));
  VBS_TRY_ASSIGN(auto quanti, InteroTra(args, 0, 1, static_cast<int>(classifica.size()), "Quantita'"));
  args.Out(1) = ArrayDaUno(std::span<const int>(classifica).first(static_cast<size_t>(quanti)));
  return Variant();
}

template <Suffisso kSuffisso>
Result<Variant> PosNumeroRit(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto numero, NumeroDelGioco(*tab, args, 0));
  VBS_TRY_ASSIGN(auto classifica, Classifica(lib, kSuffisso, args, 1));
  const auto posto = std::find(classifica.begin(), classifica.end(), numero);
  return Variant::Integer(static_cast<int16_t>(posto - classifica.begin() + 1));
}

template <Suffisso kSuffisso>
Result<Variant> NumeroPosRit(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto classifica, Classifica(lib, kSuffisso, args, 1));
  VBS_TRY_ASSIGN(auto posto, InteroTra(args, 0, 1, static_cast<int>(classifica.size()), "Posizione in classifica"));
  return Variant::Integer(static_cast<int16_t>(classifica[static_cast<size_t>(posto - 1)]));
}

// Numero at i and its position 1..N at i + 1.
struct NumeroInPosizione {
  int numero = 0;
  int posizione = 0;
};

Result<NumeroInPosizione> NumeroInPosizioneArgomento(const TabellaGioco& tab, const CallArgs& args, size_t i,
                                                     std::string_view nome_posizione) {
  VBS_TRY_ASSIGN(auto numero, NumeroDelGioco(tab, args, i));
  VBS_TRY_ASSIGN(auto posizione, InteroTra(args, i + 1, 1, tab.formato().numeri, nome_posizione));
  return NumeroInPosizione{numero, posizione};
}

bool InPosizione(const EstrazioneGioco& estrazione, const NumeroInPosizione& posto) {
  return estrazione.numeri[static_cast<size_t>(posto.posizione - 1)] == posto.numero;
}

// Numero, Posizione, [Inizio], [Fine].
template <Suffisso kSuffisso>
Result<Variant> RitPos(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto posto, NumeroInPosizioneArgomento(*tab, args, 0, "Posizione"));
  VBS_TRY_ASSIGN(auto intervallo, IntervalloOrdinato(*tab, args, 2, 3));
  return Variant::Long(stats::PercorsoGioco(*tab, intervallo.inizio, intervallo.fine, [&](const EstrazioneGioco& e) {
                         return InPosizione(e, posto);
                       }).ritardo);
}

// Numero1, Posizione1, Numero2, Posizione2, [Inizio], [Fine].
template <Suffisso kSuffisso>
Result<Variant> AmboPosRit(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto primo, NumeroInPosizioneArgomento(*tab, args, 0, "Posizione1"));
  VBS_TRY_ASSIGN(auto secondo, NumeroInPosizioneArgomento(*tab, args, 2, "Posizione2"));
  if (primo.numero == secondo.numero || primo.posizione == secondo.posizione)
    return ArgomentoNonValido("Un ambo posizionale vuole due numeri diversi in due posizioni diverse");
  VBS_TRY_ASSIGN(auto intervallo, IntervalloOrdinato(*tab, args, 4, 5));
  return Variant::Long(stats::PercorsoGioco(*tab, intervallo.inizio, intervallo.fine, [&](const EstrazioneGioco& e) {
                         return InPosizione(e, primo) && InPosizione(e, secondo);
                       }).ritardo);
}

const FunzioneDeiGiochi kElenchiGiochi[] = {
    {"ElencoRitardi", 1, 3, LOTTOLAB_PER_OGNI_GIOCO(ElencoRitardi),
     "aRet, [Inizio = 1], [Fine = ultima estrazione]: riempie aRet(1..{m}) con il ritardo di ogni numero in "
     "Inizio..Fine, come lo dà EstrattoRitardo",
     "niente (Sub): in aRet (array da 1) il ritardo di ogni numero",
     "ElencoRitardi{s} aR : Scrivi \"ritardo del 7: \" & aR(7)"},
    {"PiuRitardatario", 0, 1, LOTTOLAB_PER_OGNI_GIOCO(PiuRitardatario),
     "[Fine = ultima estrazione]: il numero con il ritardo maggiore a Fine, il più piccolo tra quelli a pari "
     "ritardo (Integer)",
     "Integer: il numero più ritardatario", "Scrivi PiuRitardatario{s}(EstrazioniArchivio{s})"},
    {"PiuRitardatari", 2, 3, LOTTOLAB_PER_OGNI_GIOCO(PiuRitardatari),
     "Quanti, aRet, [Fine = ultima estrazione]: riempie aRet(1..Quanti) con i Quanti (1..{m}) numeri più "
     "ritardatari a Fine, dal più ritardatario in giù, a pari ritardo prima il numero più piccolo",
     "niente (Sub): in aRet (array da 1) i numeri, dal più ritardatario",
     "PiuRitardatari{s} 5, aN : Scrivi Join(aN, \" \")"},
    {"PosNumeroRit", 1, 2, LOTTOLAB_PER_OGNI_GIOCO(PosNumeroRit),
     "Numero, [Fine = ultima estrazione]: il posto di Numero nella classifica di PiuRitardatari, 1 per il più "
     "ritardatario (Integer)",
     "Integer: il posto in classifica, 1 il più ritardatario", "Scrivi PosNumeroRit{s}(7)"},
    {"NumeroPosRit", 1, 2, LOTTOLAB_PER_OGNI_GIOCO(NumeroPosRit),
     "Posizione, [Fine = ultima estrazione]: il numero al posto Posizione (1..{m}) della classifica di "
     "PiuRitardatari (Integer)",
     "Integer: il numero a quel posto della classifica", "Scrivi NumeroPosRit{s}(2)"},
    {"RitPos", 2, 4, LOTTOLAB_PER_OGNI_GIOCO(RitPos),
     "Numero, Posizione, [Inizio = 1], [Fine = ultima estrazione]: il ritardo di Numero uscito nella sola posizione "
     "Posizione (1..{n}) a Fine (Long)",
     "Long: il ritardo del numero in quella posizione", "Scrivi RitPos{s}(7, 1)"},
    {"AmboPosRit", 4, 6, LOTTOLAB_PER_OGNI_GIOCO(AmboPosRit),
     "Numero1, Posizione1, Numero2, Posizione2, [Inizio = 1], [Fine = ultima estrazione]: il ritardo dell'ambo "
     "posizionale a Fine: le estrazioni dopo l'ultima con Numero1 in Posizione1 e Numero2 in Posizione2 (due "
     "posizioni diverse, 1..{n}) (Long)",
     "Long: il ritardo dell'ambo posizionale", "Scrivi AmboPosRit{s}(3, 1, 7, 2)"},
};

const Libreria::Funzione kOro[] = {
    {"ElencoRitardiNumeroOroDL", 1, 3, &ElencoRitardiNumeroOroDL,
     "aRet, [Inizio = 1], [Fine = ultima estrazione]: riempie aRet(1..90) con il ritardo di ogni numero come Numero "
     "Oro del 10eLotto in Inizio..Fine",
     "niente (Sub): in aRet (array da 1) il ritardo di ogni numero come Numero Oro",
     "ElencoRitardiNumeroOroDL aR : Scrivi \"ritardo del 7 come Oro: \" & aR(7)"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniGiochiElenchi() {
  static const std::vector<Libreria::Funzione> funzioni = DeclinaPerGioco(kElenchiGiochi, kOro);
  return funzioni;
}

}  // namespace lottolab::script
