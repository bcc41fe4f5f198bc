// Text for the output: a draw or an array written in columns, numbers and wheels joined into short
// texts, numbers padded and formatted, the names of sorti and months.

#include <algorithm>
#include <array>
#include <cmath>
#include <fmt/format.h>

#include "ArgomentiLotto.h"
#include "Famiglia.h"
#include "TabellaOutput.h"
#include "archive/DateEstrazione.h"
#include "text/Utf.h"
#include "vbscript/runtime/Interpreter.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

Variant Stringa(std::string_view testo) { return Variant::String(text::Utf8ToUtf16(testo)); }

Result<std::string> TestoArgomento(const CallArgs& args, size_t i, std::u16string_view se_omesso) {
  VBS_TRY_ASSIGN(auto testo, args.String(i, se_omesso));
  return text::Utf16ToUtf8(testo);
}

Result<const Estrazione*> EstrazioneArgomento(const Libreria& lib, const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto id_estr, args.Long(i));
  if (!(archivio)->Contiene(id_estr)) {
    return ArgomentoNonValido(fmt::format("Estrazione fuori dall'archivio: {} (le estrazioni vanno da 1 a {})", id_estr,
                                          (archivio)->EstrazioniArchivio()));
  }
  return &(*archivio)[id_estr];
}

Result<int> RuotaSingola(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto ruota, RuotaTabella(args, i));
  if (ruota < 1 || ruota > kNumeroRuote)
    return ArgomentoNonValido(fmt::format("Ruota non valida: {} (una sola ruota, da BA_ a NZ_)", ruota));
  return ruota;
}

// Argument i as table wheels, TU_ standing for all eleven, as does an omitted argument.
Result<std::vector<int>> RuoteElencate(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto ruote,
                 args.Has(i) ? RuoteArgomento(args, i) : Result<std::vector<int>>(std::vector<int>{kTutteLeRuote}));
  std::vector<int> elencate;
  for (int ruota : ruote) {
    if (ruota < 1 || ruota > kTutteLeRuote)
      return ArgomentoNonValido(fmt::format("Ruota non valida: {} (da 1 a 12, TU_ per tutte)", ruota));
    if (ruota != kTutteLeRuote) {
      elencate.push_back(ruota);
      continue;
    }
    for (int r = 1; r <= kNumeroRuote; ++r) elencate.push_back(r);
  }
  return elencate;
}

// Rounded half away from zero, as the format patterns round.
Result<int32_t> Intero(double valore) {
  const double arrotondato = std::round(valore);
  if (!(arrotondato >= INT32_MIN && arrotondato <= INT32_MAX)) return vbs::MakeError(vbs::err::kOverflow);
  return static_cast<int32_t>(arrotondato);
}

// At least two digits, the sign before them: 7 -> "07", -5 -> "-05", 123 -> "123".
std::string DueCifre(int32_t numero) {
  const int64_t assoluto = std::abs(int64_t{numero});
  return fmt::format("{}{:02}", numero < 0 ? "-" : "", assoluto);
}

std::string NumeriRuota(const Estrazione& estrazione, int ruota, std::string_view separatore) {
  std::vector<std::string> numeri;
  for (int posizione = 1; posizione <= kNumeriPerRuota; ++posizione)
    numeri.push_back(DueCifre(estrazione.Numero(ruota, posizione)));
  return fmt::format("{}", fmt::join(numeri, separatore));
}

// The wheels not drawn in that draw are left out, and the names are as wide as the widest written.
Result<Variant> ScriviEstrazione(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto ruote, RuoteElencate(args, 1));
  std::erase_if(ruote, [&](int ruota) { return !(estrazione)->RuotaEstratta(ruota); });
  size_t larghezza_nome = 0;
  for (int ruota : ruote) larghezza_nome = std::max(larghezza_nome, NomeRuota(ruota).size());
  std::string testo = fmt::format("Estrazione del {}\n", FormattaData((estrazione)->data));
  for (int ruota : ruote) {
    testo += fmt::format("{} {}\n", Allinea(NomeRuota(ruota), larghezza_nome, Allineamento::Sinistra),
                         NumeriRuota(*estrazione, ruota, " "));
  }
  lib.Scrivi(std::move(testo), lib.colore_testo(), false);
  return Variant();
}

