// Delays, frequencies and historical maxima in the archives of the games besides the Lotto: of one
// number, an ambo, any group played as a whole, a formation of the run, and of the special numbers
// that some games draw beside the main ones (Numero Oro, Numerone).

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <vector>

#include "ArgomentiRitardi.h"
#include "FamigliaGiochi.h"
#include "Formazioni.h"

namespace lottolab::script {

namespace {

using namespace famiglia;
using stats::StatisticaNumero;
using Figura = int StatisticaNumero::*;
using S = Suffisso;

constexpr auto kRitardo = &StatisticaNumero::ritardo;
constexpr auto kFrequenza = &StatisticaNumero::frequenza;
constexpr auto kStorico = &StatisticaNumero::storico;
constexpr auto kIncrStorico = &StatisticaNumero::incr_storico;

StatisticaNumero Statistica(const MisuraGioco& m) {
  return stats::StatisticaCombinazioneGioco(*m.tab, m.numeri, m.sorte, m.fine, m.inizio, m.posizioni);
}

// kNumeri numbers, [Inizio], [Fine], [aPosizioni]: one figure.
template <int kNumeri, Figura kFigura>
struct FiguraDiNumeri {
  template <Suffisso kSuffisso>
  static Result<Variant> Calcola(Libreria& lib, CallArgs& args) {
    VBS_TRY_ASSIGN(auto misura, MisuraNumeriGioco(lib, kSuffisso, args, kNumeri));
    return Variant::Long(Statistica(misura).*kFigura);
  }
};

// The four figures into the variables RetRit, RetRitMax, RetIncrRitMax, RetFreq from argument i on.
void RestituisciFigure(CallArgs& args, size_t i, const StatisticaNumero& dati) {
  args.Out(i) = Variant::Long(dati.ritardo);
  args.Out(i + 1) = Variant::Long(dati.storico);
  args.Out(i + 2) = Variant::Long(dati.incr_storico);
  args.Out(i + 3) = Variant::Long(dati.frequenza);
}

// kNumeri numbers, Inizio, Fine, then the four variables.
template <int kNumeri>
struct StatDiNumeri {
  template <Suffisso kSuffisso>
  static Result<Variant> Calcola(Libreria& lib, CallArgs& args) {
    VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
    MisuraGioco misura;
    misura.tab = tab;
    for (size_t i = 0; i < static_cast<size_t>(kNumeri); ++i) {
      VBS_TRY_ASSIGN(auto numero, NumeroDelGioco(*tab, args, i));
      misura.numeri.push_back(numero);
    }
    misura.sorte = kNumeri;
    VBS_TRY_ASSIGN(auto intervallo, IntervalloGioco(*tab, args, kNumeri, kNumeri + 1));
    misura.inizio = intervallo.inizio;
    misura.fine = intervallo.fine;
    RestituisciFigure(args, kNumeri + 2, Statistica(misura));
    return Variant();
  }
};

// aNumeri, Sorte, Fine, [aPosizioni], [Inizio].
template <Suffisso kSuffisso>
Result<Variant> RitardoCombinazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto misura, MisuraGruppoGioco(lib, kSuffisso, args, {.inizio = 4, .fine = 2, .posizioni = 3}));
  return Variant::Long(Statistica(misura).ritardo);
}

constexpr PostiGioco kPostiSerie{.inizio = 2, .fine = 3, .posizioni = 4};

template <Figura kFigura>
struct FiguraSerie {
  template <Suffisso kSuffisso>
  static Result<Variant> Calcola(Libreria& lib, CallArgs& args) {
    VBS_TRY_ASSIGN(auto misura, MisuraGruppoGioco(lib, kSuffisso, args, kPostiSerie));
    return Variant::Long(Statistica(misura).*kFigura);
  }
};

// The first draw of the range where the group won; 0 when it never did.
template <Suffisso kSuffisso>
Result<Variant> SeriePrima(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto m, MisuraGruppoGioco(lib, kSuffisso, args, kPostiSerie));
  const std::vector<bool> vincite = stats::VinciteGioco(*m.tab, m.numeri, m.sorte, m.fine, m.inizio, m.posizioni);
  const auto prima = std::find(vincite.begin(), vincite.end(), true);
  return Variant::Long(prima == vincite.end() ? 0 : m.inizio + static_cast<int>(prima - vincite.begin()));
}

// The draw where the delay first reached its historical maximum: the last draw of the first run that
// long; 0 when the maximum is 0.
template <Suffisso kSuffisso>
Result<Variant> SerieEstrazioneStorico(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto m, MisuraGruppoGioco(lib, kSuffisso, args, kPostiSerie));
  const std::vector<bool> vincite = stats::VinciteGioco(*m.tab, m.numeri, m.sorte, m.fine, m.inizio, m.posizioni);
  int corsa = 0, massimo = 0, quando = 0;
  for (size_t i = 0; i < vincite.size(); ++i) {
    corsa = vincite[i] ? 0 : corsa + 1;
    if (corsa > massimo) {
      massimo = corsa;
      quando = m.inizio + static_cast<int>(i);
    }
  }
  return Variant::Long(quando);
}

