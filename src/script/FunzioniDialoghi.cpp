// Dialogs that ask the user for numbers, wheels, a sorte, an item of a list, a range of draws or a
// path. The host opens them (a window on the desktop, a file of answers on the command line); the
// library checks each answer, so a host cannot hand a script a wheel or a number that does not exist.
// A cancelled dialog gives the script a result it can test: an empty array, 0, -1 or "".

#include <algorithm>
#include <fmt/format.h>

#include "ArgomentiLotto.h"
#include "Famiglia.h"
#include "text/Utf.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

constexpr int kRuotaTutteScript = 11;  // TU_ in the script's numbering
constexpr int kNazionaleScript = 12;   // NZ_ in the script's numbering

vbs::ScriptError RispostaNonValida(const std::string& titolo) {
  return ArgomentoNonValido(fmt::format("Risposta non valida al dialogo \"{}\"", titolo));
}

Result<std::string> TitoloArgomento(const CallArgs& args, size_t i, std::u16string_view predefinito) {
  VBS_TRY_ASSIGN(auto titolo, args.String(i, predefinito));
  return text::Utf16ToUtf8(titolo);
}

bool SenzaRipetizioni(std::vector<int> valori) {
  std::sort(valori.begin(), valori.end());
  return std::adjacent_find(valori.begin(), valori.end()) == valori.end();
}

// The host's choice among `voci`, checked: positions inside the list, each once, one at most unless
// `multipla`. Nothing when the user cancelled.
Result<std::optional<std::vector<int>>> Voci(Libreria& lib, const std::string& titolo,
                                             const std::vector<std::string>& voci, bool multipla) {
  auto scelte = lib.ospite().ScegliVoci(titolo, voci, multipla);
  if (!scelte) return std::optional<std::vector<int>>();
  const bool dentro = std::all_of(scelte->begin(), scelte->end(),
                                  [&](int k) { return k >= 0 && static_cast<size_t>(k) < voci.size(); });
  if (!dentro || !SenzaRipetizioni(*scelte) || (!multipla && scelte->size() > 1)) return RispostaNonValida(titolo);
  return scelte;
}

// One item: its position from 0, or -1 when the user cancelled or chose nothing.
Result<int> Voce(Libreria& lib, const std::string& titolo, const std::vector<std::string>& voci) {
  VBS_TRY_ASSIGN(auto scelte, Voci(lib, titolo, voci, false));
  return scelte && !(scelte)->empty() ? (*scelte)[0] : -1;
}

// The host's numbers, checked: at most `quanti`, each from 1 to `massimo` and once.
Result<std::optional<std::vector<int>>> Numeri(Libreria& lib, const std::string& titolo, int quanti, int massimo,
                                               const std::vector<int>& proposti) {
  auto numeri = lib.ospite().ScegliNumeri(titolo, quanti, massimo, proposti);
  if (!numeri) return numeri;
  const bool dentro = std::all_of(numeri->begin(), numeri->end(), [&](int n) { return n >= 1 && n <= massimo; });
  if (!dentro || !SenzaRipetizioni(*numeri) || numeri->size() > static_cast<size_t>(quanti))
    return RispostaNonValida(titolo);
  return numeri;
}

std::vector<std::string> NomiDelleRuote() {
  std::vector<std::string> nomi;
  for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) nomi.emplace_back(NomeRuota(ruota));
  return nomi;
}

// Position k of the list of wheels as the script numbers that wheel: Nazionale, the table's last,
// is NZ_.
int RuotaScript(int k) { return k + 1 == NZ ? kNazionaleScript : k + 1; }

Result<Variant> ScegliNumeri(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto titolo, TitoloArgomento(args, 0, u"Scegli i numeri"));
  VBS_TRY_ASSIGN(auto quanti, args.Long(1, kMassimoNumero));
  if (quanti < 1 || quanti > kMassimoNumero)
    return ArgomentoNonValido(fmt::format("Quanti numeri scegliere: da 1 a {}, non {}", kMassimoNumero, quanti));
  VBS_TRY_ASSIGN(auto numeri, Numeri(lib, titolo, quanti, kMassimoNumero, {}));
  return ArrayDaUno(numeri.value_or(std::vector<int>{}));
}

