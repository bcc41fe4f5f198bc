// Frequencies, historical maxima and their increments, the figures of a group of numbers played as a
// whole, and the Turbo forms that answer from the index of the run's wins, built at the first call.
//
// A Turbo form gives what its plain form gives, figure for figure: the index answers any group on
// every position, and a group measured on some positions only, which the index does not keep, takes
// the plain walk. So a script can use the Turbo names everywhere and never get a different figure.

#include <algorithm>
#include <optional>

#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "TabelleEsecuzione.h"

namespace lottolab::script {

namespace {

using namespace famiglia;
using stats::StatisticaNumero;
using Figura = int StatisticaNumero::*;

enum class Calcolo { kPercorso, kTurbo };

constexpr auto kRitardo = &StatisticaNumero::ritardo;
constexpr auto kFrequenza = &StatisticaNumero::frequenza;
constexpr auto kStorico = &StatisticaNumero::storico;
constexpr auto kIncrStorico = &StatisticaNumero::incr_storico;
constexpr auto kPercorso = Calcolo::kPercorso;
constexpr auto kTurbo = Calcolo::kTurbo;

// The plain forms walk the range, over the columns of the draws.
StatisticaNumero Percorso(Libreria& lib, const Misura& m) {
  const stats::ColonneRuote& colonne = ColonneDellEsecuzione(lib, *m.tab);
  return stats::StatisticaCombinazione(colonne, m.giocata.ruote, m.giocata.numeri, m.giocata.sorte, m.fine, m.posizioni,
                                       m.inizio);
}

// The index keeps every position: a group measured on some positions only takes the walk.
bool NellIndice(const Misura& m) { return m.posizioni == stats::kTuttePosizioni; }

// The delay walks back from Fine only as far as the last win, where the other figures walk the range.
int RitardoGruppo(Libreria& lib, const Misura& m, Calcolo calcolo) {
  const Giocata& g = m.giocata;
  if (calcolo == Calcolo::kPercorso || !NellIndice(m))
    return stats::RitardoCombinazione(*m.tab, g.ruote, g.numeri, g.sorte, m.fine, m.posizioni, m.inizio);
  return IndiceDellEsecuzione(lib, *m.tab).RitardoGruppo(g.ruote, g.numeri, g.sorte, m.inizio, m.fine);
}

StatisticaNumero StatisticaGruppo(Libreria& lib, const Misura& m, Calcolo calcolo) {
  const Giocata& g = m.giocata;
  if (calcolo == Calcolo::kPercorso || !NellIndice(m)) return Percorso(lib, m);
  return IndiceDellEsecuzione(lib, *m.tab).Gruppo(g.ruote, g.numeri, g.sorte, m.inizio, m.fine);
}

// Ruota and kNumeri numbers, [Inizio], [Fine], [aPosizioni]: one figure.
template <int kNumeri, Figura kFigura, Calcolo kCalcolo>
Result<Variant> FiguraSuRuota(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto misura, MisuraSuRuota(lib, args, kNumeri, PostiDopoINumeri(kNumeri)));
  if (kFigura == kRitardo) return Variant::Long(RitardoGruppo(lib, misura, kCalcolo));
  return Variant::Long(StatisticaGruppo(lib, misura, kCalcolo).*kFigura);
}

// The four figures into the variables RetRit, RetRitMax, RetIncrRitMax, RetFreq from argument i on.
void RestituisciFigure(CallArgs& args, size_t i, const StatisticaNumero& dati) {
  args.Out(i) = Variant::Long(dati.ritardo);
  args.Out(i + 1) = Variant::Long(dati.storico);
  args.Out(i + 2) = Variant::Long(dati.incr_storico);
  args.Out(i + 3) = Variant::Long(dati.frequenza);
}

// Ruota and kNumeri numbers, [Inizio], [Fine], then the four variables that receive the figures.
template <int kNumeri, Calcolo kCalcolo>
Result<Variant> StatSuRuota(Libreria& lib, CallArgs& args) {
  constexpr size_t kInizio = kNumeri + 1;
  VBS_TRY_ASSIGN(auto misura,
                 MisuraSuRuota(lib, args, kNumeri, {.inizio = kInizio, .fine = kInizio + 1, .posizioni = {}}));
  RestituisciFigure(args, kInizio + 2, StatisticaGruppo(lib, misura, kCalcolo));
  return Variant();
}

// aRuote, aNumeri, Sorte, [Inizio], [Fine], then the four variables that receive the figures.
Result<Variant> StatFrzTurbo(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto misura, MisuraGruppo(lib, args, {.inizio = 3, .fine = 4, .posizioni = {}}));
  RestituisciFigure(args, 5, StatisticaGruppo(lib, misura, Calcolo::kTurbo));
  return Variant();
}

constexpr PostiFacoltativi kPostiSerie{.inizio = 3, .fine = 4, .posizioni = 5};