// aNumeri, Sorte, RetRit, RetRitMax, RetIncrRitMax, RetFreq, [Inizio], [Fine].
template <Suffisso kSuffisso>
Result<Variant> StatisticaFormazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto misura, MisuraGruppoGioco(lib, kSuffisso, args, {.inizio = 6, .fine = 7, .posizioni = {}}));
  RestituisciFigure(args, 2, Statistica(misura));
  return Variant();
}

// Sorte, [Inizio], [Fine]: the table of the run's formations.
template <Suffisso kSuffisso>
Result<Variant> StatisticaGruppoFormazioni(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto sorte, InteroTra(args, 0, 1, tab->formato().numeri, "Sorte"));
  VBS_TRY_ASSIGN(auto intervallo, IntervalloGioco(*tab, args, 1, 2));
  const auto& formazioni = FormazioniDellEsecuzione(lib);
  if (formazioni.empty()) return ArgomentoNonValido("Nessuna formazione nel gruppo statistico");
  constexpr std::string_view kRiga = "{:>10} {:>8} {:>8} {:>8} {:>8}  {}\n";
  lib.Scrivi(fmt::format(kRiga, "Formazione", "Rit", "RitMax", "IncrMax", "Freq", "Numeri"), lib.colore_testo(), true);
  for (size_t i = 0; i < formazioni.size(); ++i) {
    std::vector<int> numeri = formazioni[i];
    std::erase_if(numeri, [&](int n) { return n > tab->formato().massimo; });
    const StatisticaNumero s =
        stats::StatisticaCombinazioneGioco(*tab, numeri, sorte, intervallo.fine, intervallo.inizio);
    lib.Scrivi(
        fmt::format(kRiga, i + 1, s.ritardo, s.storico, s.incr_storico, s.frequenza, NumeriInTesto(formazioni[i])),
        lib.colore_testo(), false);
  }
  return Variant();
}

// Numero, Inizio, Fine, RetRit, RetRitMax, RetIncrRitMax, RetFreq for the special number `speciale`
// (0 the Numero Oro or the Numerone): it wins where that number is the one drawn.
template <Suffisso kSuffisso>
Result<Variant> StatisticaNumeroSpeciale(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, kSuffisso));
  VBS_TRY_ASSIGN(auto numero, NumeroDelGioco(*tab, args, 0));
  VBS_TRY_ASSIGN(auto intervallo, IntervalloGioco(*tab, args, 1, 2));
  RestituisciFigure(args, 3,
                    stats::PercorsoGioco(*tab, intervallo.inizio, intervallo.fine,
                                         [numero](const EstrazioneGioco& e) { return e.speciali[0] == numero; }));
  return Variant();
}