Result<Variant> ScegliRuota(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto titolo, TitoloArgomento(args, 0, u"Scegli la ruota"));
  std::vector<std::string> voci = NomiDelleRuote();
  voci.emplace_back("Tutte le ruote");
  VBS_TRY_ASSIGN(auto scelta, Voce(lib, titolo, voci));
  if (scelta < 0) return Variant::Integer(0);
  return Variant::Integer(static_cast<int16_t>(scelta == kNumeroRuote ? kRuotaTutteScript : RuotaScript(scelta)));
}

Result<Variant> ScegliRuote(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto titolo, TitoloArgomento(args, 0, u"Scegli le ruote"));
  VBS_TRY_ASSIGN(auto scelte, Voci(lib, titolo, NomiDelleRuote(), true));
  std::vector<int> ruote = scelte.value_or(std::vector<int>{});
  std::sort(ruote.begin(), ruote.end());
  std::transform(ruote.begin(), ruote.end(), ruote.begin(), RuotaScript);
  return ArrayDaUno(ruote);
}

Result<Variant> ScegliEsito(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto titolo, TitoloArgomento(args, 0, u"Scegli la sorte"));
  VBS_TRY_ASSIGN(auto scelta, Voce(lib, titolo, {"Ambata", "Ambo", "Terno", "Quaterna", "Cinquina"}));
  return Variant::Integer(static_cast<int16_t>(scelta + 1));
}

// The items of a one-dimensional array, each as the script would print it.
Result<std::vector<std::string>> VociDellArray(const vbs::SafeArray& array, const vbs::Locale& locale) {
  std::vector<std::string> voci;
  for (const Variant& elemento : array.elements()) {
    VBS_TRY_ASSIGN(auto testo, elemento.to_string(locale));
    voci.push_back(text::Utf16ToUtf8(testo.view()));
  }
  return voci;
}

Result<Variant> ScegliDaLista(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto lista, args.Value(0));
  if (!lista.is_array() || lista.as_array()->DimensionCount() != 1)
    return ArgomentoNonValido("Le voci da scegliere vanno date in un array a una dimensione");
  VBS_TRY_ASSIGN(auto voci, VociDellArray(*lista.as_array(), args.locale()));
  VBS_TRY_ASSIGN(auto titolo, TitoloArgomento(args, 1, u"Scegli una voce"));
  VBS_TRY_ASSIGN(auto scelta, Voce(lib, titolo, voci));
  if (scelta < 0) return Variant::Long(-1);
  return Variant::Long(lista.as_array()->bounds()[0].lower + scelta);
}

Result<Variant> ScegliOpzioneMenu(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto titolo, TitoloArgomento(args, 0, u""));
  std::vector<std::string> opzioni;
  for (size_t i = 1; i < args.size(); ++i) {
    VBS_TRY_ASSIGN(auto opzione, args.String(i));
    opzioni.push_back(text::Utf16ToUtf8(opzione));
  }
  VBS_TRY_ASSIGN(auto scelta, Voce(lib, titolo, opzioni));
  return Variant::Long(scelta + 1);
}

template <bool kCartella>
Result<Variant> ScegliPercorso(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto titolo, TitoloArgomento(args, 0, kCartella ? u"Scegli la cartella" : u"Scegli il file"));
  const std::string base = lib.impostazioni().cartella_base.string();
  VBS_TRY_ASSIGN(auto proposto, args.String(1, kCartella ? text::Utf8ToUtf16(base) : u""));
  auto percorso = lib.ospite().ScegliPercorso(titolo, text::Utf16ToUtf8(proposto), kCartella);
  return Variant::String(text::Utf8ToUtf16(percorso.value_or("")));
}

