// Formations: groups of numbers that a script builds one by one and then studies as a whole.
//
// The formations of a run are kept in the library's state and named by their index, 1 for the first
// one built; together they are the run's statistical group, which StatisticaGruppoFormazioni writes
// out as a table. A formation holds each number once, in the order it was added.

#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <vector>

#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "Formazioni.h"
#include "TabelleEsecuzione.h"
#include "stats/Numeri.h"
#include "stats/Ritardi.h"
#include "text/Utf.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

struct StatoFormazioni {
  std::vector<std::vector<int>> formazioni;
};

std::vector<std::vector<int>>& Formazioni(Libreria& lib) { return lib.Stato<StatoFormazioni>().formazioni; }

void AggiungiNumero(std::vector<int>& formazione, int numero) {
  if (std::find(formazione.begin(), formazione.end(), numero) == formazione.end()) formazione.push_back(numero);
}

Result<std::vector<int>> NumeriNonVuoti(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto numeri, NumeriArgomento(args, i));
  if (numeri.empty()) return ArgomentoNonValido("Nessun numero indicato");
  return numeri;
}

// Argument i as the index of a formation built in this run.
Result<std::vector<int>*> FormazioneArgomento(Libreria& lib, const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto indice, args.Long(i));
  auto& formazioni = Formazioni(lib);
  if (indice < 1 || static_cast<size_t>(indice) > formazioni.size()) {
    return ArgomentoNonValido(
        fmt::format("Formazione inesistente: {} (le formazioni vanno da 1 a {})", indice, formazioni.size()));
  }
  return &formazioni[static_cast<size_t>(indice - 1)];
}

Variant IndiceUltima(Libreria& lib) { return Variant::Long(static_cast<int32_t>(Formazioni(lib).size())); }

// A new formation for index 0; otherwise the number joins formation IdFormazione.
Result<Variant> AddItemFormazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto indice, args.Long(0));
  VBS_TRY_ASSIGN(auto numero, args.Double(1));
  if (indice == 0) {
    Formazioni(lib).push_back({stats::Fuori90(numero)});
    return IndiceUltima(lib);
  }
  VBS_TRY_ASSIGN(auto formazione, FormazioneArgomento(lib, args, 0));
  AggiungiNumero(*formazione, stats::Fuori90(numero));
  return Variant::Long(indice);
}

Result<Variant> AddItemFormazioneMultipla(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto numeri, NumeriNonVuoti(args, 0));
  std::vector<int> formazione;
  for (int numero : numeri) AggiungiNumero(formazione, numero);
  Formazioni(lib).push_back(std::move(formazione));
  return IndiceUltima(lib);
}

Result<Variant> AddNumeriToGruppoStatistico(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto numeri, NumeriNonVuoti(args, 0));
  for (int numero : numeri) Formazioni(lib).push_back({numero});
  return IndiceUltima(lib);
}

Result<Variant> GetItemFormazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto formazione, FormazioneArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto posto, args.Long(1));
  const std::vector<int>& numeri = *formazione;
  if (posto < 1 || static_cast<size_t>(posto) > numeri.size()) {
    return ArgomentoNonValido(fmt::format("Elemento inesistente: {} (la formazione ne ha {})", posto, numeri.size()));
  }
  return Variant::Integer(static_cast<int16_t>(numeri[static_cast<size_t>(posto - 1)]));
}

Result<Variant> GetElementiFormazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto formazione, FormazioneArgomento(lib, args, 0));
  return ArrayDaUno(*formazione);
}

Result<Variant> GetQElemFormazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto formazione, FormazioneArgomento(lib, args, 0));
  return Variant::Long(static_cast<int32_t>((formazione)->size()));
}

Result<Variant> GetClasseFormazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto formazione, FormazioneArgomento(lib, args, 0));
  return Variant::Integer(static_cast<int16_t>(std::min<size_t>((formazione)->size(), kNumeriPerRuota)));
}

// ---- Statistics of a formation played as a whole ----

struct Gioco {
  std::vector<int> ruote;
  int sorte = 1;
  int inizio = 1;
  int fine = 0;
};

// The wheels at i, the sorte after them and the range at i_inizio, i_inizio + 1.
Result<Gioco> GiocoArgomenti(const TabellaEstrazioni& tab, const CallArgs& args, size_t i, size_t i_inizio) {
  Gioco gioco;
  VBS_TRY_ASSIGN(auto ruote, RuoteGiocate(args, i));
  gioco.ruote = std::move(ruote);
  VBS_TRY_ASSIGN(auto sorte, SorteArgomento(args, i + 1));
  gioco.sorte = sorte;
  VBS_TRY_ASSIGN(auto intervallo, IntervalloArgomento(tab, args, i_inizio, i_inizio + 1));
  gioco.inizio = intervallo.inizio;
  gioco.fine = intervallo.fine;
  return gioco;
}