// aRuote, aNumeri, Sorte, [Inizio], [Fine], [aPosizioni]: one figure of the group.
template <Figura kFigura, Calcolo kCalcolo>
Result<Variant> FiguraSerie(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto misura, MisuraGruppo(lib, args, kPostiSerie));
  return Variant::Long(StatisticaGruppo(lib, misura, kCalcolo).*kFigura);
}

template <Calcolo kCalcolo>
Result<Variant> SerieRitardo(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto misura, MisuraGruppo(lib, args, kPostiSerie));
  return Variant::Long(RitardoGruppo(lib, misura, kCalcolo));
}

Result<Variant> RitardoCombinazioneTurbo(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto misura, MisuraGruppo(lib, args, {.inizio = 5, .fine = 3, .posizioni = 4}));
  return Variant::Long(RitardoGruppo(lib, misura, Calcolo::kTurbo));
}

// The draw at element i of a series over Inizio..Fine; 0 for no element.
using Scelta = std::optional<size_t> (*)(const std::vector<int>& serie);
using Serie = std::vector<int> (*)(const TabellaEstrazioni&, std::span<const int>, std::span<const int>, int, int,
                                   const stats::Posizioni&, int);

template <Serie kSerie, Scelta kScelta>
Result<Variant> EstrazioneDellaSerie(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto misura, MisuraGruppo(lib, args, kPostiSerie));
  const Misura& m = misura;
  const std::vector<int> serie =
      kSerie(*m.tab, m.giocata.ruote, m.giocata.numeri, m.giocata.sorte, m.fine, m.posizioni, m.inizio);
  const std::optional<size_t> elemento = kScelta(serie);
  return Variant::Long(elemento ? m.inizio + static_cast<int>(*elemento) : 0);
}

// On the series of frequencies, the first and the last element where the frequency grows.
std::optional<size_t> PrimaVincita(const std::vector<int>& frequenze) {
  auto vinta = std::find_if(frequenze.begin(), frequenze.end(), [](int f) { return f > 0; });
  if (vinta == frequenze.end()) return std::nullopt;
  return static_cast<size_t>(vinta - frequenze.begin());
}

std::optional<size_t> UltimaVincita(const std::vector<int>& frequenze) {
  for (size_t i = frequenze.size(); i-- > 0;)
    if (frequenze[i] > (i == 0 ? 0 : frequenze[i - 1])) return i;
  return std::nullopt;
}

// On the series of historical maxima, the first element that holds the final one: the last draw of
// the first run that reached it. None when the maximum is 0.
std::optional<size_t> FineDelMassimo(const std::vector<int>& storici) {
  if (storici.empty() || storici.back() == 0) return std::nullopt;
  return static_cast<size_t>(std::find(storici.begin(), storici.end(), storici.back()) - storici.begin());
}

