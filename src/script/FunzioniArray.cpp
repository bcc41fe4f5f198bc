// Arrays and small utilities for scripts: groups of numbers as lists, as text and as the 90 truth
// values of a "presence" array, the highest, lowest and repeated numbers of a list or of a wheel in
// a draw, sorting, and the helpers that scripts used to write for themselves (Iif, Scambia, MidX...).
//
// Lists are read as the other families read them: a single value is a list of one, and the Empty
// elements that scripts leave in their arrays (element 0, declared and never filled) are no values.
// Numbers come back as Long when whole, as Double otherwise.

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "stats/Numeri.h"
#include "text/Utf.h"
#include "vbscript/runtime/Interpreter.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

constexpr int kNumeri = 90;

Variant Numero(double valore) {
  const bool lungo = valore >= std::numeric_limits<int32_t>::min() && valore <= std::numeric_limits<int32_t>::max();
  if (lungo && valore == static_cast<int32_t>(valore)) return Variant::Long(static_cast<int32_t>(valore));
  return Variant::Double(valore);
}

Variant ArrayDiNumeri(std::span<const double> valori) {
  std::vector<Variant> elementi;
  elementi.reserve(valori.size());
  for (double valore : valori) elementi.push_back(Numero(valore));
  return ArrayDaUno(std::move(elementi));
}

bool Contiene(std::span<const double> valori, double valore) {
  return std::find(valori.begin(), valori.end(), valore) != valori.end();
}

// ---- The 90 truth values ----

Result<std::vector<int>> NumeriDa1a90(std::span<const double> valori) {
  std::vector<int> numeri;
  for (double valore : valori) {
    if (!(valore >= 1 && valore <= kNumeri) || valore != std::floor(valore))
      return ArgomentoNonValido(fmt::format("{} non è un numero da 1 a 90", valore));
    numeri.push_back(static_cast<int>(valore));
  }
  return numeri;
}

// A 1-based array of 90 Booleans, True at the index of each number present.
Result<Variant> PresenzeDi(std::span<const double> valori) {
  VBS_TRY_ASSIGN(auto numeri, NumeriDa1a90(valori));
  std::vector<Variant> presenze(kNumeri, Variant::Boolean(false));
  for (int numero : numeri) presenze[numero - 1] = Variant::Boolean(true);
  return ArrayDaUno(std::move(presenze));
}

template <Result<std::vector<double>> (*Leggi)(const CallArgs&)>
Result<Variant> Presenze(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto valori, Leggi(args));
  return PresenzeDi(valori);
}

Result<std::vector<double>> ValoriPrimoArgomento(const CallArgs& args) { return ValoriArgomento(args, 0); }

// The indices 1..90 of a one-dimensional array whose element is true, whatever its bounds.
Result<std::vector<double>> NumeriPresenti(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto valore, args.Value(i));
  if (!valore.is_array() || valore.as_array()->DimensionCount() != 1)
    return ArgomentoNonValido("Serve un vettore di valori Vero/Falso indicizzato dai numeri");
  const vbs::SafeArray& array = *valore.as_array();
  const int32_t inferiore = array.bounds()[0].lower;
  std::vector<double> numeri;
  for (int32_t numero = std::max(1, inferiore); numero <= std::min(kNumeri, array.bounds()[0].upper); ++numero) {
    VBS_TRY_ASSIGN(auto vero, array.elements()[numero - inferiore].to_boolean(args.locale()));
    if (vero) numeri.push_back(numero);
  }
  return numeri;
}

Result<Variant> ArrayBNumToArrayNum(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto numeri, NumeriPresenti(args, 0));
  return ArrayDiNumeri(numeri);
}

Result<Variant> ArrayBToString(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto numeri, NumeriPresenti(args, 0));
  VBS_TRY_ASSIGN(auto separatore, args.String(1, u"."));
  std::string testo;
  for (double numero : numeri) {
    if (!testo.empty()) testo += text::Utf16ToUtf8(separatore);
    testo += fmt::format("{:02}", static_cast<int>(numero));
  }
  return Variant::String(text::Utf8ToUtf16(testo));
}

