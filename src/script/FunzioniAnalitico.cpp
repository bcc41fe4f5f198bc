// The analitico of the ninety numbers: delay, frequency, historical maximum and its increment, for
// one wheel, several wheels played together, or every wheel side by side in a table of the output.
//
// The plain forms measure any range Inizio..Fine through the walks of stats; the Turbo forms measure
// from the first draw through the prepared analitico of stats/Analitico.h, built by the run's first
// Turbo call, which then answers at any end draw in microseconds. A wheel that no draw of the range
// counts (Nazionale before May 2005) has no figures: its values are Null in the arrays and "-" in the
// tables, never 0.

#include <fmt/format.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "ArgomentiGioco.h"
#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "TabellaOutput.h"
#include "TabelleEsecuzione.h"
#include "archive/DateEstrazione.h"
#include "stats/Analitico.h"
#include "stats/RitardiGioco.h"
#include "stats/Tabellone.h"
#include "text/Utf.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

enum class Calcolo { Semplice, Turbo };

// The figures of the 90 numbers, element n for number n; none for a wheel with no counted draw.
using Colonna = std::optional<std::array<stats::StatisticaNumero, kMassimoNumero + 1>>;

// The prepared analitico of the run, built again if the archive changes length.
struct StatoAnalitico {
  const TabellaEstrazioni* tab = nullptr;
  int estrazioni = 0;
  std::optional<stats::Analitico> analitico;
};

const stats::Analitico& AnaliticoDellEsecuzione(Libreria& lib, const TabellaEstrazioni& tab) {
  StatoAnalitico& stato = lib.Stato<StatoAnalitico>();
  if (!stato.analitico || stato.tab != &tab || stato.estrazioni != tab.EstrazioniArchivio()) {
    stato.tab = &tab;
    stato.estrazioni = tab.EstrazioniArchivio();
    stato.analitico.emplace(tab);
  }
  return *stato.analitico;
}

// True when some wheel of `ruote` (1..12) is drawn in inizio..fine.
bool RuoteEstratte(const stats::ColonneRuote& colonne, const std::vector<int>& ruote, Intervallo intervallo) {
  for (int ruota : ruote) {
    if (ruota == kTutteLeRuote) return true;
    if (colonne.Contate(ruota, intervallo.fine) > colonne.Contate(ruota, intervallo.inizio - 1)) return true;
  }
  return false;
}

// The ninety numbers on the wheels played together, over the range.
Colonna ColonnaRuote(Libreria& lib, const TabellaEstrazioni& tab, const std::vector<int>& ruote,
                     Intervallo intervallo) {
  const stats::ColonneRuote& colonne = ColonneDellEsecuzione(lib, tab);
  if (!RuoteEstratte(colonne, ruote, intervallo)) return std::nullopt;
  Colonna colonna;
  colonna.emplace();
  for (int numero = 1; numero <= kMassimoNumero; ++numero) {
    const int numeri[] = {numero};
    (*colonna)[numero] = stats::StatisticaCombinazione(colonne, ruote, numeri, 1, intervallo.fine,
                                                       stats::kTuttePosizioni, intervallo.inizio);
  }
  return colonna;
}

// One wheel (1..12) of the whole-table walk.
Colonna ColonnaTabellone(Libreria& lib, const TabellaEstrazioni& tab, const stats::TabelloneRuote& tabellone, int ruota,
                         Intervallo intervallo) {
  if (!RuoteEstratte(ColonneDellEsecuzione(lib, tab), {ruota}, intervallo)) return std::nullopt;
  Colonna colonna;
  colonna.emplace();
  for (int numero = 1; numero <= kMassimoNumero; ++numero) (*colonna)[numero] = tabellone.Dati(ruota, numero);
  return colonna;
}

Colonna ColonnaTurbo(const stats::Analitico& analitico, int ruota, int fine) {
  Colonna colonna;
  for (int numero = 1; numero <= kMassimoNumero; ++numero) {
    const auto dati = analitico.Dati(ruota, numero, fine);
    if (!dati) return std::nullopt;
    if (!colonna) colonna.emplace();
    (*colonna)[numero] = *dati;
  }
  return colonna;
}

Variant Valore(const Colonna& colonna, int numero, int dato) {
  if (!colonna) return Variant::Null();
  const stats::StatisticaNumero& figure = (*colonna)[numero];
  const int valori[] = {figure.ritardo, figure.frequenza, figure.storico, figure.incr_storico};
  return Variant::Long(valori[dato - 1]);
}

