// Frequencies, historical maxima and their increments, the figures of a group of numbers played as a
// whole, and the Turbo forms that answer from tables of the draws built once per run.
//
// A Turbo form gives what its plain form gives, figure for figure. One number or one ambo on one
// wheel is read from the index of its wins; any other combination on every position from the draws
// held as sets of numbers; a combination on some positions only, which neither table keeps, takes the
// plain walk. So a script can use the Turbo names everywhere and never get a different figure.

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
  return stats::StatisticaCombinazione(colonne, m.giocata.ruote, m.giocata.numeri, m.giocata.sorte, m.fine,
                                       m.posizioni, m.inizio);
}

// The sets of numbers hold every position: a group measured on some positions only takes the walk.
bool NegliInsiemi(const Misura& m) { return m.posizioni == stats::kTuttePosizioni; }

int RitardoGruppo(Libreria& lib, const Misura& m, Calcolo calcolo) {
  const Giocata& g = m.giocata;
  if (calcolo == Calcolo::kPercorso || !NegliInsiemi(m))
    return stats::RitardoCombinazione(*m.tab, g.ruote, g.numeri, g.sorte, m.fine, m.posizioni, m.inizio);
  return InsiemiDellEsecuzione(lib, *m.tab).Ritardo(g.ruote, g.numeri, g.sorte, m.inizio, m.fine);
}

StatisticaNumero StatisticaGruppo(Libreria& lib, const Misura& m, Calcolo calcolo) {
  const Giocata& g = m.giocata;
  if (calcolo == Calcolo::kPercorso || !NegliInsiemi(m)) return Percorso(lib, m);
  return InsiemiDellEsecuzione(lib, *m.tab).Statistica(g.ruote, g.numeri, g.sorte, m.inizio, m.fine);
}

bool NellIndice(const Misura& m) {
  const std::vector<int>& numeri = m.giocata.numeri;
  return m.giocata.ruote.size() == 1 && m.posizioni == stats::kTuttePosizioni &&
         (numeri.size() == 1 || (numeri.size() == 2 && numeri[0] != numeri[1]));
}

StatisticaNumero Statistica(Libreria& lib, const Misura& m, Calcolo calcolo) {
  if (calcolo == Calcolo::kPercorso || !NellIndice(m)) return StatisticaGruppo(lib, m, calcolo);
  const stats::IndiceVincite& indice = IndiceDellEsecuzione(lib, *m.tab);
  const int ruota = m.giocata.ruote.front();
  const std::vector<int>& numeri = m.giocata.numeri;
  return numeri.size() == 1 ? indice.Estratto(ruota, numeri[0], m.inizio, m.fine)
                            : indice.Ambo(ruota, numeri[0], numeri[1], m.inizio, m.fine);
}

// Ruota and kNumeri numbers, [Inizio], [Fine], [aPosizioni]: one figure.
template <int kNumeri, Figura kFigura, Calcolo kCalcolo>
Result<Variant> FiguraSuRuota(Libreria& lib, CallArgs& args) {
  auto misura = MisuraSuRuota(lib, args, kNumeri, PostiDopoINumeri(kNumeri));
  if (!misura) return std::move(misura).error();
  // Outside the index a delay is found walking back from Fine only as far as the last win.
  if (kFigura == kRitardo && !NellIndice(*misura)) return Variant::Long(RitardoGruppo(lib, *misura, kCalcolo));
  return Variant::Long(Statistica(lib, *misura, kCalcolo).*kFigura);
}

// Ruota and kNumeri numbers, [Inizio], [Fine], then the four variables that receive the figures.
template <int kNumeri, Calcolo kCalcolo>
Result<Variant> StatSuRuota(Libreria& lib, CallArgs& args) {
  constexpr size_t kInizio = kNumeri + 1;
  auto misura = MisuraSuRuota(lib, args, kNumeri, {.inizio = kInizio, .fine = kInizio + 1, .posizioni = {}});
  if (!misura) return std::move(misura).error();
  const StatisticaNumero dati = Statistica(lib, *misura, kCalcolo);
  args.Out(kInizio + 2) = Variant::Long(dati.ritardo);
  args.Out(kInizio + 3) = Variant::Long(dati.storico);
  args.Out(kInizio + 4) = Variant::Long(dati.incr_storico);
  args.Out(kInizio + 5) = Variant::Long(dati.frequenza);
  return Variant();
}

constexpr PostiFacoltativi kPostiSerie{.inizio = 3, .fine = 4, .posizioni = 5};

// aRuote, aNumeri, Sorte, [Inizio], [Fine], [aPosizioni]: one figure of the group.
template <Figura kFigura, Calcolo kCalcolo>
Result<Variant> FiguraSerie(Libreria& lib, CallArgs& args) {
  auto misura = MisuraGruppo(lib, args, kPostiSerie);
  if (!misura) return std::move(misura).error();
  return Variant::Long(StatisticaGruppo(lib, *misura, kCalcolo).*kFigura);
}

// The delay walks back from Fine only as far as the last win, where the other figures walk the range.
template <Calcolo kCalcolo>
Result<Variant> SerieRitardo(Libreria& lib, CallArgs& args) {
  auto misura = MisuraGruppo(lib, args, kPostiSerie);
  if (!misura) return std::move(misura).error();
  return Variant::Long(RitardoGruppo(lib, *misura, kCalcolo));
}

Result<Variant> RitardoCombinazioneTurbo(Libreria& lib, CallArgs& args) {
  auto misura = MisuraGruppo(lib, args, {.inizio = 5, .fine = 3, .posizioni = 4});
  if (!misura) return std::move(misura).error();
  return Variant::Long(RitardoGruppo(lib, *misura, Calcolo::kTurbo));
}

// The draw at element i of a series over Inizio..Fine; 0 for no element.
using Scelta = std::optional<size_t> (*)(const std::vector<int>& serie);
using Serie = std::vector<int> (*)(const TabellaEstrazioni&, std::span<const int>, std::span<const int>, int, int,
                                   const stats::Posizioni&, int);

template <Serie kSerie, Scelta kScelta>
Result<Variant> EstrazioneDellaSerie(Libreria& lib, CallArgs& args) {
  auto misura = MisuraGruppo(lib, args, kPostiSerie);
  if (!misura) return std::move(misura).error();
  const Misura& m = *misura;
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
    {"RitardoCombinazioneTurbo", 4, 6, &RitardoCombinazioneTurbo,
     "aRuote, aNumeri, Sorte, Fine, [aPosizioni], [Inizio]: ciò che dà RitardoCombinazione, dalle estrazioni "
     "dell'esecuzione conservate come insiemi di numeri, costruiti alla prima chiamata che ne ha bisogno (Long)"},
    {"SerieRitardoTurbo", 3, 6, &SerieRitardo<kTurbo>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà SerieRitardo, dagli "
     "insiemi di numeri dell'esecuzione (Long)"},
    {"SerieFreqTurbo", 3, 6, &FiguraSerie<kFrequenza, kTurbo>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà SerieFreq, dagli "
     "insiemi di numeri dell'esecuzione (Long)"},
    {"SerieStoricoTurbo", 3, 6, &FiguraSerie<kStorico, kTurbo>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà SerieStorico, dagli "
     "insiemi di numeri dell'esecuzione (Long)"},
};

}  // namespace

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniStatistiche() { return kStatistiche; }

}  // namespace lottolab::script