// ---- Text and lists ----

// The pieces between the separators, empty ones included; none for an empty text.
std::vector<std::u16string_view> Pezzi(std::u16string_view testo, std::u16string_view separatore) {
  std::vector<std::u16string_view> pezzi;
  for (size_t inizio = 0; !testo.empty() && inizio <= testo.size();) {
    const size_t fine = std::min(testo.find(separatore, inizio), testo.size());
    pezzi.push_back(testo.substr(inizio, fine - inizio));
    inizio = fine + separatore.size();
  }
  return pezzi;
}

Result<std::vector<double>> NumeriDelTesto(const CallArgs& args) {
  VBS_TRY_ASSIGN(auto testo, args.String(0));
  VBS_TRY_ASSIGN(auto separatore, args.String(1, u"."));
  if (separatore.empty()) return ArgomentoNonValido("Il separatore non può essere vuoto");
  std::vector<double> numeri;
  for (std::u16string_view pezzo : Pezzi(testo, separatore)) {
    if (pezzo.find_first_not_of(u' ') == std::u16string_view::npos) continue;
    auto numero = Variant::String(pezzo).to_double(args.locale());
    if (!numero) return ArgomentoNonValido(fmt::format("\"{}\" non è un numero", text::Utf16ToUtf8(pezzo)));
    numeri.push_back(*numero);
  }
  return numeri;
}

Result<Variant> StringaNumeriToArray(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto numeri, NumeriDelTesto(args));
  return ArrayDiNumeri(numeri);
}

Result<Variant> SplitByChar(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto testo, args.String(0));
  VBS_TRY_ASSIGN(auto carattere, args.String(1));
  if (carattere.empty()) return ArgomentoNonValido("Il carattere di separazione non può essere vuoto");
  std::vector<Variant> pezzi;
  for (std::u16string_view pezzo : Pezzi(testo, carattere)) pezzi.push_back(Variant::String(pezzo));
  const auto quanti = static_cast<int32_t>(pezzi.size());
  args.Out(2) = ArrayDaUno(std::move(pezzi));
  return Variant::Long(quanti);
}

Result<Variant> MidX(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto testo, args.String(0));
  VBS_TRY_ASSIGN(auto inizio, args.Long(1));
  VBS_TRY_ASSIGN(auto lunghezza, args.Long(2, -1));
  const size_t da = static_cast<size_t>(std::max(inizio, 1) - 1);
  if (da >= testo.size()) return Variant::String(u"");
  const size_t quanti = lunghezza < 0 ? std::u16string::npos : static_cast<size_t>(lunghezza);
  return Variant::String(std::u16string_view(testo).substr(da, quanti));
}

Result<Variant> RimuoviLastChr(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto testo, args.String(0));
  VBS_TRY_ASSIGN(auto carattere, args.String(1, u""));
  std::u16string_view resto(testo);
  if (!resto.empty() && (carattere.empty() || resto.ends_with(carattere)))
    resto.remove_suffix(carattere.empty() ? 1 : carattere.size());
  return Variant::String(resto);
}

// The elements of a one- or two-dimensional array row by row (the first index is the row), Empty
// ones left out.
Result<Variant> MatriceNumToVetNum(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto valore, args.Value(0));
  if (!valore.is_array()) return ArrayDaUno(std::vector<Variant>{valore});
  const vbs::SafeArray& array = *valore.as_array();
  if (array.DimensionCount() > 2) return ArgomentoNonValido("Serve un vettore o una matrice di due dimensioni");
  const size_t righe = array.DimensionCount() == 0 ? 0 : static_cast<size_t>(array.bounds()[0].count());
  const size_t colonne = righe == 0 ? 0 : array.size() / righe;
  std::vector<Variant> elementi;
  for (size_t r = 0; r < righe; ++r)
    for (size_t c = 0; c < colonne; ++c)
      if (const Variant& elemento = array.elements()[r + c * righe]; !elemento.is_empty()) elementi.push_back(elemento);
  return ArrayDaUno(std::move(elementi));
}