// The rows of a one- or two-dimensional array. Scripts often declare from 0 and fill from 1: a
// first row or column that is wholly Empty is passed over.
class Matrice {
 public:
  explicit Matrice(const vbs::SafeArray& array)
      : m_elementi(array.elements()),
        m_righe(array.DimensionCount() == 2 ? array.bounds()[0] : vbs::ArrayBound{1, 1}),
        m_colonne(array.DimensionCount() == 2 ? array.bounds()[1] : array.bounds()[0]) {}

  std::vector<std::vector<const Variant*>> Righe() const {
    std::vector<std::vector<const Variant*>> righe;
    if (m_elementi.empty()) return righe;
    for (int64_t riga = PrimaRiga(); riga < m_righe.count(); ++riga) {
      righe.emplace_back();
      for (int64_t colonna = PrimaColonna(); colonna < m_colonne.count(); ++colonna)
        righe.back().push_back(&Elemento(riga, colonna));
    }
    return righe;
  }

 private:
  const Variant& Elemento(int64_t riga, int64_t colonna) const {
    return m_elementi[static_cast<size_t>(riga + colonna * m_righe.count())];
  }
  int64_t PrimaRiga() const {
    if (m_righe.lower != 0) return 0;
    for (int64_t colonna = 0; colonna < m_colonne.count(); ++colonna)
      if (!Elemento(0, colonna).is_empty()) return 0;
    return 1;
  }
  int64_t PrimaColonna() const {
    if (m_colonne.lower != 0) return 0;
    for (int64_t riga = 0; riga < m_righe.count(); ++riga)
      if (!Elemento(riga, 0).is_empty()) return 0;
    return 1;
  }

  std::span<const Variant> m_elementi;
  vbs::ArrayBound m_righe;
  vbs::ArrayBound m_colonne;
};

// Numbers to the right of their column, anything else to the left.
Result<Variant> ScriviMatrice(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto valore, args.Value(0));
  if (!valore.is_array() || valore.as_array()->DimensionCount() < 1 || valore.as_array()->DimensionCount() > 2)
    return ArgomentoNonValido("ScriviMatrice vuole un array a una o due dimensioni");
  const auto elementi = Matrice(*valore.as_array()).Righe();
  std::vector<std::vector<std::string>> testi;
  for (const auto& riga : elementi) {
    testi.emplace_back();
    for (const Variant* elemento : riga) {
      VBS_TRY_ASSIGN(auto testo, elemento->to_string(args.locale()));
      testi.back().push_back(text::Utf16ToUtf8(testo.view()));
    }
  }
  const std::vector<size_t> larghezze = LarghezzeColonne(testi);
  std::string testo;
  for (size_t riga = 0; riga < testi.size(); ++riga) {
    std::string linea;
    for (size_t colonna = 0; colonna < testi[riga].size(); ++colonna) {
      if (colonna > 0) linea += kSpazioColonne;
      const bool numero = elementi[riga][colonna]->is_number();
      linea +=
          Allinea(testi[riga][colonna], larghezze[colonna], numero ? Allineamento::Destra : Allineamento::Sinistra);
    }
    linea.erase(linea.find_last_not_of(' ') + 1);
    testo += linea + '\n';
  }
  lib.Scrivi(std::move(testo), lib.colore_testo(), false);
  return Variant();
}

// A wheel not drawn in that draw gives an empty text.
Result<Variant> StringaEstratti(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto estrazione, EstrazioneArgomento(lib, args, 0));
  VBS_TRY_ASSIGN(auto ruota, RuotaSingola(args, 1));
  VBS_TRY_ASSIGN(auto separatore, TestoArgomento(args, 2, u"."));
  if (!(estrazione)->RuotaEstratta(ruota)) return Stringa("");
  return Stringa(NumeriRuota(*estrazione, ruota, separatore));
}

// The values as whole numbers joined by the Separatore of argument i, each of at least two digits
// unless the DueCifre of argument i + 1 is False.
Result<Variant> NumeriUniti(std::span<const double> valori, const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto separatore, TestoArgomento(args, i, u"."));
  VBS_TRY_ASSIGN(auto due_cifre, args.Boolean(i + 1, true));
  std::vector<std::string> numeri;
  for (double valore : valori) {
    VBS_TRY_ASSIGN(auto numero, Intero(valore));
    numeri.push_back(due_cifre ? DueCifre(numero) : std::to_string(numero));
  }
  return Stringa(fmt::format("{}", fmt::join(numeri, separatore)));
}

Result<Variant> StringaNumeri(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto valori, ValoriArgomento(args, 0));
  return NumeriUniti(valori, args, 1);
}