// The range the variables hold when it lies in the archive, else the whole archive.
std::vector<int> RangeProposto(const CallArgs& args, int estrazioni) {
  auto inizio = args.Long(0);
  auto fine = args.Long(1);
  if (inizio && fine && *inizio >= 1 && *inizio <= *fine && *fine <= estrazioni) return {*inizio, *fine};
  return {1, estrazioni};
}

Result<Variant> ScegliRange(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto titolo, TitoloArgomento(args, 2, u"Scegli la prima e l'ultima estrazione"));
  const int estrazioni = (archivio)->EstrazioniArchivio();
  VBS_TRY_ASSIGN(auto scelte, Numeri(lib, titolo, 2, estrazioni, RangeProposto(args, estrazioni)));
  if (!scelte) return Variant::Boolean(false);
  std::vector<int> range = *scelte;
  if (range.size() != 2) return RispostaNonValida(titolo);
  std::sort(range.begin(), range.end());
  args.Out(0) = Variant::Long(range[0]);
  args.Out(1) = Variant::Long(range[1]);
  return Variant::Boolean(true);
}

constexpr double kPostaMassima = 1e6;

// The stakes proposed are those the array holds, sorte by sorte; a stake not given proposes 1 for
// the estratto and the ambo and 0 for the others.
Result<std::vector<double>> PosteProposte(const CallArgs& args) {
  std::vector<double> poste = {1, 1, 0, 0, 0};
  const Variant& valore = args[0];
  if (!valore.is_array()) return poste;
  const vbs::SafeArray& array = *valore.as_array();
  if (array.DimensionCount() != 1) return ArgomentoNonValido("Le poste vanno date in un array a una dimensione");
  const int32_t inizio = array.bounds()[0].lower;
  for (int sorte = 1; sorte <= kNumeriPerRuota; ++sorte) {
    const int32_t indice = sorte - inizio;
    if (indice < 0 || static_cast<size_t>(indice) >= array.size() || array.elements()[indice].is_empty()) continue;
    VBS_TRY_ASSIGN(auto posta, array.elements()[indice].to_double(args.locale()));
    poste[sorte - 1] = posta;
  }
  return poste;
}

Result<Variant> ScegliPoste(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto proposte, PosteProposte(args));
  VBS_TRY_ASSIGN(auto titolo, TitoloArgomento(args, 1, u"Scegli le poste"));
  auto poste = lib.ospite().ScegliImporti(titolo, {"Estratto", "Ambo", "Terno", "Quaterna", "Cinquina"}, proposte);
  if (!poste) return Variant::Boolean(false);
  const bool valide =
      poste->size() == kNumeriPerRuota &&
      std::all_of(poste->begin(), poste->end(), [](double p) { return p >= 0 && p <= kPostaMassima; }) &&
      std::any_of(poste->begin(), poste->end(), [](double p) { return p > 0; });
  if (!valide) return RispostaNonValida(titolo);
  std::vector<Variant> elementi;
  for (double posta : *poste) elementi.push_back(Variant::Double(posta));
  args.Out(0) = ArrayDaUno(std::move(elementi));
  return Variant::Boolean(true);
}