const FunzioneDeiGiochi kStatisticheGiochi[] = {
    {"EstrattoRitardo", 1, 4, LOTTOLAB_PER_OGNI_GIOCO(FiguraDiNumeri<1, kRitardo>::Calcola),
     "Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni(1..{n})]: le estrazioni da Fine indietro fino "
     "all'ultima in cui Numero (1..{m}) è uscito tra i numeri principali (Long)",
     "Long: il ritardo a Fine (0 se uscito proprio a Fine)", "Scrivi EstrattoRitardo{s}(7, 1, EstrazioniArchivio{s})"},
    {"RitardoEstratto", 1, 4, LOTTOLAB_PER_OGNI_GIOCO(FiguraDiNumeri<1, kRitardo>::Calcola),
     "Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni(1..{n})]: lo stesso di EstrattoRitardo (Long)",
     "Long: il ritardo a Fine (0 se uscito proprio a Fine)", "Scrivi RitardoEstratto{s}(7)"},
    {"EstrattoFrequenza", 1, 4, LOTTOLAB_PER_OGNI_GIOCO(FiguraDiNumeri<1, kFrequenza>::Calcola),
     "Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni(1..{n})]: le estrazioni di Inizio..Fine in cui "
     "Numero è uscito (Long)",
     "Long: in quante estrazioni di Inizio..Fine il numero è uscito",
     "Scrivi EstrattoFrequenza{s}(7, EstrazioniArchivio{s} - 99, EstrazioniArchivio{s})"},
    {"EstrattoStorico", 1, 4, LOTTOLAB_PER_OGNI_GIOCO(FiguraDiNumeri<1, kStorico>::Calcola),
     "Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni(1..{n})]: il massimo storico di Numero in "
     "Inizio..Fine, compreso il ritardo in corso (Long)",
     "Long: il ritardo massimo, quello in corso compreso", "Scrivi EstrattoStorico{s}(7)"},
    {"EstrattoIncrStorico", 1, 4, LOTTOLAB_PER_OGNI_GIOCO(FiguraDiNumeri<1, kIncrStorico>::Calcola),
     "Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni(1..{n})]: di quanto il ritardo a Fine supera "
     "ogni serie chiusa da un'uscita in Inizio..Fine, 0 se non le supera tutte (Long)",
     "Long: di quanto il ritardo in corso supera il massimo delle serie chiuse, 0 se non lo supera",
     "Scrivi EstrattoIncrStorico{s}(7)"},
    {"AmboRitardo", 2, 5, LOTTOLAB_PER_OGNI_GIOCO(FiguraDiNumeri<2, kRitardo>::Calcola),
     "Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni(1..{n})]: il ritardo dell'ambo a Fine, "
     "con entrambi i numeri tra i principali della stessa estrazione (Long)",
     "Long: il ritardo dell'ambo a Fine", "Scrivi AmboRitardo{s}(3, 7)"},
    {"AmboFrequenza", 2, 5, LOTTOLAB_PER_OGNI_GIOCO(FiguraDiNumeri<2, kFrequenza>::Calcola),
     "Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni(1..{n})]: la frequenza dell'ambo in "
     "Inizio..Fine (Long)",
     "Long: in quante estrazioni è uscito l'ambo", "Scrivi AmboFrequenza{s}(3, 7)"},
    {"AmboStorico", 2, 5, LOTTOLAB_PER_OGNI_GIOCO(FiguraDiNumeri<2, kStorico>::Calcola),
     "Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni(1..{n})]: il massimo storico "
     "dell'ambo in Inizio..Fine (Long)",
     "Long: il ritardo massimo dell'ambo, quello in corso compreso", "Scrivi AmboStorico{s}(3, 7)"},
    {"AmboIncrStorico", 2, 5, LOTTOLAB_PER_OGNI_GIOCO(FiguraDiNumeri<2, kIncrStorico>::Calcola),
     "Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni(1..{n})]: l'incremento del massimo "
     "storico dell'ambo a Fine (Long)",
     "Long: di quanto il ritardo in corso dell'ambo supera il massimo precedente, 0 se non lo supera",
     "Scrivi AmboIncrStorico{s}(3, 7)"},
    {"StatEstratto", 7, 7, LOTTOLAB_PER_OGNI_GIOCO(StatDiNumeri<1>::Calcola),
     "Numero, Inizio, Fine, RetRit, RetRitMax, RetIncrRitMax, RetFreq: il ritardo, il massimo storico, il suo "
     "incremento e la frequenza di Numero in Inizio..Fine, nelle quattro variabili",
     "niente (Sub): in RetRit, RetRitMax, RetIncrRitMax e RetFreq (Long) le quattro figure",
     "StatEstratto{s} 7, 1, EstrazioniArchivio{s}, r, rm, ir, fq : Scrivi r & \" \" & rm & \" \" & ir & \" \" & fq"},
    {"StatAmbo", 8, 8, LOTTOLAB_PER_OGNI_GIOCO(StatDiNumeri<2>::Calcola),
     "Numero1, Numero2, Inizio, Fine, RetRit, RetRitMax, RetIncrRitMax, RetFreq: StatEstratto per l'ambo",
     "niente (Sub): in RetRit, RetRitMax, RetIncrRitMax e RetFreq (Long) le quattro figure dell'ambo",
     "StatAmbo{s} 3, 7, 1, EstrazioniArchivio{s}, r, rm, ir, fq : Scrivi r & \" \" & rm & \" \" & ir & \" \" & fq"},
    {"RitardoCombinazione", 3, 5, LOTTOLAB_PER_OGNI_GIOCO(RitardoCombinazione),
     "aNumeri, Sorte, Fine, [aPosizioni(1..{n})], [Inizio = 1]: le estrazioni da Fine indietro fino all'ultima in "
     "cui almeno Sorte (1..{n}) numeri di aNumeri sono usciti tra i principali (Long)",
     "Long: il ritardo della combinazione per Sorte a Fine",
     "Scrivi RitardoCombinazione{s}(Array(3, 7, 12), 2, EstrazioniArchivio{s})"},
    {"SerieRitardo", 2, 5, LOTTOLAB_PER_OGNI_GIOCO(FiguraSerie<kRitardo>::Calcola),
     "aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni(1..{n})]: il ritardo a Fine del gruppo "
     "giocato nel suo insieme per Sorte (Long)",
     "Long: il ritardo del gruppo per Sorte a Fine", "Scrivi SerieRitardo{s}(Array(3, 7, 12), 2)"},
    {"SerieFreq", 2, 5, LOTTOLAB_PER_OGNI_GIOCO(FiguraSerie<kFrequenza>::Calcola),
     "aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni(1..{n})]: le estrazioni di Inizio..Fine "
     "in cui il gruppo ha vinto per Sorte (Long)",
     "Long: in quante estrazioni il gruppo ha vinto per Sorte", "Scrivi SerieFreq{s}(Array(3, 7, 12), 2)"},
    {"SerieStorico", 2, 5, LOTTOLAB_PER_OGNI_GIOCO(FiguraSerie<kStorico>::Calcola),
     "aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni(1..{n})]: il massimo storico del gruppo "
     "in Inizio..Fine, compreso il ritardo in corso (Long)",
     "Long: il ritardo massimo del gruppo, quello in corso compreso", "Scrivi SerieStorico{s}(Array(3, 7, 12), 2)"},
    {"SeriePrima", 2, 5, LOTTOLAB_PER_OGNI_GIOCO(SeriePrima),
     "aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni(1..{n})]: la prima estrazione di "
     "Inizio..Fine in cui il gruppo ha vinto, 0 se non ha mai vinto (Long)",
     "Long: l'IdEstr della prima vincita in Inizio..Fine, 0 se mai", "Scrivi SeriePrima{s}(Array(3, 7, 12), 2)"},
    {"SerieEstrazioneStorico", 2, 5, LOTTOLAB_PER_OGNI_GIOCO(SerieEstrazioneStorico),
     "aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni(1..{n})]: l'estrazione in cui il "
     "ritardo del gruppo ha raggiunto per la prima volta il suo massimo storico; 0 se il massimo è 0 (Long)",
     "Long: l'IdEstr in cui il ritardo ha toccato per la prima volta il massimo storico, 0 se il massimo è 0",
     "Scrivi SerieEstrazioneStorico{s}(Array(3, 7, 12), 2)"},
    {"StatisticaFormazione", 6, 8, LOTTOLAB_PER_OGNI_GIOCO(StatisticaFormazione),
     "aNumeri, Sorte, RetRit, RetRitMax, RetIncrRitMax, RetFreq, [Inizio = 1], [Fine = ultima estrazione]: le "
     "quattro figure di aNumeri giocati in blocco per Sorte (1..{n}) in Inizio..Fine, nelle quattro variabili",
     "niente (Sub): in RetRit, RetRitMax, RetIncrRitMax e RetFreq (Long) le quattro figure",
     "StatisticaFormazione{s} Array(3, 7, 12), 2, r, rm, ir, fq : Scrivi r & \" \" & rm & \" \" & ir & \" \" & fq"},
    {"StatisticaGruppoFormazioni", 1, 3, LOTTOLAB_PER_OGNI_GIOCO(StatisticaGruppoFormazioni),
     "Sorte, [Inizio = 1], [Fine = ultima estrazione]: scrive una tabella con una riga per ogni formazione del "
     "gruppo statistico: il suo indice, le quattro figure di StatisticaFormazione e i suoi numeri",
     "niente (Sub): scrive la tabella; errore 5 se il gruppo statistico è vuoto",
     "AddItemFormazioneMultipla Array(3, 7, 12) : StatisticaGruppoFormazioni{s} 2"},
};

