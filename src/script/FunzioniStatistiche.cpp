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
     "Numero è uscito su Ruota, una volta per ogni ruota con TU_ (Long)",
     "Long: quante volte è uscito in Inizio..Fine",
     "Scrivi EstrattoFrequenza(BA_, 90, EstrazioniArchivio - 99, EstrazioniArchivio)"},
    {"EstrattoStorico", 2, 5, &FiguraSuRuota<1, kStorico, kPercorso>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: il massimo storico di Numero su Ruota, "
     "la serie più lunga di estrazioni di Inizio..Fine senza di esso, compresa quella in corso (Long)",
     "Long: il ritardo massimo in Inizio..Fine, compreso quello in corso", "Scrivi EstrattoStorico(BA_, 90)"},
    {"EstrattoIncrStorico", 2, 5, &FiguraSuRuota<1, kIncrStorico, kPercorso>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: di quanto il ritardo a Fine supera ogni "
     "serie che una vincita ha chiuso in Inizio..Fine, 0 se non le supera tutte (Long)",
     "Long: di quanto il ritardo attuale supera il massimo precedente, 0 se non lo supera",
     "Scrivi EstrattoIncrStorico(TU_, 45)"},
    {"AmboFrequenza", 3, 6, &FiguraSuRuota<2, kFrequenza, kPercorso>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: la frequenza dell'ambo su "
     "Ruota in Inizio..Fine, una volta per ogni ruota con TU_ (Long)",
     "Long: quante volte l'ambo è uscito in Inizio..Fine", "Scrivi AmboFrequenza(TU_, 12, 34)"},
    {"AmboStorico", 3, 6, &FiguraSuRuota<2, kStorico, kPercorso>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: il massimo storico dell'ambo "
     "su Ruota in Inizio..Fine (Long)",
     "Long: il ritardo massimo dell'ambo in Inizio..Fine", "Scrivi AmboStorico(NA_, 12, 34)"},
    {"AmboIncrStorico", 3, 6, &FiguraSuRuota<2, kIncrStorico, kPercorso>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: l'incremento del massimo "
     "storico dell'ambo a Fine (Long)",
     "Long: l'incremento del massimo storico dell'ambo, 0 se non superato", "Scrivi AmboIncrStorico(NA_, 12, 34)"},
    {"StatEstratto", 8, 8, &StatSuRuota<1, kPercorso>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], RetRit, RetRitMax, RetIncrRitMax, RetFreq: il "
     "ritardo, il massimo storico, il suo incremento e la frequenza di Numero su Ruota, nelle quattro variabili "
     "(Long)",
     "niente (Sub): in RetRit, RetRitMax, RetIncrRitMax e RetFreq le quattro figure (Long)",
     "StatEstratto BA_, 90, 1, EstrazioniArchivio, nRit, nMax, nIncr, nFreq : Scrivi nRit & \" \" & nMax & \" \" & "
     "nIncr & \" \" & nFreq"},
    {"StatAmbo", 9, 9, &StatSuRuota<2, kPercorso>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], RetRit, RetRitMax, RetIncrRitMax, RetFreq: "
     "StatEstratto per l'ambo",
     "niente (Sub): in RetRit, RetRitMax, RetIncrRitMax e RetFreq le quattro figure dell'ambo (Long)",
     "StatAmbo TU_, 12, 34, 1, EstrazioniArchivio, nRit, nMax, nIncr, nFreq : Scrivi nRit & \" \" & nFreq"},
    {"SerieRitardo", 3, 6, &SerieRitardo<kPercorso>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: il ritardo a Fine del gruppo "
     "giocato nel suo insieme per Sorte (1..5) sulle ruote aRuote: come RitardoCombinazione (Long)",
     "Long: il ritardo del gruppo a Fine",
     "aR = Array(BA_, NA_) : aN = Array(1, 2, 3) : Scrivi SerieRitardo(aR, aN, AMBATA_)"},
    {"SerieFreq", 3, 6, &FiguraSerie<kFrequenza, kPercorso>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: le coppie (estrazione, ruota) "
     "di Inizio..Fine in cui almeno Sorte numeri di aNumeri sono usciti su una ruota di aRuote (Long)",
     "Long: le vincite del gruppo in Inizio..Fine, una per ruota vincente",
     "aR = Array(BA_, NA_) : aN = Array(1, 2, 3) : Scrivi SerieFreq(aR, aN, AMBATA_, EstrazioniArchivio - 99)"},
    {"SerieStorico", 3, 6, &FiguraSerie<kStorico, kPercorso>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: il massimo storico del gruppo "
     "in Inizio..Fine, compreso il ritardo in corso (Long)",
     "Long: il ritardo massimo del gruppo",
     "aR = Array(TU_) : aN = Array(1, 2, 3) : Scrivi SerieStorico(aR, aN, AMBO_)"},
    {"SeriePrima", 3, 6, &EstrazioneDellaSerie<&stats::SerieFreq, &PrimaVincita>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: la prima estrazione di "
     "Inizio..Fine in cui il gruppo ha vinto, 0 se non ha mai vinto (Long)",
     "Long: l'IdEstr della prima vincita, 0 se mai",
     "aR = Array(BA_) : aN = Array(1, 2, 3) : Scrivi SeriePrima(aR, aN, AMBATA_, EstrazioniArchivio - 99)"},
    {"SerieUltima", 3, 6, &EstrazioneDellaSerie<&stats::SerieFreq, &UltimaVincita>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: l'ultima estrazione di "
     "Inizio..Fine in cui il gruppo ha vinto, 0 se non ha mai vinto (Long)",
     "Long: l'IdEstr dell'ultima vincita, 0 se mai",
     "aR = Array(BA_) : aN = Array(1, 2, 3) : Scrivi SerieUltima(aR, aN, AMBATA_)"},
    {"SerieEstrazioneStorico", 3, 6, &EstrazioneDellaSerie<&stats::SerieStorico, &FineDelMassimo>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: l'estrazione di Inizio..Fine "
     "in cui il ritardo del gruppo ha raggiunto per la prima volta il suo massimo storico, l'ultima estrazione della "
     "prima serie così lunga; 0 se il massimo è 0 (Long)",
     "Long: l'IdEstr in cui fu raggiunto il massimo storico, 0 se il massimo è 0",
     "aR = Array(BA_) : aN = Array(1, 2, 3) : Scrivi SerieEstrazioneStorico(aR, aN, AMBATA_)"},
    {"EstrattoRitardoTurbo", 2, 5, &FiguraSuRuota<1, kRitardo, kTurbo>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà EstrattoRitardo, dall'indice "
     "delle estrazioni dell'esecuzione, costruito alla prima chiamata Turbo (Long)",
     "Long: il ritardo attuale (0 se uscito nell'estrazione Fine)", "Scrivi EstrattoRitardoTurbo(BA_, 90)"},
    {"RitardoEstrattoTurbo", 2, 5, &FiguraSuRuota<1, kRitardo, kTurbo>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: lo stesso di EstrattoRitardoTurbo "
     "(Long)",
     "Long: il ritardo attuale (0 se uscito nell'estrazione Fine)",
     "Scrivi RitardoEstrattoTurbo(TU_, 90, 1, EstrazioniArchivio)"},
    {"EstrattoFrequenzaTurbo", 2, 5, &FiguraSuRuota<1, kFrequenza, kTurbo>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà EstrattoFrequenza, "
     "dall'indice dell'esecuzione (Long)",
     "Long: quante volte è uscito in Inizio..Fine", "Scrivi EstrattoFrequenzaTurbo(BA_, 90)"},
    {"EstrattoStoricoTurbo", 2, 5, &FiguraSuRuota<1, kStorico, kTurbo>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà EstrattoStorico, dall'indice "
     "dell'esecuzione (Long)",
     "Long: il ritardo massimo in Inizio..Fine", "Scrivi EstrattoStoricoTurbo(BA_, 90)"},
    {"EstrattoIncrStoricoTurbo", 2, 5, &FiguraSuRuota<1, kIncrStorico, kTurbo>,
     "Ruota, Numero, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà EstrattoIncrStorico, "
     "dall'indice dell'esecuzione (Long)",
     "Long: l'incremento del massimo storico, 0 se non superato", "Scrivi EstrattoIncrStoricoTurbo(BA_, 90)"},
    {"AmboRitardoTurbo", 3, 6, &FiguraSuRuota<2, kRitardo, kTurbo>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà AmboRitardo, "
     "dall'indice dell'esecuzione (Long)",
     "Long: il ritardo dell'ambo", "Scrivi AmboRitardoTurbo(TU_, 12, 34)"},
    {"AmboFrequenzaTurbo", 3, 6, &FiguraSuRuota<2, kFrequenza, kTurbo>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà AmboFrequenza, "
     "dall'indice dell'esecuzione (Long)",
     "Long: quante volte l'ambo è uscito", "Scrivi AmboFrequenzaTurbo(TU_, 12, 34)"},
    {"AmboStoricoTurbo", 3, 6, &FiguraSuRuota<2, kStorico, kTurbo>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà AmboStorico, "
     "dall'indice dell'esecuzione (Long)",
     "Long: il ritardo massimo dell'ambo", "Scrivi AmboStoricoTurbo(TU_, 12, 34)"},
    {"AmboIncrStoricoTurbo", 3, 6, &FiguraSuRuota<2, kIncrStorico, kTurbo>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà AmboIncrStorico, "
     "dall'indice dell'esecuzione (Long)",
     "Long: l'incremento del massimo storico dell'ambo, 0 se non superato", "Scrivi AmboIncrStoricoTurbo(TU_, 12, 34)"},
    {"StatAmboTurbo", 9, 9, &StatSuRuota<2, kTurbo>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = ultima estrazione], RetRit, RetRitMax, RetIncrRitMax, RetFreq: "
     "ciò che dà StatAmbo, dall'indice dell'esecuzione",
     "niente (Sub): in RetRit, RetRitMax, RetIncrRitMax e RetFreq le quattro figure dell'ambo (Long)",
     "StatAmboTurbo TU_, 12, 34, 1, EstrazioniArchivio, nRit, nMax, nIncr, nFreq : Scrivi nRit & \" \" & nMax"},
    {"StatFrzTurbo", 9, 9, &StatFrzTurbo,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], RetRit, RetRitMax, RetIncrRitMax, RetFreq: "
     "il ritardo, il massimo storico, il suo incremento e la frequenza di aNumeri giocati in blocco per Sorte (1..5) "
     "su aRuote in Inizio..Fine, nelle quattro variabili: ciò che dà StatisticaFormazione, dall'indice "
     "dell'esecuzione",
     "niente (Sub): in RetRit, RetRitMax, RetIncrRitMax e RetFreq le quattro figure del gruppo (Long)",
     "aR = Array(BA_, NA_) : aN = Array(1, 2, 3) : StatFrzTurbo aR, aN, AMBO_, 1, EstrazioniArchivio, nRit, nMax, "
     "nIncr, nFreq : Scrivi nRit & \" \" & nFreq"},
    {"RitardoCombinazioneTurbo", 4, 6, &RitardoCombinazioneTurbo,
     "aRuote, aNumeri, Sorte, Fine, [aPosizioni], [Inizio]: ciò che dà RitardoCombinazione, dall'indice "
     "dell'esecuzione (Long)",
     "Long: il ritardo della combinazione a Fine",
     "aR = Array(BA_) : aN = Array(12, 34) : Scrivi RitardoCombinazioneTurbo(aR, aN, AMBO_, EstrazioniArchivio)"},
    {"SerieRitardoTurbo", 3, 6, &SerieRitardo<kTurbo>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà SerieRitardo, "
     "dall'indice dell'esecuzione (Long)",
     "Long: il ritardo del gruppo a Fine",
     "aR = Array(BA_, NA_) : aN = Array(1, 2, 3) : Scrivi SerieRitardoTurbo(aR, aN, AMBATA_)"},
    {"SerieFreqTurbo", 3, 6, &FiguraSerie<kFrequenza, kTurbo>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà SerieFreq, "
     "dall'indice dell'esecuzione (Long)",
     "Long: le vincite del gruppo in Inizio..Fine",
     "aR = Array(BA_, NA_) : aN = Array(1, 2, 3) : Scrivi SerieFreqTurbo(aR, aN, AMBATA_)"},
    {"SerieStoricoTurbo", 3, 6, &FiguraSerie<kStorico, kTurbo>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = ultima estrazione], [aPosizioni]: ciò che dà SerieStorico, "
     "dall'indice dell'esecuzione (Long)",
     "Long: il ritardo massimo del gruppo",
     "aR = Array(BA_, NA_) : aN = Array(1, 2, 3) : Scrivi SerieStoricoTurbo(aR, aN, AMBO_)"},
};

}  // namespace

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniStatistiche() { return kStatistiche; }

}  // namespace lottolab::script