// The plain forms walk the range over the columns of the draws, the Turbo ones read the run's index
// of winning draws: the same four figures.
template <bool kTurbo>
stats::StatisticaNumero StatisticaDi(Libreria& lib, const TabellaEstrazioni& tab, std::span<const int> numeri,
                                     const Gioco& gioco) {
  if constexpr (kTurbo)
    return IndiceDellEsecuzione(lib, tab).Gruppo(gioco.ruote, numeri, gioco.sorte, gioco.inizio, gioco.fine);
  return stats::StatisticaCombinazione(ColonneDellEsecuzione(lib, tab), gioco.ruote, numeri, gioco.sorte, gioco.fine,
                                       stats::kTuttePosizioni, gioco.inizio);
}

template <bool kTurbo>
Result<Variant> StatisticaFormazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto numeri, NumeriNonVuoti(args, 0));
  VBS_TRY_ASSIGN(auto gioco, GiocoArgomenti(*archivio, args, 1, 7));
  const stats::StatisticaNumero statistica = StatisticaDi<kTurbo>(lib, *archivio, numeri, gioco);
  args.Out(3) = Variant::Long(statistica.ritardo);
  args.Out(4) = Variant::Long(statistica.storico);
  args.Out(5) = Variant::Long(statistica.incr_storico);
  args.Out(6) = Variant::Long(statistica.frequenza);
  return Variant();
}

template <bool kTurbo>
Result<Variant> StatisticaGruppoFormazioni(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto gioco, GiocoArgomenti(*archivio, args, 0, 2));
  const auto& formazioni = Formazioni(lib);
  if (formazioni.empty()) return ArgomentoNonValido("Nessuna formazione nel gruppo statistico");
  constexpr std::string_view kRiga = "{:>10} {:>8} {:>8} {:>8} {:>8}  {}\n";
  lib.Scrivi(fmt::format(kRiga, "Formazione", "Rit", "RitMax", "IncrMax", "Freq", "Numeri"), lib.colore_testo(), true);
  for (size_t i = 0; i < formazioni.size(); ++i) {
    const stats::StatisticaNumero s = StatisticaDi<kTurbo>(lib, *archivio, formazioni[i], gioco);
    lib.Scrivi(
        fmt::format(kRiga, i + 1, s.ritardo, s.storico, s.incr_storico, s.frequenza, NumeriInTesto(formazioni[i])),
        lib.colore_testo(), false);
  }
  return Variant();
}