// The matrix (1..90, 1..4): delay, frequency, historical maximum, increment of the maximum.
Result<Variant> Matrice(const Colonna& colonna) {
  const vbs::ArrayBound limiti[] = {{1, kMassimoNumero}, {1, 4}};
  VBS_TRY_ASSIGN(auto matrice, vbs::SafeArray::Create(limiti));
  auto celle = (matrice)->elements();
  for (int numero = 1; numero <= kMassimoNumero; ++numero)
    for (int dato = 1; dato <= 4; ++dato)
      celle[static_cast<size_t>((numero - 1) + (dato - 1) * kMassimoNumero)] = Valore(colonna, numero, dato);
  return Variant::Array(std::move(matrice));
}

// The three arrays 1..90 of the second layout into the arguments at i, i + 1, i + 2; True when the
// wheel has figures.
Variant TreArray(CallArgs& args, size_t i, const Colonna& colonna) {
  for (int dato = 1; dato <= 3; ++dato) {
    std::vector<Variant> valori;
    for (int numero = 1; numero <= kMassimoNumero; ++numero) valori.push_back(Valore(colonna, numero, dato));
    args.Out(i + static_cast<size_t>(dato - 1)) = ArrayDaUno(std::move(valori));
  }
  return Variant::Boolean(colonna.has_value());
}

// Ruota, with the range from the arguments at i_fine and i_inizio (none for the Turbo forms).
template <Calcolo calcolo>
Result<Colonna> ColonnaArgomenti(Libreria& lib, const CallArgs& args, size_t i_fine, size_t i_inizio) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto ruota, RuotaArgomento(args, 0, kTutteLeRuote));
  if constexpr (calcolo == Calcolo::Turbo) {
    VBS_TRY_ASSIGN(auto intervallo, IntervalloArgomento(*archivio, args, std::nullopt, i_fine));
    return ColonnaTurbo(AnaliticoDellEsecuzione(lib, *archivio), ruota, intervallo.fine);
  } else {
    VBS_TRY_ASSIGN(auto intervallo, IntervalloArgomento(*archivio, args, i_inizio, i_fine));
    return ColonnaTabellone(lib, *archivio, stats::CalcolaTabellone(*archivio, intervallo.inizio, intervallo.fine),
                            ruota, intervallo);
  }
}

// GeneraAnalitico Ruota, [Fine], [Inizio]; GeneraAnaliticoTurbo Ruota, [Fine]
template <Calcolo calcolo>
Result<Variant> GeneraAnalitico(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto colonna, ColonnaArgomenti<calcolo>(lib, args, 1, 2));
  return Matrice(colonna);
}

// GeneraAnalitico2 Ruota, aRitardi, aFrequenze, aStorici, [Fine], [Inizio]; the Turbo form without Inizio
template <Calcolo calcolo>
Result<Variant> GeneraAnalitico2(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto colonna, ColonnaArgomenti<calcolo>(lib, args, 4, 5));
  return TreArray(args, 1, colonna);
}

// GeneraAnaliticoRuote aRuote, [Fine], [Inizio]
Result<Variant> GeneraAnaliticoRuote(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto ruote, RuoteGiocate(args, 0));
  VBS_TRY_ASSIGN(auto intervallo, IntervalloArgomento(*archivio, args, 2, 1));
  return Matrice(ColonnaRuote(lib, *archivio, ruote, intervallo));
}

// ---- The table of the output ----

constexpr std::array<std::string_view, 4> kNomiDati{"ritardo", "frequenza", "ritardo storico", "incremento storico"};

Result<int> DatoArgomento(const CallArgs& args, size_t i) {
  if (!args.Has(i)) return 1;
  return InteroTra(args, i, 1, 4, "Dato (1 ritardo, 2 frequenza, 3 storico, 4 incremento storico)");
}

struct ColonnaTitolata {
  std::string titolo;
  Colonna figure;
};

// Numbers down, one column a wheel; a delay at its historical maximum is written on red, one past
// three quarters of it on yellow.
TabellaOutput Tabella(const std::vector<ColonnaTitolata>& colonne, int dato) {
  RigaTabella titoli;
  titoli.celle.push_back({"Numero", {}});
  for (const ColonnaTitolata& colonna : colonne) titoli.celle.push_back({colonna.titolo, {}});
  TabellaOutput tabella(std::move(titoli), 1);
  for (int numero = 1; numero <= kMassimoNumero; ++numero) {
    RigaTabella riga;
    riga.allineamento = Allineamento::Destra;
    riga.celle.push_back({fmt::format("{:02}", numero), {}});
    for (const ColonnaTitolata& colonna : colonne) {
      if (!colonna.figure) {
        riga.celle.push_back({"-", {}});
        continue;
      }
      const stats::StatisticaNumero& figure = (*colonna.figure)[numero];
      const int valori[] = {figure.ritardo, figure.frequenza, figure.storico, figure.incr_storico};
      Colori colori;
      if (figure.storico > 0 && figure.ritardo == figure.storico)
        colori.sfondo = kRosso;
      else if (figure.storico > 0 && 4 * figure.ritardo > 3 * figure.storico)
        colori.sfondo = kGiallo;
      riga.celle.push_back({fmt::format("{}", valori[dato - 1]), colori});
    }
    tabella.AggiungiRiga(std::move(riga));
  }
  return tabella;
}