// ---- Counting inside a list ----

template <bool (*Scelto)(double)>
Result<Variant> NumeriScelti(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto valori, ValoriArgomento(args, 0));
  std::vector<double> scelti;
  std::copy_if(valori.begin(), valori.end(), std::back_inserter(scelti), Scelto);
  if (args.Has(1)) args.Out(1) = ArrayDiNumeri(scelti);
  return Variant::Long(static_cast<int32_t>(scelti.size()));
}

bool EDispari(double n) { return stats::Dispari(n) == stats::kVero; }
bool EPari(double n) { return stats::Pari(n) == stats::kVero; }
bool ENullo(double n) { return n == 0; }
bool EPrimo(double n) { return stats::Primo(n) == stats::kVero; }
bool ENonPrimo(double n) { return !EPrimo(n); }

std::vector<double> SenzaRipetuti(std::span<const double> valori) {
  std::vector<double> unici;
  for (double valore : valori)
    if (!Contiene(unici, valore)) unici.push_back(valore);
  return unici;
}

Result<Variant> EliminaRipetuti(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto valori, ValoriArgomento(args, 0));
  return ArrayDiNumeri(SenzaRipetuti(valori));
}

Result<Variant> NumeriRipetuti(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto valori, ValoriArgomento(args, 0));
  std::vector<double> ripetuti;
  for (double valore : SenzaRipetuti(valori))
    if (std::count(valori.begin(), valori.end(), valore) > 1) ripetuti.push_back(valore);
  if (args.Has(1)) args.Out(1) = ArrayDiNumeri(ripetuti);
  return Variant::Long(static_cast<int32_t>(ripetuti.size()));
}

Result<Variant> Ripetizioni(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto valori, ValoriArgomento(args, 0));
  VBS_TRY_ASSIGN(auto numero, args.Double(1));
  return Variant::Long(static_cast<int32_t>(std::count(valori.begin(), valori.end(), numero)));
}

Result<Variant> Differenza(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto primi, ValoriArgomento(args, 0));
  VBS_TRY_ASSIGN(auto secondi, ValoriArgomento(args, 1));
  std::vector<double> differenza;
  for (double valore : primi)
    if (!Contiene(secondi, valore)) differenza.push_back(valore);
  args.Out(2) = ArrayDiNumeri(differenza);
  return Variant::Long(static_cast<int32_t>(differenza.size()));
}

template <bool Massimo>
Result<Variant> Estremo(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto valori, ValoriArgomento(args, 0));
  if (valori.empty()) return ArgomentoNonValido("Nessun valore fra cui cercare");
  return Numero(Massimo ? *std::max_element(valori.begin(), valori.end())
                        : *std::min_element(valori.begin(), valori.end()));
}

// Where Estremo's value is, counted as the values are read; the first of equal ones.
template <bool Massimo>
Result<Variant> PosizioneEstremo(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto valori, ValoriArgomento(args, 0));
  if (valori.empty()) return Variant::Long(0);
  const auto estremo =
      Massimo ? std::max_element(valori.begin(), valori.end()) : std::min_element(valori.begin(), valori.end());
  return Variant::Long(static_cast<int32_t>(estremo - valori.begin()) + 1);
}

Result<Variant> NumeriRipetutiRilevatiV(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto primi, ValoriArgomento(args, 0));
  VBS_TRY_ASSIGN(auto secondi, ValoriArgomento(args, 1));
  std::vector<double> comuni;
  for (double valore : SenzaRipetuti(primi))
    if (Contiene(secondi, valore)) comuni.push_back(valore);
  args.Out(2) = ArrayDiNumeri(comuni);
  return Variant::Long(static_cast<int32_t>(comuni.size()));
}

// ---- A wheel of a draw ----

struct RuotaDiEstrazione {
  const TabellaEstrazioni* tab;
  int id_estr;
  int ruota;  // in the table's numbering
};