const Libreria::Funzione kNumeriSpeciali[] = {
    {"StatisticaNumeroOroDL", 7, 7, &StatisticaNumeroSpeciale<S::DL>,
     "Numero, Inizio, Fine, RetRit, RetRitMax, RetIncrRitMax, RetFreq: il ritardo, il massimo storico, il suo "
     "incremento e la frequenza di Numero come Numero Oro del 10eLotto in Inizio..Fine, nelle quattro variabili",
     "niente (Sub): in RetRit, RetRitMax, RetIncrRitMax e RetFreq (Long) le quattro figure",
     "StatisticaNumeroOroDL 7, 1, EstrazioniArchivioDL, r, rm, ir, fq : Scrivi r & \" \" & rm & \" \" & ir & \" \" & "
     "fq"},
    {"StatisticaNumeroOroWF", 7, 7, &StatisticaNumeroSpeciale<S::WF>,
     "Numero, Inizio, Fine, RetRit, RetRitMax, RetIncrRitMax, RetFreq: le quattro figure di Numero (1..20) come "
     "Numerone del Win for Life in Inizio..Fine, nelle quattro variabili",
     "niente (Sub): in RetRit, RetRitMax, RetIncrRitMax e RetFreq (Long) le quattro figure",
     "StatisticaNumeroOroWF 7, 1, EstrazioniArchivioWF, r, rm, ir, fq : Scrivi r & \" \" & rm & \" \" & ir & \" \" & "
     "fq"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniGiochiStatistiche() {
  static const std::vector<Libreria::Funzione> funzioni = DeclinaPerGioco(kStatisticheGiochi, kNumeriSpeciali);
  return funzioni;
}

}  // namespace lottolab::script