void Scrivi(Libreria& lib, const TabellaOutput& tabella, std::string_view intestazione) {
  lib.ospite().Scrivi(TrattoTesto{std::string(intestazione) + "\n"});
  if (lib.html().Aperto()) lib.html().ScriviMarkup("</pre>\n" + tabella.Html(false) + "<pre>");
  for (const TrattoTesto& tratto : tabella.Testo()) lib.ospite().Scrivi(tratto);
}

std::string Intestazione(const TabellaEstrazioni& tab, Intervallo intervallo, int dato) {
  const auto data = [&tab](int id) {
    auto testo = tab.DataEstrazione(id);
    return testo ? *testo : fmt::format("{}", id);
  };
  return fmt::format("Analitico ({}) dal {} al {}", kNomiDati[static_cast<size_t>(dato - 1)], data(intervallo.inizio),
                     data(intervallo.fine));
}

// Every wheel and all of them together over the range: the table of TabelloneAnalitico.
template <Calcolo calcolo>
std::vector<ColonnaTitolata> ColonneTutteLeRuote(Libreria& lib, const TabellaEstrazioni& tab, Intervallo intervallo) {
  std::vector<ColonnaTitolata> colonne;
  std::optional<stats::TabelloneRuote> tabellone;
  if constexpr (calcolo == Calcolo::Semplice)
    tabellone = stats::CalcolaTabellone(tab, intervallo.inizio, intervallo.fine);
  for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota) {
    Colonna colonna;
    if constexpr (calcolo == Calcolo::Turbo)
      colonna = ColonnaTurbo(AnaliticoDellEsecuzione(lib, tab), ruota, intervallo.fine);
    else
      colonna = ColonnaTabellone(lib, tab, *tabellone, ruota, intervallo);
    colonne.push_back({std::string(SiglaRuota(ruota)), std::move(colonna)});
  }
  return colonne;
}

// TabelloneAnalitico [Fine], [Inizio], [Dato]; TabelloneAnaliticoTurbo [Fine], [Dato]; GetTabAnalitico as the first
template <Calcolo calcolo, bool Html>
Result<Variant> TabelloneAnalitico(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  constexpr bool kTurbo = calcolo == Calcolo::Turbo;
  VBS_TRY_ASSIGN(auto intervallo,
                 IntervalloArgomento(*archivio, args, kTurbo ? std::nullopt : std::optional<size_t>(1), 0));
  VBS_TRY_ASSIGN(auto dato, DatoArgomento(args, kTurbo ? 1 : 2));
  const TabellaOutput tabella = Tabella(ColonneTutteLeRuote<calcolo>(lib, *archivio, intervallo), dato);
  if constexpr (Html) return Variant::String(text::Utf8ToUtf16(tabella.Html(false)));
  Scrivi(lib, tabella, Intestazione(*archivio, intervallo, dato));
  return Variant();
}

// TabelloneAnaliticoRuote aRuote, [Fine], [Inizio], [Dato]
Result<Variant> TabelloneAnaliticoRuote(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto ruote, RuoteGiocate(args, 0));
  VBS_TRY_ASSIGN(auto intervallo, IntervalloArgomento(*archivio, args, 2, 1));
  VBS_TRY_ASSIGN(auto dato, DatoArgomento(args, 3));
  std::vector<ColonnaTitolata> colonne;
  std::string insieme;
  for (int ruota : ruote) {
    colonne.push_back({std::string(SiglaRuota(ruota)), ColonnaRuote(lib, *archivio, {ruota}, intervallo)});
    insieme += (insieme.empty() ? "" : "+") + std::string(SiglaRuota(ruota));
  }
  if (ruote.size() > 1) colonne.push_back({insieme, ColonnaRuote(lib, *archivio, ruote, intervallo)});
  Scrivi(lib, Tabella(colonne, dato), Intestazione(*archivio, intervallo, dato));
  return Variant();
}

// ---- The generic archive: one set of K numbers of 1..M a draw ----