const Libreria::Funzione kDialoghi[] = {
    {"ScegliNumeri", 0, 2, &ScegliNumeri,
     "[Titolo], [Quanti = 90]: chiede fino a Quanti numeri da 1 a 90; un array (1 To n) dei numeri scelti, (1 To 0) "
     "se annullato",
     "Array da 1 di Long: i numeri scelti, (1 To 0) se annullato",
     "aN = ScegliNumeri(\"Numeri da giocare\", 5) : Scrivi UBound(aN) & \" numeri scelti\""},
    {"ScegliRuota", 0, 1, &ScegliRuota,
     "[Titolo]: chiede una ruota, o tutte; la ruota (Integer: BA_ .. VE_, NZ_, TU_), 0 se annullato",
     "Integer: la ruota scelta (TU_ per tutte), 0 se annullato",
     "r = ScegliRuota(\"Ruota da studiare\") : If r > 0 Then Scrivi NomeRuota(r)"},
    {"ScegliRuote", 0, 1, &ScegliRuote,
     "[Titolo]: chiede una o più ruote qualsiasi; un array (1 To n) delle ruote scelte, in ordine (NZ_ per ultima), "
     "(1 To 0) se annullato",
     "Array da 1 di Long: le ruote scelte, (1 To 0) se annullato",
     "aR = ScegliRuote(\"Ruote da giocare\") : Scrivi StringaRuote(aR)"},
    {"ScegliEsito", 0, 1, &ScegliEsito,
     "[Titolo]: chiede una sorte; AMBATA_ .. CINQUINA_ (Integer 1..5), 0 se annullato",
     "Integer: la sorte 1..5, 0 se annullato", "Scrivi NomeSorte(ScegliEsito(\"Sorte da giocare\"))"},
    {"ScegliDaLista", 1, 2, &ScegliDaLista,
     "aVoci, [Titolo]: chiede una voce dell'array; il suo indice in aVoci (Long), -1 se annullato",
     "Long: l'indice della voce in aVoci, -1 se annullato",
     "i = ScegliDaLista(Array(\"Ritardi\", \"Frequenze\"), \"Cosa calcolare\") : Scrivi i"},
    {"ScegliOpzioneMenu", 2, 255, &ScegliOpzioneMenu,
     "Titolo, Opzione1, [Opzione2, ...]: chiede una delle opzioni; il suo numero (Long, 1 per Opzione1), 0 se "
     "annullato",
     "Long: il numero dell'opzione, da 1; 0 se annullato",
     "Scrivi ScegliOpzioneMenu(\"Ordina per\", \"Ritardo\", \"Frequenza\")"},
    {"ScegliDirectory", 0, 2, &ScegliPercorso<true>,
     "[Titolo], [Iniziale = la cartella di base]: chiede una cartella; il suo percorso, \"\" se annullato",
     "String: il percorso della cartella, \"\" se annullato", "Scrivi ScegliDirectory(\"Cartella dei risultati\")"},
    {"ScegliFile", 0, 2, &ScegliPercorso<false>,
     "[Titolo], [Iniziale = \"\"]: chiede un file; il suo percorso, \"\" se annullato",
     "String: il percorso del file, \"\" se annullato", "Scrivi ScegliFile(\"File da leggere\", GetDirectoryAppData)"},
    {"ScegliPoste", 1, 2, &ScegliPoste,
     "aPoste, [Titolo]: chiede la posta in euro di ciascuna sorte, da estratto a cinquina, proponendo quelle di "
     "aPoste (se vuoto: 1 all'estratto e all'ambo); True con aPoste(1 To 5) impostato (Double), False se annullato",
     "Boolean: True e in aPoste le cinque poste (array da 1 di Double), False se annullato",
     "If ScegliPoste(aPoste, \"Poste\") Then Scrivi aPoste(1) & \" \" & aPoste(2)"},
    {"ScegliRange", 2, 3, &ScegliRange,
     "Inizio, Fine, [Titolo]: chiede la prima e l'ultima estrazione di un intervallo, proponendo quello indicato da "
     "Inizio e Fine (l'intero archivio se non ne indicano alcuno); True con Inizio e Fine impostati, False se "
     "annullato",
     "Boolean: True e in Inizio e Fine l'intervallo scelto (Long), False se annullato",
     "Ini = EstrazioniArchivio - 99 : Fin = EstrazioniArchivio : If ScegliRange(Ini, Fin, \"Periodo\") Then Scrivi Ini "
     "& \" - \" & Fin"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniDialoghi() { return kDialoghi; }

}  // namespace lottolab::script