// The cells of row Riga (argument 1) of a two-dimensional matrix, in column order; the Empty ones,
// such as the column 0 that scripts leave unused, hold no number.
Result<std::vector<double>> RigaDellaMatrice(const CallArgs& args) {
  VBS_TRY_ASSIGN(auto valore, args.Value(0));
  if (!valore.is_array() || valore.as_array()->DimensionCount() != 2)
    return ArgomentoNonValido("Serve una matrice a due dimensioni");
  const vbs::SafeArray& matrice = *valore.as_array();
  VBS_TRY_ASSIGN(auto riga, args.Long(1));
  const vbs::ArrayBound righe = matrice.bounds()[0];
  if (riga < righe.lower || riga > righe.upper)
    return ArgomentoNonValido(
        fmt::format("Riga {} fuori dai limiti della matrice ({} .. {})", riga, righe.lower, righe.upper));
  std::vector<double> numeri;
  // The first index varies fastest in storage.
  for (int64_t colonna = 0; colonna < matrice.bounds()[1].count(); ++colonna) {
    const Variant& cella = matrice.elements()[static_cast<size_t>(riga - righe.lower + colonna * righe.count())];
    if (cella.is_empty()) continue;
    VBS_TRY_ASSIGN(auto numero, cella.to_double(args.locale()));
    numeri.push_back(numero);
  }
  return numeri;
}

Result<Variant> StringaNumeriDaMatrice(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto numeri, RigaDellaMatrice(args));
  return NumeriUniti(numeri, args, 2);
}

Result<Variant> StringaRuote(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto ruote, RuoteArgomento(args, 0));
  VBS_TRY_ASSIGN(auto separatore, TestoArgomento(args, 1, u"."));
  std::vector<std::string_view> sigle;
  for (int ruota : ruote) {
    if (ruota < 1 || ruota > kTutteLeRuote)
      return ArgomentoNonValido(fmt::format("Ruota non valida: {} (da 1 a 12, TU_ per tutte)", ruota));
    sigle.push_back(SiglaRuota(ruota));
  }
  return Stringa(fmt::format("{}", fmt::join(sigle, separatore)));
}

Result<Variant> FormatSpace(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto testo, TestoArgomento(args, 0, u""));
  VBS_TRY_ASSIGN(auto lunghezza, args.Long(1));
  // A column is never wider than this; a larger value is a mistake that would take gigabytes.
  constexpr int32_t kLunghezzaMassima = 1'000'000;
  if (lunghezza < 0 || lunghezza > kLunghezzaMassima)
    return ArgomentoNonValido(fmt::format("Lunghezza non valida: {} (da 0 a {})", lunghezza, kLunghezzaMassima));
  VBS_TRY_ASSIGN(auto a_destra, args.Boolean(2, false));
  return Stringa(
      Allinea(testo, static_cast<size_t>(lunghezza), a_destra ? Allineamento::Destra : Allineamento::Sinistra));
}

Result<Variant> Format2(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto valore, args.Double(0));
  VBS_TRY_ASSIGN(auto numero, Intero(valore));
  return Stringa(DueCifre(numero));
}

// A pattern of digit places: "0" always shows a digit, "#" only a significant one; a "." starts the
// decimals, shown with the locale's separator.
struct FormatoNumero {
  size_t zeri_interi = 0;
  size_t decimali_minimi = 0;
  size_t decimali = 0;
};

Result<FormatoNumero> LeggiFormato(std::string_view formato) {
  FormatoNumero letto;
  const size_t punto = formato.find('.');
  const std::string_view interi = formato.substr(0, punto);
  const std::string_view decimali = punto == std::string_view::npos ? std::string_view() : formato.substr(punto + 1);
  const bool valido = formato.find_first_of("0#") != std::string_view::npos &&
                      interi.find_first_not_of("0#") == std::string_view::npos &&
                      decimali.find_first_not_of("0#") == std::string_view::npos;
  if (!valido)
    return ArgomentoNonValido(
        fmt::format("Formato non valido: \"{}\" (cifre 0 e #, un punto per i decimali)", formato));
  letto.zeri_interi = static_cast<size_t>(std::count(interi.begin(), interi.end(), '0'));
  letto.decimali_minimi = static_cast<size_t>(std::count(decimali.begin(), decimali.end(), '0'));
  letto.decimali = decimali.size();
  return letto;
}

// Half away from zero at the last decimal place, where printing alone would round half to even;
// beyond the precision of a double the value is printed as it is.
double ArrotondatoAiDecimali(double assoluto, size_t decimali) {
  const double scala = std::pow(10.0, static_cast<double>(decimali));
  const double scalato = assoluto * scala;
  return scalato < 1e15 ? std::round(scalato) / scala : assoluto;
}