// IdEstr and Ruota as arguments 0 and 1; all the wheels together (TU_) is no single wheel.
Result<RuotaDiEstrazione> RuotaDiEstrazioneArgomenti(const Libreria& lib, const CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto id_estr, EstrazioneArgomento(*archivio, args, 0, 0, "IdEstr"));
  VBS_TRY_ASSIGN(auto ruota, RuotaArgomento(args, 1, kNumeroRuote));
  return RuotaDiEstrazione{archivio, id_estr, ruota};
}

// The five numbers in the order drawn; none when the wheel was not drawn.
std::vector<int> NumeriDellaRuota(const Estrazione& estrazione, int ruota) {
  std::vector<int> numeri;
  if (!estrazione.RuotaEstratta(ruota)) return numeri;
  for (int p = 1; p <= kNumeriPerRuota; ++p) numeri.push_back(estrazione.Numero(ruota, p));
  return numeri;
}

template <bool Massimo>
Result<Variant> EstremoEstratto(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto punto, RuotaDiEstrazioneArgomenti(lib, args));
  const std::vector<int> numeri = NumeriDellaRuota((*punto.tab)[punto.id_estr], punto.ruota);
  if (numeri.empty()) return Variant::Integer(0);
  return Variant::Integer(static_cast<int16_t>(Massimo ? std::ranges::max(numeri) : std::ranges::min(numeri)));
}

// The draw compared with is the last earlier one in which the wheel was drawn, so Nazionale's years
// without it, and records holding no draw, are passed over.
Result<Variant> NumeriRipetutiRilevatiE(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto punto, RuotaDiEstrazioneArgomenti(lib, args));
  const TabellaEstrazioni& tab = *punto.tab;
  const std::vector<int> numeri = NumeriDellaRuota(tab[punto.id_estr], punto.ruota);
  std::vector<int> precedenti;
  for (int id = punto.id_estr - 1; !numeri.empty() && precedenti.empty() && id >= 1; --id)
    precedenti = NumeriDellaRuota(tab[id], punto.ruota);
  std::vector<int> ripetuti;
  std::ranges::copy_if(numeri, std::back_inserter(ripetuti),
                       [&](int numero) { return std::ranges::find(precedenti, numero) != precedenti.end(); });
  args.Out(2) = ArrayDaUno(ripetuti);
  return Variant::Long(static_cast<int32_t>(ripetuti.size()));
}

// ---- Sorting ----

// The language's order: numbers by value before any text, texts by code unit.
struct Chiave {
  bool testo;
  double numero;
  std::u16string_view stringa;
  friend bool operator<(const Chiave& a, const Chiave& b) {
    if (a.testo != b.testo) return !a.testo;
    return a.testo ? a.stringa < b.stringa : a.numero < b.numero;
  }
};

Result<Chiave> ChiaveDi(const Variant& valore, const vbs::Locale& locale) {
  if (valore.is_string()) return Chiave{true, 0, valore.as_string_view()};
  if (valore.is_number() || valore.is_boolean() || valore.is_date()) {
    VBS_TRY_ASSIGN(auto numero, valore.to_double(locale));
    return Chiave{false, numero, {}};
  }
  return ArgomentoNonValido("La matrice contiene valori che non si possono ordinare");
}

struct Disposizione {
  size_t righe;    // the extent of the first index
  size_t colonne;  // 1 for a vector
  size_t colonna;  // the 0-based column of the key
};

Result<Disposizione> DisposizioneDa(const vbs::SafeArray& array, const CallArgs& args) {
  if (array.DimensionCount() == 1) return Disposizione{array.size(), 1, 0};
  if (array.DimensionCount() != 2) return ArgomentoNonValido("Serve un vettore o una matrice di due dimensioni");
  VBS_TRY_ASSIGN(auto colonna, args.Long(2, 1));
  const vbs::ArrayBound& colonne = array.bounds()[1];
  if (colonna < colonne.lower || colonna > colonne.upper)
    return ArgomentoNonValido(
        fmt::format("Colonna {} fuori dai limiti della matrice ({} .. {})", colonna, colonne.lower, colonne.upper));
  return Disposizione{static_cast<size_t>(array.bounds()[0].count()), static_cast<size_t>(colonne.count()),
                      static_cast<size_t>(colonna - colonne.lower)};
}