const Libreria::Funzione kStatistiche[] = {
    {"EstrattoFrequenza", 2, 5, &FiguraSuRuota<1, kFrequenza, kPercorso>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: le estrazioni di Inizio..Fine in cui "
     "Numero è uscito su Ruota, una volta per ogni ruota con TU_ (Long)"},
    {"EstrattoStorico", 2, 5, &FiguraSuRuota<1, kStorico, kPercorso>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: il massimo storico di Numero su Ruota, "
     "la serie più lunga di estrazioni di Inizio..Fine senza di esso, compresa quella in corso (Long)"},
    {"EstrattoIncrStorico", 2, 5, &FiguraSuRuota<1, kIncrStorico, kPercorso>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: di quanto il ritardo a Fine supera ogni "
     "serie che una vincita ha chiuso in Inizio..Fine, 0 se non le supera tutte (Long)"},
    {"AmboFrequenza", 3, 6, &FiguraSuRuota<2, kFrequenza, kPercorso>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: la frequenza dell'ambo su "
     "Ruota in Inizio..Fine, una volta per ogni ruota con TU_ (Long)"},
    {"AmboStorico", 3, 6, &FiguraSuRuota<2, kStorico, kPercorso>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: il massimo storico dell'ambo "
     "su Ruota in Inizio..Fine (Long)"},
    {"AmboIncrStorico", 3, 6, &FiguraSuRuota<2, kIncrStorico, kPercorso>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: l'incremento del massimo "
     "storico dell'ambo a Fine (Long)"},
    {"StatEstratto", 8, 8, &StatSuRuota<1, kPercorso>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], RetRit, RetRitMax, RetIncrRitMax, RetFreq: il "
     "ritardo, il massimo storico, il suo incremento e la frequenza di Numero su Ruota, nelle quattro variabili "
     "(Long)"},
    {"StatAmbo", 9, 9, &StatSuRuota<2, kPercorso>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], RetRit, RetRitMax, RetIncrRitMax, RetFreq: "
     "StatEstratto per l'ambo"},
    {"SerieRitardo", 3, 6, &SerieRitardo<kPercorso>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: il ritardo a Fine del gruppo "
     "giocato nel suo insieme per Sorte (1..5) sulle ruote aRuote: come RitardoCombinazione (Long)"},
    {"SerieFreq", 3, 6, &FiguraSerie<kFrequenza, kPercorso>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: le coppie (estrazione, ruota) "
     "di Inizio..Fine in cui almeno Sorte numeri di aNumeri sono usciti su una ruota di aRuote (Long)"},
    {"SerieStorico", 3, 6, &FiguraSerie<kStorico, kPercorso>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: il massimo storico del gruppo "
     "in Inizio..Fine, compreso il ritardo in corso (Long)"},
    {"SeriePrima", 3, 6, &EstrazioneDellaSerie<&stats::SerieFreq, &PrimaVincita>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: la prima estrazione di "
     "Inizio..Fine in cui il gruppo ha vinto, 0 se non ha mai vinto (Long)"},
    {"SerieUltima", 3, 6, &EstrazioneDellaSerie<&stats::SerieFreq, &UltimaVincita>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: l'ultima estrazione di "
     "Inizio..Fine in cui il gruppo ha vinto, 0 se non ha mai vinto (Long)"},
    {"SerieEstrazioneStorico", 3, 6, &EstrazioneDellaSerie<&stats::SerieStorico, &FineDelMassimo>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: l'estrazione di Inizio..Fine "
     "in cui il ritardo del gruppo ha raggiunto per la prima volta il suo massimo storico, l'ultima estrazione della "
     "prima serie così lunga; 0 se il massimo è 0 (Long)"},
    {"EstrattoRitardoTurbo", 2, 5, &FiguraSuRuota<1, kRitardo, kTurbo>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà EstrattoRitardo, dall'indice "
     "delle estrazioni dell'esecuzione, costruito alla prima chiamata Turbo (Long)"},
    {"RitardoEstrattoTurbo", 2, 5, &FiguraSuRuota<1, kRitardo, kTurbo>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: lo stesso di EstrattoRitardoTurbo "
     "(Long)"},
    {"EstrattoFrequenzaTurbo", 2, 5, &FiguraSuRuota<1, kFrequenza, kTurbo>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà EstrattoFrequenza, "
     "dall'indice dell'esecuzione (Long)"},
    {"EstrattoStoricoTurbo", 2, 5, &FiguraSuRuota<1, kStorico, kTurbo>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà EstrattoStorico, dall'indice "
     "dell'esecuzione (Long)"},
    {"EstrattoIncrStoricoTurbo", 2, 5, &FiguraSuRuota<1, kIncrStorico, kTurbo>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà EstrattoIncrStorico, "
     "dall'indice dell'esecuzione (Long)"},
    {"AmboRitardoTurbo", 3, 6, &FiguraSuRuota<2, kRitardo, kTurbo>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà AmboRitardo, "
     "dall'indice dell'esecuzione (Long)"},
    {"AmboFrequenzaTurbo", 3, 6, &FiguraSuRuota<2, kFrequenza, kTurbo>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà AmboFrequenza, "
     "dall'indice dell'esecuzione (Long)"},
    {"AmboStoricoTurbo", 3, 6, &FiguraSuRuota<2, kStorico, kTurbo>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà AmboStorico, "
     "dall'indice dell'esecuzione (Long)"},
    {"AmboIncrStoricoTurbo", 3, 6, &FiguraSuRuota<2, kIncrStorico, kTurbo>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà AmboIncrStorico, "
     "dall'indice dell'esecuzione (Long)"},
    {"StatAmboTurbo", 9, 9, &StatSuRuota<2, kTurbo>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], RetRit, RetRitMax, RetIncrRitMax, RetFreq: "
     "ciò che dà StatAmbo, dall'indice dell'esecuzione"},
    {"StatFrzTurbo", 9, 9, &StatFrzTurbo,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], RetRit, RetRitMax, RetIncrRitMax, RetFreq: "
     "il ritardo, il massimo storico, il suo incremento e la frequenza di aNumeri giocati in blocco per Sorte (1..5) "
     "su aRuote in Inizio..Fine, nelle quattro variabili: ciò che dà StatisticaFormazione, dall'indice "
     "dell'esecuzione"},
    {"RitardoCombinazioneTurbo", 4, 6, &RitardoCombinazioneTurbo,
     "aRuote, aNumeri, Sorte, Fine, [aPosizioni], [Inizio]: ciò che dà RitardoCombinazione, dall'indice "
     "dell'esecuzione (Long)"},
    {"SerieRitardoTurbo", 3, 6, &SerieRitardo<kTurbo>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà SerieRitardo, "
     "dall'indice dell'esecuzione (Long)"},
    {"SerieFreqTurbo", 3, 6, &FiguraSerie<kFrequenza, kTurbo>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà SerieFreq, "
     "dall'indice dell'esecuzione (Long)"},
    {"SerieStoricoTurbo", 3, 6, &FiguraSerie<kStorico, kTurbo>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà SerieStorico, "
     "dall'indice dell'esecuzione (Long)"},
};

}  // namespace

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniStatistiche() { return kStatistiche; }

}  // namespace lottolab::script