// GeneraAnaliticoFT [Fine], [Inizio]
Result<Variant> GeneraAnaliticoFT(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, Suffisso::FT));
  VBS_TRY_ASSIGN(auto intervallo, IntervalloGioco(*tab, args, 1, 0));
  const std::vector<stats::StatisticaNumero> figure = stats::TabelloneGioco(*tab, intervallo.fine, intervallo.inizio);
  const int massimo = tab->formato().massimo;
  const vbs::ArrayBound limiti[] = {{1, massimo}, {1, 4}};
  VBS_TRY_ASSIGN(auto matrice, vbs::SafeArray::Create(limiti));
  auto celle = matrice->elements();
  for (int numero = 1; numero <= massimo; ++numero) {
    const stats::StatisticaNumero& f = figure[static_cast<size_t>(numero)];
    const int valori[] = {f.ritardo, f.frequenza, f.storico, f.incr_storico};
    for (int dato = 1; dato <= 4; ++dato)
      celle[static_cast<size_t>((numero - 1) + (dato - 1) * massimo)] = Variant::Long(valori[dato - 1]);
  }
  return Variant::Array(std::move(matrice));
}

// TabelloneAnaliticoFT [Fine], [Inizio]: the four figures side by side, the only wheel being the archive.
Result<Variant> TabelloneAnaliticoFT(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto tab, TabellaDelGioco(lib, Suffisso::FT));
  VBS_TRY_ASSIGN(auto intervallo, IntervalloGioco(*tab, args, 1, 0));
  const std::vector<stats::StatisticaNumero> figure = stats::TabelloneGioco(*tab, intervallo.fine, intervallo.inizio);
  RigaTabella titoli;
  titoli.celle.push_back({"Numero", {}});
  for (std::string_view nome : kNomiDati) titoli.celle.push_back({std::string(nome), {}});
  TabellaOutput tabella(std::move(titoli), 1);
  for (int numero = 1; numero <= tab->formato().massimo; ++numero) {
    const stats::StatisticaNumero& f = figure[static_cast<size_t>(numero)];
    Colori colori;
    if (f.storico > 0 && f.ritardo == f.storico)
      colori.sfondo = kRosso;
    else if (f.storico > 0 && 4 * f.ritardo > 3 * f.storico)
      colori.sfondo = kGiallo;
    RigaTabella riga;
    riga.allineamento = Allineamento::Destra;
    riga.celle.push_back({fmt::format("{:02}", numero), {}});
    riga.celle.push_back({fmt::format("{}", f.ritardo), colori});
    for (int valore : {f.frequenza, f.storico, f.incr_storico}) riga.celle.push_back({fmt::format("{}", valore), {}});
    tabella.AggiungiRiga(std::move(riga));
  }
  Scrivi(lib, tabella,
         fmt::format("Analitico dell'archivio generico dal {} al {}", FormattaData((*tab)[intervallo.inizio].data),
                     FormattaData((*tab)[intervallo.fine].data)));
  return Variant();
}