// Rows whose key is Empty stay where they are, so that the unused element 0 of a script's array
// does not move into the middle of the numbers; the other rows are sorted, stably, among their places.
Result<Variant> OrdinaMatrice(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto ordine, args.Long(1, 1));
  if (ordine != 1 && ordine != -1) return ArgomentoNonValido("Ordine deve essere 1 (crescente) o -1 (decrescente)");
  if (!args.Out(0).is_array()) return ArgomentoNonValido("Serve un vettore o una matrice da ordinare");
  VBS_TRY_ASSIGN(auto array, vbs::MutableArray(args.Out(0)));
  VBS_TRY_ASSIGN(auto disposizione, DisposizioneDa(*array, args));
  const auto [righe, colonne, colonna] = disposizione;
  auto celle = (array)->elements();

  std::vector<size_t> posti;
  std::vector<std::pair<Chiave, size_t>> chiavi;
  for (size_t r = 0; r < righe; ++r) {
    const Variant& cella = celle[r + colonna * righe];
    if (cella.is_empty()) continue;
    VBS_TRY_ASSIGN(auto chiave, ChiaveDi(cella, args.locale()));
    posti.push_back(r);
    chiavi.emplace_back(chiave, r);
  }
  const bool crescente = ordine == 1;
  std::stable_sort(chiavi.begin(), chiavi.end(), [crescente](const auto& a, const auto& b) {
    return crescente ? a.first < b.first : b.first < a.first;
  });
  const std::vector<Variant> originali(celle.begin(), celle.end());
  for (size_t i = 0; i < posti.size(); ++i)
    for (size_t c = 0; c < colonne; ++c) celle[posti[i] + c * righe] = originali[chiavi[i].second + c * righe];
  return Variant();
}

// ---- The script's own helpers ----

Result<Variant> Iif(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto condizione, args.Boolean(0));
  return args.Value(condizione ? 1 : 2);
}

Result<Variant> Scambia(Libreria&, CallArgs& args) {
  std::swap(args.Out(0), args.Out(1));
  return Variant();
}

Result<Variant> CopiaArray(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto origine, args.Value(0));
  if (!origine.is_array()) return ArgomentoNonValido("aOrigine non è un array");
  args.Out(1) = std::move(origine);
  return Variant();
}