const Libreria::Funzione kFormazioni[] = {
    {"AddItemFormazione", 2, 2, &AddItemFormazione,
     "IdFormazione, Numero: aggiunge Numero alla formazione IdFormazione, oppure con IdFormazione 0 crea una nuova "
     "formazione che lo contiene; un numero già presente non viene aggiunto di nuovo; restituisce l'indice della "
     "formazione (Long)",
     "Long: l'indice della formazione",
     "n = AddItemFormazione(0, 12) : n = AddItemFormazione(n, 34) : Scrivi GetQElemFormazione(n)"},
    {"AddItemFormazioneMultipla", 1, 1, &AddItemFormazioneMultipla,
     "aNumeri: crea una nuova formazione con i numeri di aNumeri, ciascuno una volta; restituisce il suo indice "
     "(Long)",
     "Long: l'indice della nuova formazione", "n = AddItemFormazioneMultipla(Array(12, 34, 56)) : Scrivi n"},
    {"AddNumeriToGruppoStatistico", 1, 1, &AddNumeriToGruppoStatistico,
     "aNumeri: aggiunge al gruppo statistico una formazione di un numero per ogni numero di aNumeri; restituisce "
     "l'indice dell'ultima, che è il numero di formazioni contenute (Long)",
     "Long: il numero di formazioni del gruppo", "Scrivi AddNumeriToGruppoStatistico(Array(7, 17, 27))"},
    {"GetItemFormazione", 2, 2, &GetItemFormazione,
     "IdFormazione, Indice: il numero di posto Indice (da 1) della formazione (Integer)",
     "Integer: il numero a quel posto; errore 5 fuori dalla formazione",
     "n = AddItemFormazioneMultipla(Array(12, 34, 56)) : Scrivi GetItemFormazione(n, 2)"},
    {"GetElementiFormazione", 1, 1, &GetElementiFormazione,
     "IdFormazione: i numeri della formazione nell'ordine in cui sono stati aggiunti (array con indice da 1)",
     "Array da 1 di Long: i numeri della formazione",
     "n = AddItemFormazioneMultipla(Array(12, 34, 56)) : aN = GetElementiFormazione(n) : Scrivi aN(3)"},
    {"GetQElemFormazione", 1, 1, &GetQElemFormazione, "IdFormazione: quanti numeri contiene la formazione (Long)",
     "Long: quanti numeri", "n = AddItemFormazioneMultipla(Array(12, 34, 56)) : Scrivi GetQElemFormazione(n)"},
    {"GetClasseFormazione", 1, 1, &GetClasseFormazione,
     "IdFormazione: la sorte più alta che la formazione può vincere: il suo numero di elementi, al massimo CINQUINA_ "
     "(Integer)",
     "Integer: la classe, da 1 a 5",
     "n = AddItemFormazioneMultipla(Array(12, 34, 56)) : Scrivi GetClasseFormazione(n)"},
    {"StatisticaFormazione", 7, 9, &StatisticaFormazione<false>,
     "aNumeri, aRuote, Sorte, RetRit, RetRitMax, RetIncrRitMax, RetFreq, [Inizio = 1], [Fine = ultima estrazione]: "
     "imposta le quattro variabili al ritardo, al massimo storico, al suo incremento e alla frequenza di aNumeri "
     "giocati in blocco per Sorte su aRuote in Inizio..Fine, come li danno RitardoCombinazione e le funzioni affini",
     "niente (Sub): in RetRit, RetRitMax, RetIncrRitMax e RetFreq le quattro figure (Long)",
     "StatisticaFormazione Array(12, 34, 56), Array(BA_, NA_), AMBO_, nRit, nMax, nIncr, nFreq : Scrivi nRit & \" \" & "
     "nMax & \" \" & nIncr & \" \" & nFreq"},
    {"StatisticaFormazioneTurbo", 7, 9, &StatisticaFormazione<true>,
     "aNumeri, aRuote, Sorte, RetRit, RetRitMax, RetIncrRitMax, RetFreq, [Inizio = 1], [Fine = ultima estrazione]: "
     "ciò che dà StatisticaFormazione, dall'indice delle vincite dell'esecuzione",
     "niente (Sub): in RetRit, RetRitMax, RetIncrRitMax e RetFreq le quattro figure (Long)",
     "StatisticaFormazioneTurbo Array(12, 34, 56), Array(TU_), AMBO_, nRit, nMax, nIncr, nFreq : Scrivi nRit & \" \" & "
     "nFreq"},
    {"StatisticaGruppoFormazioni", 2, 4, &StatisticaGruppoFormazioni<false>,
     "aRuote, Sorte, [Inizio = 1], [Fine = ultima estrazione]: scrive una tabella con una riga per ogni formazione "
     "del gruppo statistico: il suo indice, i quattro valori di StatisticaFormazione e i suoi numeri",
     "niente (Sub): scrive la tabella; errore 5 se il gruppo è vuoto",
     "n = AddNumeriToGruppoStatistico(Array(7, 17)) : StatisticaGruppoFormazioni Array(BA_), AMBATA_, "
     "EstrazioniArchivio - 99"},
    {"StatisticaGruppoFormazioniTurbo", 2, 4, &StatisticaGruppoFormazioni<true>,
     "aRuote, Sorte, [Inizio = 1], [Fine = ultima estrazione]: ciò che scrive StatisticaGruppoFormazioni, "
     "dall'indice delle vincite dell'esecuzione",
     "niente (Sub): scrive la tabella; errore 5 se il gruppo è vuoto",
     "n = AddNumeriToGruppoStatistico(Array(7, 17)) : StatisticaGruppoFormazioniTurbo Array(BA_), AMBATA_"},
};

}  // namespace

const std::vector<std::vector<int>>& FormazioniDellEsecuzione(Libreria& lib) { return Formazioni(lib); }

std::string NumeriInTesto(const std::vector<int>& numeri) {
  std::string testo;
  for (int numero : numeri) testo += fmt::format("{}{:02}", testo.empty() ? "" : ".", numero);
  return testo;
}

std::span<const Libreria::Funzione> FunzioniFormazioni() { return kFormazioni; }

}  // namespace lottolab::script
