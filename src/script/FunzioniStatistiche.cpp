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
#include "stats/EstrazioniInBit.h"
#include "stats/IndiceVincite.h"

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

// The run's tables, for the archive they were built from, each built at its first use. The archive
// of a run does not change, but a table of another length is another state of the archive and gets
// tables of its own.
struct TabelleTurbo {
  const TabellaEstrazioni* tab = nullptr;
  int estrazioni = 0;
  std::optional<stats::IndiceVincite> indice;
  std::optional<stats::EstrazioniInBit> insiemi;
};

TabelleTurbo& Tabelle(Libreria& lib, const TabellaEstrazioni& tab) {
  TabelleTurbo& tabelle = lib.Stato<TabelleTurbo>();
  if (tabelle.tab != &tab || tabelle.estrazioni != tab.EstrazioniArchivio())
    tabelle = TabelleTurbo{.tab = &tab, .estrazioni = tab.EstrazioniArchivio(), .indice = {}, .insiemi = {}};
  return tabelle;
}

template <typename Tabella>
const Tabella& Costruita(std::optional<Tabella>& tabella, const TabellaEstrazioni& tab) {
  if (!tabella) tabella.emplace(tab);
  return *tabella;
}

StatisticaNumero Percorso(const Misura& m) {
  return stats::StatisticaCombinazione(*m.tab, m.giocata.ruote, m.giocata.numeri, m.giocata.sorte, m.fine,
                                       m.posizioni, m.inizio);
}

// The sets of numbers hold every position: a group measured on some positions only takes the walk.
bool NegliInsiemi(const Misura& m) { return m.posizioni == stats::kTuttePosizioni; }

int RitardoGruppo(Libreria& lib, const Misura& m, Calcolo calcolo) {
  const Giocata& g = m.giocata;
  if (calcolo == Calcolo::kPercorso || !NegliInsiemi(m))
    return stats::RitardoCombinazione(*m.tab, g.ruote, g.numeri, g.sorte, m.fine, m.posizioni, m.inizio);
  return Costruita(Tabelle(lib, *m.tab).insiemi, *m.tab).Ritardo(g.ruote, g.numeri, g.sorte, m.inizio, m.fine);
}

StatisticaNumero StatisticaGruppo(Libreria& lib, const Misura& m, Calcolo calcolo) {
  const Giocata& g = m.giocata;
  if (calcolo == Calcolo::kPercorso || !NegliInsiemi(m)) return Percorso(m);
  return Costruita(Tabelle(lib, *m.tab).insiemi, *m.tab).Statistica(g.ruote, g.numeri, g.sorte, m.inizio, m.fine);
}

bool NellIndice(const Misura& m) {
  const std::vector<int>& numeri = m.giocata.numeri;
  return m.giocata.ruote.size() == 1 && m.posizioni == stats::kTuttePosizioni &&
         (numeri.size() == 1 || (numeri.size() == 2 && numeri[0] != numeri[1]));
}