const Libreria::Funzione kArray[] = {
    {"EliminaRipetuti", 1, 1, &EliminaRipetuti,
     "aNumeri: un array con indice da 1 dei numeri senza ripetizioni, ciascuno dove compare la prima volta",
     "Array da 1 di Long: i numeri senza ripetizioni",
     "a = EliminaRipetuti(Array(5, 12, 5, 90, 12)) : Scrivi StringaNumeri(a)"},
    {"ArrayNumeriToBool", 1, 1, &Presenze<&ValoriPrimoArgomento>,
     "aNumeri: un array con indice da 1 di 90 Boolean, True all'indice di ogni numero presente; errore per un numero "
     "fuori da 1..90",
     "Array da 1 a 90 di Boolean; errore 5 per un numero fuori da 1..90",
     "aB = ArrayNumeriToBool(Array(5, 12, 90)) : Scrivi aB(12)"},
    {"ArrayNumToArrayBNum", 1, 1, &Presenze<&ValoriPrimoArgomento>,
     "aNumeri: come ArrayNumeriToBool, un array con indice da 1 di 90 Boolean, True a ogni numero presente",
     "Array da 1 a 90 di Boolean", "aB = ArrayNumToArrayBNum(Array(5, 12, 90)) : Scrivi ArrayBToString(aB)"},
    {"ArrayBNumToArrayNum", 1, 1, &ArrayBNumToArrayNum,
     "aB: i numeri 1..90 il cui elemento di aB è vero, come array con indice da 1 in ordine crescente",
     "Array da 1 di Long: i numeri presenti",
     "aB = ArrayNumeriToBool(Array(90, 5)) : Scrivi StringaNumeri(ArrayBNumToArrayNum(aB))"},
    {"ArrayBToString", 1, 2, &ArrayBToString,
     "aB, [Separatore = \".\"]: i numeri il cui elemento di aB è vero, a due cifre ciascuno, uniti: \"05.12.90\"",
     "String: i numeri uniti a due cifre", "Scrivi ArrayBToString(ArrayNumeriToBool(Array(90, 5, 12)), \"-\")"},
    {"MatriceNumToVetNum", 1, 1, &MatriceNumToVetNum,
     "aMatrice: gli elementi di un vettore o di una matrice a due dimensioni riga per riga, esclusi quelli Empty, "
     "come array con indice da 1",
     "Array da 1: gli elementi non Empty, riga per riga",
     "ReDim m(2, 2) : m(1, 1) = 12 : m(2, 2) = 34 : Scrivi StringaNumeri(MatriceNumToVetNum(m))"},
    {"MatriceNumToBNum", 1, 1, &Presenze<&ValoriPrimoArgomento>,
     "aMatrice: un array con indice da 1 di 90 Boolean, True a ogni numero presente in un punto qualsiasi della "
     "matrice",
     "Array da 1 a 90 di Boolean",
     "ReDim m(2, 2) : m(1, 1) = 12 : m(2, 2) = 34 : Scrivi ArrayBToString(MatriceNumToBNum(m))"},
    {"StringaNumeriToArray", 1, 2, &StringaNumeriToArray,
     "Testo, [Separatore = \".\"]: i numeri scritti nel testo, \"1.2.45\", come array con indice da 1; i pezzi vuoti "
     "sono saltati, un pezzo che non è un numero è un errore",
     "Array da 1 di Long; errore 5 per un pezzo che non è un numero",
     "a = StringaNumeriToArray(\"1.2.45\") : Scrivi a(3)"},
    {"StringaNumeriToArrayB", 1, 2, &Presenze<&NumeriDelTesto>,
     "Testo, [Separatore = \".\"]: un array con indice da 1 di 90 Boolean, True a ogni numero scritto nel testo",
     "Array da 1 a 90 di Boolean", "aB = StringaNumeriToArrayB(\"5-12-90\", \"-\") : Scrivi aB(90)"},
    {"NumeriDispari", 1, 2, &NumeriScelti<&EDispari>,
     "aNumeri, [aRet]: quanti dei numeri, riportati in 1..90, sono dispari; aRet li riceve così come sono dati, come "
     "array con indice da 1",
     "Long: quanti sono dispari; in aRet quei numeri (array da 1)",
     "Scrivi NumeriDispari(Array(1, 2, 3, 4, 5), aD) & \": \" & StringaNumeri(aD)"},
    {"NumeriPari", 1, 2, &NumeriScelti<&EPari>,
     "aNumeri, [aRet]: quanti dei numeri, riportati in 1..90 (0 vale 90), sono pari; aRet li riceve così come sono "
     "dati, come array con indice da 1",
     "Long: quanti sono pari; in aRet quei numeri (array da 1)", "Scrivi NumeriPari(Array(1, 2, 3, 4, 90))"},
    {"NumeriNulli", 1, 2, &NumeriScelti<&ENullo>,
     "aNumeri, [aRet]: quanti dei valori sono 0; aRet li riceve come array con indice da 1",
     "Long: quanti valori sono 0; in aRet quei valori (array da 1)", "Scrivi NumeriNulli(Array(0, 12, 0, 34))"},
    {"NumeriPrimi", 1, 2, &NumeriScelti<&EPrimo>,
     "aNumeri, [aRet]: quanti dei numeri, riportati in 1..90, sono primi; aRet li riceve come array con indice da 1",
     "Long: quanti sono primi; in aRet quei numeri (array da 1)",
     "Scrivi NumeriPrimi(Array(2, 9, 11, 89), aP) & \": \" & StringaNumeri(aP)"},
    {"NumeriNonPrimi", 1, 2, &NumeriScelti<&ENonPrimo>,
     "aNumeri, [aRet]: quanti dei numeri, riportati in 1..90, non sono primi (1 compreso); aRet li riceve come array "
     "con indice da 1",
     "Long: quanti non sono primi; in aRet quei numeri (array da 1)", "Scrivi NumeriNonPrimi(Array(1, 2, 9, 11))"},
    {"NumeriRipetuti", 1, 2, &NumeriRipetuti,
     "aNumeri, [aRet]: quanti numeri diversi compaiono più di una volta; aRet li riceve, ciascuno una volta",
     "Long: quanti numeri si ripetono; in aRet quei numeri (array da 1)",
     "Scrivi NumeriRipetuti(Array(5, 12, 5, 90, 12), aR) & \": \" & StringaNumeri(aR)"},
    {"Ripetizioni", 2, 2, &Ripetizioni, "aNumeri, Numero: quante volte Numero compare tra i numeri",
     "Long: quante volte compare", "Scrivi Ripetizioni(Array(5, 12, 5, 90), 5)"},
    {"Differenza", 3, 3, &Differenza,
     "aA, aB, aRet: riempie aRet con i numeri di aA che non sono in aB, nell'ordine di aA, e restituisce quanti sono",
     "Long: quanti numeri; in aRet i numeri di aA non in aB (array da 1)",
     "Scrivi Differenza(Array(1, 2, 3, 4), Array(2, 4), aD) & \": \" & StringaNumeri(aD)"},
    {"NumeriRipetutiRilevatiV", 3, 3, &NumeriRipetutiRilevatiV,
     "aNumeri1, aNumeri2, aRet: riempie aRet con i numeri presenti in entrambe le liste, nell'ordine di aNumeri1 e "
     "ciascuno una volta, come array con indice da 1, e restituisce quanti sono",
     "Long: quanti numeri comuni; in aRet quei numeri (array da 1)",
     "Scrivi NumeriRipetutiRilevatiV(Array(1, 2, 3), Array(3, 2, 9), aC) & \": \" & StringaNumeri(aC)"},
    {"Massimo", 1, 1, &Estremo<true>, "aNumeri: il più grande dei numeri",
     "Long (Double per un valore non intero): il valore più grande; errore 5 senza valori",
     "Scrivi Massimo(Array(12, 90, 45))"},
    {"Minimo", 1, 1, &Estremo<false>, "aNumeri: il più piccolo dei numeri",
     "Long (Double per un valore non intero): il valore più piccolo; errore 5 senza valori",
     "Scrivi Minimo(Array(12, 90, 45))"},
    {"MassimoV", 1, 1, &PosizioneEstremo<true>,
     "aNumeri: la posizione, da 1, del più grande dei numeri (il primo se sono più d'uno), contando solo gli "
     "elementi non Empty; 0 se non ci sono numeri",
     "Long: la posizione da 1 del più grande, 0 senza valori", "Scrivi MassimoV(Array(12, 90, 45))"},
    {"MinimoV", 1, 1, &PosizioneEstremo<false>,
     "aNumeri: la posizione, da 1, del più piccolo dei numeri (il primo se sono più d'uno), contando solo gli "
     "elementi non Empty; 0 se non ci sono numeri",
     "Long: la posizione da 1 del più piccolo, 0 senza valori", "Scrivi MinimoV(Array(12, 90, 45))"},
    {"MassimoE", 2, 2, &EstremoEstratto<true>,
     "IdEstr, Ruota: il più grande dei numeri estratti sulla ruota in quell'estrazione (Integer), 0 se la ruota "
     "non fu estratta",
     "Integer: il numero più grande, 0 se la ruota non fu estratta", "Scrivi MassimoE(EstrazioniArchivio, BA_)"},
    {"MinimoE", 2, 2, &EstremoEstratto<false>,
     "IdEstr, Ruota: il più piccolo dei numeri estratti sulla ruota in quell'estrazione (Integer), 0 se la ruota "
     "non fu estratta",
     "Integer: il numero più piccolo, 0 se la ruota non fu estratta", "Scrivi MinimoE(EstrazioniArchivio, BA_)"},
    {"NumeriRipetutiRilevatiE", 3, 3, &NumeriRipetutiRilevatiE,
     "IdEstr, Ruota, aRet: riempie aRet, con indice da 1 e nell'ordine di estrazione, con i numeri della ruota in "
     "quell'estrazione che erano usciti sulla stessa ruota anche nell'ultima estrazione precedente in cui fu "
     "estratta, e restituisce quanti sono; 0 se la ruota non fu estratta",
     "Long: quanti numeri ripetuti; in aRet quei numeri (array da 1)",
     "Scrivi NumeriRipetutiRilevatiE(EstrazioniArchivio, TO_, aR)"},
    {"OrdinaMatrice", 1, 3, &OrdinaMatrice,
     "aMatrice, [Ordine = 1], [Colonna = 1]: ordina sul posto un vettore, o le righe di una matrice secondo la "
     "colonna Colonna; Ordine 1 crescente, -1 decrescente; i numeri prima dei testi; le righe con chiave Empty "
     "restano al loro posto",
     "niente (Sub): aMatrice ordinata sul posto",
     "ReDim m(3, 2) : m(1, 1) = 7 : m(1, 2) = 40 : m(2, 1) = 12 : m(2, 2) = 10 : m(3, 1) = 90 : m(3, 2) = 25 : "
     "OrdinaMatrice m, -1, 2 : Scrivi m(1, 1)"},
    {"OrdinaMatriceTurbo", 1, 3, &OrdinaMatrice, "aMatrice, [Ordine = 1], [Colonna = 1]: come OrdinaMatrice",
     "niente (Sub): aMatrice ordinata sul posto",
     "a = Array(45, 12, 90) : OrdinaMatriceTurbo a : Scrivi StringaNumeri(a)"},
    {"SplitByChar", 3, 3, &SplitByChar,
     "Testo, Carattere, aRet: riempie aRet con i pezzi del testo tra i separatori (quelli vuoti inclusi), come array "
     "con indice da 1, e restituisce quanti sono; 0 per un testo vuoto",
     "Long: quanti pezzi; in aRet i pezzi (array da 1 di String)",
     "n = SplitByChar(\"BA;CA;;FI\", \";\", aP) : Scrivi n & \" \" & aP(4)"},
    {"MidX", 2, 3, &MidX,
     "Testo, Inizio, [Lunghezza]: la parte del testo da Inizio (un inizio minore di 1 vale 1), lunga Lunghezza "
     "caratteri, o il resto se Lunghezza manca o è negativa; \"\" per un inizio oltre la fine",
     "String: la parte del testo", "Scrivi MidX(\"Estrazione\", 3, 5)"},
    {"RimuoviLastChr", 1, 2, &RimuoviLastChr,
     "Testo, [Carattere]: il testo senza l'ultimo carattere; con Carattere, solo se il testo finisce con esso",
     "String: il testo senza l'ultimo carattere", "Scrivi RimuoviLastChr(\"12.34.\", \".\")"},
    {"Iif", 3, 3, &Iif, "Condizione, A, B: A se la condizione è vera, altrimenti B",
     "il valore di A o di B, del tipo che ha",
     "Scrivi Iif(EstrattoRitardo(BA_, 90) > 100, \"ritardatario\", \"normale\")"},
    {"Scambia", 2, 2, &Scambia, "a, b: scambia i valori delle due variabili del chiamante",
     "niente (Sub): a e b scambiati", "a = 1 : b = 2 : Scambia a, b : Scrivi a & \" \" & b"},
    {"CopiaArray", 2, 2, &CopiaArray, "aOrigine, aDest: mette in aDest una copia dell'array aOrigine",
     "niente (Sub): in aDest la copia; errore 5 se aOrigine non è un array",
     "CopiaArray Array(1, 2, 3), aCopia : Scrivi UBound(aCopia)"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniArray() { return kArray; }

}  // namespace lottolab::script