std::string Formatta(double valore, const FormatoNumero& formato, std::string_view separatore) {
  const std::string cifre =
      fmt::format("{:.{}f}", ArrotondatoAiDecimali(std::fabs(valore), formato.decimali), formato.decimali);
  const size_t punto = cifre.find('.');
  std::string interi = cifre.substr(0, punto);
  std::string decimali = punto == std::string::npos ? std::string() : cifre.substr(punto + 1);
  const bool zero = cifre.find_first_of("123456789") == std::string::npos;
  if (interi == "0" && formato.zeri_interi == 0) interi.clear();
  if (interi.size() < formato.zeri_interi) interi.insert(0, formato.zeri_interi - interi.size(), '0');
  while (decimali.size() > formato.decimali_minimi && decimali.back() == '0') decimali.pop_back();
  const std::string segno = valore < 0 && !zero ? "-" : "";
  return decimali.empty() ? segno + interi : segno + interi + std::string(separatore) + decimali;
}

Result<Variant> FormattaStringa(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto valore, args.Double(0));
  VBS_TRY_ASSIGN(auto testo_formato, TestoArgomento(args, 1, u""));
  VBS_TRY_ASSIGN(auto formato, LeggiFormato(testo_formato));
  const std::string separatore = text::Utf16ToUtf8(std::u16string(1, args.locale().decimal_separator));
  return Stringa(Formatta(valore, formato, separatore));
}

// A name from a list numbered from 1.
template <size_t N>
Result<Variant> NomeNumerato(const CallArgs& args, const std::array<std::string_view, N>& nomi, std::string_view cosa) {
  VBS_TRY_ASSIGN(auto numero, args.Long(0));
  if (numero < 1 || static_cast<size_t>(numero) > N)
    return ArgomentoNonValido(fmt::format("{} non valido: {} (da 1 a {})", cosa, numero, N));
  return Stringa(nomi[static_cast<size_t>(numero - 1)]);
}

Result<Variant> NomeSorte(Libreria&, CallArgs& args) {
  static constexpr std::array<std::string_view, 10> kSorti{"Ambata",
                                                           "Ambo",
                                                           "Terno",
                                                           "Quaterna",
                                                           "Cinquina",
                                                           "Estratto determinato 1",
                                                           "Estratto determinato 2",
                                                           "Estratto determinato 3",
                                                           "Estratto determinato 4",
                                                           "Estratto determinato 5"};
  return NomeNumerato(args, kSorti, "Sorte");
}

Result<Variant> MeseNome(Libreria&, CallArgs& args) {
  static constexpr std::array<std::string_view, 12> kMesi{"Gennaio",   "Febbraio", "Marzo",    "Aprile",
                                                          "Maggio",    "Giugno",   "Luglio",   "Agosto",
                                                          "Settembre", "Ottobre",  "Novembre", "Dicembre"};
  return NomeNumerato(args, kMesi, "Mese");
}

Result<Variant> GetColoreHtml(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto colore, ColoreArgomento(args, 0));
  return Stringa(ColoreHtml(colore));
}

Result<Variant> GetPathFileHtml(Libreria& lib, CallArgs&) { return Stringa(lib.html().Percorso().string()); }

Result<Variant> GetTestoHtml(Libreria& lib, CallArgs&) { return Stringa(lib.html().Testo()); }