const Libreria::Funzione kAnalitico[] = {
    {"GeneraAnalitico", 1, 3, &GeneraAnalitico<Calcolo::Semplice>,
     "Ruota, [Fine], [Inizio]: l'analitico dei 90 numeri sulla ruota (TT_ per tutte) da Inizio a Fine, come matrice "
     "(1 To 90, 1 To 4) di ritardo, frequenza, ritardo storico e incremento storico; valori Null se la ruota non è "
     "mai stata estratta nell'intervallo (la Nazionale prima del 04/05/2005)",
     "Array (1 To 90, 1 To 4) di Long: ritardo, frequenza, storico, incremento storico di ogni numero; Null se la "
     "ruota non fu estratta",
     "m = GeneraAnalitico(BA_) : Scrivi \"90: rit \" & m(90, 1) & \" freq \" & m(90, 2)"},
    {"GeneraAnalitico2", 4, 6, &GeneraAnalitico2<Calcolo::Semplice>,
     "Ruota, aRitardi, aFrequenze, aStorici, [Fine], [Inizio]: l'analitico come tre array (1 To 90); True se la "
     "ruota è stata estratta nell'intervallo, altrimenti False e gli array pieni di Null",
     "Boolean: True se la ruota fu estratta; in aRitardi, aFrequenze, aStorici gli array da 1 a 90",
     "If GeneraAnalitico2(NZ_, aRit, aFreq, aSto) Then Scrivi aRit(90) & \" \" & aSto(90)"},
    {"GeneraAnaliticoRuote", 1, 3, &GeneraAnaliticoRuote,
     "aRuote, [Fine], [Inizio]: la matrice di GeneraAnalitico per le ruote giocate insieme: un numero esce quando "
     "esce su una di esse, la frequenza conta ogni ruota",
     "Array (1 To 90, 1 To 4) di Long come GeneraAnalitico",
     "m = GeneraAnaliticoRuote(Array(BA_, CA_), EstrazioniArchivio) : Scrivi m(1, 1)"},
    {"GeneraAnaliticoTurbo", 1, 2, &GeneraAnalitico<Calcolo::Turbo>,
     "Ruota, [Fine]: GeneraAnalitico dalla prima estrazione; dopo la prima chiamata dell'esecuzione risponde a "
     "qualsiasi Fine in pochi microsecondi",
     "Array (1 To 90, 1 To 4) di Long come GeneraAnalitico",
     "m = GeneraAnaliticoTurbo(TT_, EstrazioniArchivio - 10) : Scrivi m(45, 3)"},
    {"GeneraAnaliticoTurbo2", 4, 5, &GeneraAnalitico2<Calcolo::Turbo>,
     "Ruota, aRitardi, aFrequenze, aStorici, [Fine]: GeneraAnalitico2 dalla prima estrazione, veloce come "
     "GeneraAnaliticoTurbo",
     "Boolean: True se la ruota fu estratta; in aRitardi, aFrequenze, aStorici gli array da 1 a 90",
     "If GeneraAnaliticoTurbo2(BA_, aRit, aFreq, aSto) Then Scrivi aFreq(1)"},
    {"GetTabAnalitico", 0, 3, &TabelloneAnalitico<Calcolo::Semplice, true>,
     "[Fine], [Inizio], [Dato = 1]: l'HTML (String) della tabella di TabelloneAnalitico, senza scriverla",
     "String: il codice HTML della tabella",
     "s = GetTabAnalitico(EstrazioniArchivio, EstrazioniArchivio - 99, 2) : Scrivi Len(s)"},
    {"TabelloneAnalitico", 0, 3, &TabelloneAnalitico<Calcolo::Semplice, false>,
     "[Fine], [Inizio], [Dato = 1]: scrive la tabella dei 90 numeri (righe) su ogni ruota e su tutte (colonne): "
     "Dato 1 ritardo, 2 frequenza, 3 ritardo storico, 4 incremento storico; un ritardo pari allo storico su rosso, "
     "oltre i tre quarti su giallo; \"-\" per una ruota non ancora estratta",
     "niente (Sub): scrive la tabella", "TabelloneAnalitico EstrazioniArchivio, 1, 1"},
    {"TabelloneAnaliticoRuote", 1, 4, &TabelloneAnaliticoRuote,
     "aRuote, [Fine], [Inizio], [Dato = 1]: TabelloneAnalitico per le sole ruote date, più una colonna per le ruote "
     "giocate insieme quando sono più di una",
     "niente (Sub): scrive la tabella", "TabelloneAnaliticoRuote Array(BA_, NA_), EstrazioniArchivio, 1, 2"},
    {"TabelloneAnaliticoTurbo", 0, 2, &TabelloneAnalitico<Calcolo::Turbo, false>,
     "[Fine], [Dato = 1]: TabelloneAnalitico dalla prima estrazione, veloce come GeneraAnaliticoTurbo",
     "niente (Sub): scrive la tabella", "TabelloneAnaliticoTurbo EstrazioniArchivio, 3"},
    {"GeneraAnaliticoFT", 0, 2, &GeneraAnaliticoFT,
     "[Fine], [Inizio]: l'analitico dei numeri 1..M dell'archivio generico da Inizio a Fine, come matrice (1 To M, 1 "
     "To 4) di ritardo, frequenza, ritardo storico e incremento storico",
     "Array (1 To M, 1 To 4) di Long: le quattro figure di ogni numero",
     "m = GeneraAnaliticoFT(EstrazioniArchivioFT) : Scrivi \"1: rit \" & m(1, 1) & \" freq \" & m(1, 2)"},
    {"TabelloneAnaliticoFT", 0, 2, &TabelloneAnaliticoFT,
     "[Fine], [Inizio]: scrive la tabella dei numeri 1..M dell'archivio generico (righe) con ritardo, frequenza, "
     "ritardo storico e incremento storico (colonne); un ritardo pari allo storico su rosso, oltre i tre quarti su "
     "giallo",
     "niente (Sub): scrive la tabella", "TabelloneAnaliticoFT EstrazioniArchivioFT, EstrazioniArchivioFT - 99"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniAnalitico() { return kAnalitico; }

}  // namespace lottolab::script