StatisticaNumero Statistica(Libreria& lib, const Misura& m, Calcolo calcolo) {
  if (calcolo == Calcolo::kPercorso || !NellIndice(m)) return StatisticaGruppo(lib, m, calcolo);
  const stats::IndiceVincite& indice = Costruita(Tabelle(lib, *m.tab).indice, *m.tab);
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
     "Ruota, Numero, [Inizio = 1], [Fine = last draw], [aPosizioni]: the draws of Inizio..Fine in which Numero "
     "came out on Ruota, once for every wheel with TU_ (Long)"},
    {"EstrattoStorico", 2, 5, &FiguraSuRuota<1, kStorico, kPercorso>,
     "Ruota, Numero, [Inizio = 1], [Fine = last draw], [aPosizioni]: the historical maximum of Numero on Ruota, "
     "the longest run of Inizio..Fine without it, the current one included (Long)"},
    {"EstrattoIncrStorico", 2, 5, &FiguraSuRuota<1, kIncrStorico, kPercorso>,
     "Ruota, Numero, [Inizio = 1], [Fine = last draw], [aPosizioni]: how far the delay at Fine goes beyond every "
     "run that a win closed in Inizio..Fine, 0 when it does not (Long)"},
    {"AmboFrequenza", 3, 6, &FiguraSuRuota<2, kFrequenza, kPercorso>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = last draw], [aPosizioni]: the frequency of the ambo on Ruota "
     "in Inizio..Fine, once for every wheel with TU_ (Long)"},
    {"AmboStorico", 3, 6, &FiguraSuRuota<2, kStorico, kPercorso>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = last draw], [aPosizioni]: the historical maximum of the "
     "ambo on Ruota in Inizio..Fine (Long)"},
    {"AmboIncrStorico", 3, 6, &FiguraSuRuota<2, kIncrStorico, kPercorso>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = last draw], [aPosizioni]: the increment of the ambo's "
     "historical maximum at Fine (Long)"},
    {"StatEstratto", 8, 8, &StatSuRuota<1, kPercorso>,
     "Ruota, Numero, [Inizio = 1], [Fine = last draw], RetRit, RetRitMax, RetIncrRitMax, RetFreq: the delay, "
     "historical maximum, its increment and the frequency of Numero on Ruota, in the four variables (Long)"},
    {"StatAmbo", 9, 9, &StatSuRuota<2, kPercorso>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = last draw], RetRit, RetRitMax, RetIncrRitMax, RetFreq: "
     "StatEstratto for the ambo"},
    {"SerieRitardo", 3, 6, &SerieRitardo<kPercorso>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = last draw], [aPosizioni]: the delay at Fine of the group "
     "played as a whole for Sorte (1..5) on the wheels aRuote: as RitardoCombinazione (Long)"},
    {"SerieFreq", 3, 6, &FiguraSerie<kFrequenza, kPercorso>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = last draw], [aPosizioni]: the (draw, wheel) pairs of "
     "Inizio..Fine where at least Sorte of aNumeri came out on one wheel of aRuote (Long)"},
    {"SerieStorico", 3, 6, &FiguraSerie<kStorico, kPercorso>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = last draw], [aPosizioni]: the historical maximum of the "
     "group in Inizio..Fine, the current delay included (Long)"},
    {"SeriePrima", 3, 6, &EstrazioneDellaSerie<&stats::SerieFreq, &PrimaVincita>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = last draw], [aPosizioni]: the first draw of Inizio..Fine in "
     "which the group won, 0 when it never did (Long)"},
    {"SerieUltima", 3, 6, &EstrazioneDellaSerie<&stats::SerieFreq, &UltimaVincita>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = last draw], [aPosizioni]: the last draw of Inizio..Fine in "
     "which the group won, 0 when it never did (Long)"},
    {"SerieEstrazioneStorico", 3, 6, &EstrazioneDellaSerie<&stats::SerieStorico, &FineDelMassimo>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = last draw], [aPosizioni]: the draw of Inizio..Fine at which "
     "the delay of the group first reached its historical maximum, the last draw of the first run that long; 0 "
     "when the maximum is 0 (Long)"},
    {"EstrattoRitardoTurbo", 2, 5, &FiguraSuRuota<1, kRitardo, kTurbo>,
     "Ruota, Numero, [Inizio = 1], [Fine = last draw], [aPosizioni]: EstrattoRitardo from the run's index of "
     "the draws, built at the first Turbo call (Long)"},
    {"RitardoEstrattoTurbo", 2, 5, &FiguraSuRuota<1, kRitardo, kTurbo>,
     "Ruota, Numero, [Inizio = 1], [Fine = last draw], [aPosizioni]: the same as EstrattoRitardoTurbo (Long)"},
    {"EstrattoFrequenzaTurbo", 2, 5, &FiguraSuRuota<1, kFrequenza, kTurbo>,
     "Ruota, Numero, [Inizio = 1], [Fine = last draw], [aPosizioni]: EstrattoFrequenza from the run's index "
     "(Long)"},
    {"EstrattoStoricoTurbo", 2, 5, &FiguraSuRuota<1, kStorico, kTurbo>,
     "Ruota, Numero, [Inizio = 1], [Fine = last draw], [aPosizioni]: EstrattoStorico from the run's index (Long)"},
    {"EstrattoIncrStoricoTurbo", 2, 5, &FiguraSuRuota<1, kIncrStorico, kTurbo>,
     "Ruota, Numero, [Inizio = 1], [Fine = last draw], [aPosizioni]: EstrattoIncrStorico from the run's index "
     "(Long)"},
    {"AmboRitardoTurbo", 3, 6, &FiguraSuRuota<2, kRitardo, kTurbo>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = last draw], [aPosizioni]: AmboRitardo from the run's index "
     "(Long)"},
    {"AmboFrequenzaTurbo", 3, 6, &FiguraSuRuota<2, kFrequenza, kTurbo>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = last draw], [aPosizioni]: AmboFrequenza from the run's "
     "index (Long)"},
    {"AmboStoricoTurbo", 3, 6, &FiguraSuRuota<2, kStorico, kTurbo>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = last draw], [aPosizioni]: AmboStorico from the run's index "
     "(Long)"},
    {"AmboIncrStoricoTurbo", 3, 6, &FiguraSuRuota<2, kIncrStorico, kTurbo>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = last draw], [aPosizioni]: AmboIncrStorico from the run's "
     "index (Long)"},
    {"StatAmboTurbo", 9, 9, &StatSuRuota<2, kTurbo>,
     "Ruota, Numero1, Numero2, [Inizio = 1], [Fine = last draw], RetRit, RetRitMax, RetIncrRitMax, RetFreq: "
     "StatAmbo from the run's index"},
    {"RitardoCombinazioneTurbo", 4, 6, &RitardoCombinazioneTurbo,
     "aRuote, aNumeri, Sorte, Fine, [aPosizioni], [Inizio]: RitardoCombinazione from the run's draws held as sets "
     "of numbers, built at the first call that needs them (Long)"},
    {"SerieRitardoTurbo", 3, 6, &SerieRitardo<kTurbo>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = last draw], [aPosizioni]: SerieRitardo from the run's sets "
     "of numbers (Long)"},
    {"SerieFreqTurbo", 3, 6, &FiguraSerie<kFrequenza, kTurbo>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = last draw], [aPosizioni]: SerieFreq from the run's sets of "
     "numbers (Long)"},
    {"SerieStoricoTurbo", 3, 6, &FiguraSerie<kStorico, kTurbo>,
     "aRuote, aNumeri, Sorte, [Inizio = 1], [Fine = last draw], [aPosizioni]: SerieStorico from the run's sets "
     "of numbers (Long)"},
};

}  // namespace

std::span<const ClsFunctionsGeodoScript::Funzione> FunzioniStatistiche() { return kStatistiche; }

}  // namespace lottolab::script