const Libreria::Funzione kTesto[] = {
    {"ScriviEstrazione", 1, 2, &ScriviEstrazione,
     "IdEstr, [aRuote = TU_]: scrive la data dell'estrazione e, una riga per ciascuna, i numeri delle ruote a due "
     "cifre; le ruote non estratte sono omesse",
     "niente (Sub): scrive l'estrazione", "ScriviEstrazione EstrazioniArchivio, Array(BA_, CA_, NZ_)"},
    {"ScriviMatrice", 1, 1, &ScriviMatrice,
     "aMatrice: scrive un array a una dimensione come una riga, uno a due dimensioni come una riga per ogni primo "
     "indice, in colonne allineate; una prima riga o colonna Empty di un array con indice da 0 è omessa",
     "niente (Sub); errore 5 se non è un array a una o due dimensioni",
     "ReDim m(2, 2) : m(1, 1) = 12 : m(1, 2) = 34 : m(2, 1) = 56 : m(2, 2) = 78 : ScriviMatrice m"},
    {"StringaEstratti", 2, 3, &StringaEstratti,
     "IdEstr, Ruota, [Separatore = \".\"]: i cinque numeri della ruota a due cifre (\"07.12.45.60.88\"), vuoto se la "
     "ruota non è stata estratta",
     "String: i numeri uniti, vuoto se la ruota non fu estratta",
     "Scrivi StringaEstratti(EstrazioniArchivio, BA_, \"-\")"},
    {"StringaNumeri", 1, 3, &StringaNumeri,
     "aNumeri, [Separatore = \".\"], [DueCifre = True]: i numeri uniti, a due cifre a meno che DueCifre sia False "
     "(\"03.45\")",
     "String: i numeri uniti", "Scrivi StringaNumeri(Array(3, 45, 90), \" \", False)"},
    {"StringaNumeriDaMatrice", 2, 4, &StringaNumeriDaMatrice,
     "aMatrice, Riga, [Separatore = \".\"], [DueCifre = True]: i numeri della riga Riga di una matrice a due "
     "dimensioni uniti come li unisce StringaNumeri, saltando le celle Empty; errore per una riga fuori dai limiti",
     "String: i numeri della riga uniti; errore 5 per una riga fuori dai limiti",
     "ReDim m(2, 3) : m(1, 1) = 5 : m(1, 2) = 17 : m(1, 3) = 88 : Scrivi StringaNumeriDaMatrice(m, 1, \"-\")"},
    {"StringaRuote", 1, 2, &StringaRuote,
     "aRuote, [Separatore = \".\"]: le sigle di due lettere delle ruote unite (\"BA.CA\"), \"TT\" per TU_",
     "String: le sigle unite", "Scrivi StringaRuote(Array(BA_, CA_, NZ_))"},
    {"FormatSpace", 2, 3, &FormatSpace,
     "Valore, Lunghezza, [AllineaADestra = False]: il testo completato con spazi fino a Lunghezza caratteri, a "
     "destra o, con AllineaADestra, a sinistra; un testo più lungo resta intero",
     "String: il testo completato con spazi", "Scrivi \"[\" & FormatSpace(7, 4, True) & \"]\""},
    {"Format2", 1, 1, &Format2, "Numero: il numero intero con almeno due cifre (\"07\", \"-05\", \"123\")",
     "String: il numero con almeno due cifre", "Scrivi Format2(7)"},
    {"FormattaStringa", 2, 2, &FormattaStringa,
     "Valore, Formato: il numero formattato secondo un modello di \"0\" (sempre una cifra) e \"#\" (una cifra se "
     "significativa), con un \".\" prima dei decimali (\"000\" -> \"007\", \"0.00\" -> \"3,50\", \"0.##\" -> "
     "\"3,5\")",
     "String: il numero formattato", "Scrivi FormattaStringa(3.5, \"0.00\")"},
    {"NomeSorte", 1, 1, &NomeSorte,
     "Sorte: \"Ambata\", \"Ambo\", \"Terno\", \"Quaterna\", \"Cinquina\" per 1..5, \"Estratto determinato 1\" .. "
     "\"5\" per 6..10",
     "String: il nome della sorte; errore 5 fuori da 1..10", "Scrivi NomeSorte(TERNO_)"},
    {"MeseNome", 1, 1, &MeseNome, "Mese: il nome del mese, \"Gennaio\" .. \"Dicembre\"",
     "String: il nome del mese; errore 5 fuori da 1..12", "Scrivi MeseNome(Mese(EstrazioniArchivio))"},
    {"GetColoreHtml", 1, 1, &GetColoreHtml, "Colore: il colore HTML \"#RRGGBB\" di un colore da Nero_ a Magenta_",
     "String: il colore \"#RRGGBB\"", "Scrivi GetColoreHtml(Rosso_)"},
    {"GetPathFileHtml", 0, 0, &GetPathFileHtml,
     "il percorso della pagina HTML dell'esecuzione, vuoto se non ne è stata aperta alcuna",
     "String: il percorso della pagina, vuoto senza pagina", "Scrivi GetPathFileHtml()"},
    {"GetTestoHtml", 0, 0, &GetTestoHtml,
     "il testo HTML della pagina dell'esecuzione scritto fin qui, vuoto se non ne è stata aperta alcuna",
     "String: il testo HTML scritto fin qui, vuoto senza pagina", "Scrivi Len(GetTestoHtml())"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniTesto() { return kTesto; }

}  // namespace lottolab::script
