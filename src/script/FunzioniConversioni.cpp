// What users type turned into what the library reads: numbers and wheels written as text, numbers
// written with either decimal separator, and the small sums of ratios that lists of figures need.

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "ArgomentiLotto.h"
#include "Famiglia.h"
#include "archive/Ruote.h"
#include "text/AsciiCase.h"
#include "text/Utf.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

bool Cifra(char16_t c) { return c >= u'0' && c <= u'9'; }

// Between numbers a user writes blanks, dots, commas, dashes and the like; a letter is a mistake.
bool Separatore(char16_t c) { return std::u16string_view(u" \t\r\n.,;:-/|+").find(c) != std::u16string_view::npos; }

Result<Variant> GetANumeri(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto testo, args.String(0));
  VBS_TRY_ASSIGN(auto massimo, args.Long(2, kMassimoNumero));
  if (massimo < 1)
    return ArgomentoNonValido(fmt::format("GetANumeri: il massimo deve essere almeno 1, non {}", massimo));
  std::vector<int> numeri;
  for (size_t i = 0; i < testo.size();) {
    if (Separatore(testo[i])) {
      ++i;
      continue;
    }
    if (!Cifra(testo[i]))
      return ArgomentoNonValido(fmt::format("GetANumeri: \"{}\" contiene il carattere \"{}\", che non è un numero",
                                            text::Utf16ToUtf8(testo), text::Utf16ToUtf8(testo.substr(i, 1))));
    int64_t numero = 0;
    for (; i < testo.size() && Cifra(testo[i]); ++i)
      numero = std::min<int64_t>(numero * 10 + (testo[i] - u'0'), 1 << 30);
    if (numero < 1 || numero > massimo)
      return ArgomentoNonValido(fmt::format("GetANumeri: {} non è un numero da 1 a {}", numero, massimo));
    numeri.push_back(static_cast<int>(numero));
  }
  args.Out(1) = ArrayDaUno(numeri);
  return Variant::Long(static_cast<int32_t>(numeri.size()));
}

// A wheel as users write it: its code (BA, RM), its name (Bari, Roma), a number in the script's
// numbering, or TT/TU/Tutte for the ten city wheels.
std::optional<std::vector<int>> RuoteDellaParola(const std::string& parola) {
  const std::string minuscola = text::LowerAscii(parola);
  if (minuscola == "tt" || minuscola == "tu" || minuscola == "tutte")
    return std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
  if (auto ruota = RuotaDaSigla(parola); ruota && *ruota <= kNumeroRuote)
    return std::vector<int>{*ruota == NZ ? 12 : *ruota};
  for (int r = 1; r <= kNumeroRuote; ++r)
    if (text::EqualsIgnoringAsciiCase(parola, NomeRuota(r))) return std::vector<int>{r == NZ ? 12 : r};
  if (!parola.empty() && parola.find_first_not_of("0123456789") == std::string::npos && parola.size() <= 2) {
    const int ruota = std::stoi(parola);
    if (ruota >= 1 && ruota <= 10) return std::vector<int>{ruota};
    if (ruota == 11) return RuoteDellaParola("TT");
    if (ruota == 12) return std::vector<int>{12};
  }
  return std::nullopt;
}

// The wheels of the text in the script's numbering (Nazionale 12), each once, in the order written.
Result<std::vector<int>> RuoteDelTesto(const CallArgs& args, std::string_view funzione) {
  VBS_TRY_ASSIGN(auto testo16, args.String(0));
  const std::string testo = text::Utf16ToUtf8(testo16);
  std::vector<int> ruote;
  size_t i = 0;
  while (i < testo.size()) {
    const size_t inizio = testo.find_first_not_of(" \t\r\n.,;-/|+", i);
    if (inizio == std::string::npos) break;
    size_t fine = testo.find_first_of(" \t\r\n.,;-/|+", inizio);
    if (fine == std::string::npos) fine = testo.size();
    const std::string parola = testo.substr(inizio, fine - inizio);
    auto trovate = RuoteDellaParola(parola);
    if (!trovate)
      return ArgomentoNonValido(
          fmt::format("{}: \"{}\" non è una ruota (BA, CA, FI, GE, MI, NA, PA, RO, TO, VE, NZ, "
                      "TT o il nome della ruota)",
                      funzione, parola));
    for (int ruota : *trovate)
      if (std::find(ruote.begin(), ruote.end(), ruota) == ruote.end()) ruote.push_back(ruota);
    i = fine;
  }
  return ruote;
}

Result<Variant> RuoteSel(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto ruote, RuoteDelTesto(args, "RuoteSel"));
  args.Out(1) = ArrayDaUno(ruote);
  return Variant::Long(static_cast<int32_t>(ruote.size()));
}

Result<Variant> RuoteSelB(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto ruote, RuoteDelTesto(args, "RuoteSelB"));
  std::vector<Variant> scelte(12, Variant::Boolean(false));
  for (int ruota : ruote) scelte[static_cast<size_t>(ruota - 1)] = Variant::Boolean(true);
  bool tutte = true;
  for (size_t r = 0; r < 10; ++r) tutte = tutte && scelte[r].as_boolean();
  scelte[10] = Variant::Boolean(tutte);
  args.Out(1) = ArrayDaUno(std::move(scelte));
  return Variant::Long(static_cast<int32_t>(ruote.size()));
}

// "3,5", "3.5", "1.234,5" and "1,234.5" all read as the number they mean, whatever the locale: with
// both separators the last one is the decimal one; one separator written more than once groups
// thousands.
std::optional<double> NumeroScritto(std::string testo) {
  while (!testo.empty() && std::isspace(static_cast<unsigned char>(testo.back()))) testo.pop_back();
  size_t inizio = testo.find_first_not_of(" \t");
  if (inizio == std::string::npos) return std::nullopt;
  testo.erase(0, inizio);
  const size_t ultima_virgola = testo.rfind(',');
  const size_t ultimo_punto = testo.rfind('.');
  char decimale = 0;
  if (ultima_virgola != std::string::npos && ultimo_punto != std::string::npos)
    decimale = ultima_virgola > ultimo_punto ? ',' : '.';
  else if (ultima_virgola != std::string::npos)
    decimale = testo.find(',') == ultima_virgola ? ',' : 0;
  else if (ultimo_punto != std::string::npos)
    decimale = testo.find('.') == ultimo_punto ? '.' : 0;
  std::string normale;
  for (size_t i = 0; i < testo.size(); ++i) {
    const char c = testo[i];
    if (c == decimale)
      normale += '.';
    else if (c == ',' || c == '.')
      continue;
    else if (std::isdigit(static_cast<unsigned char>(c)) || ((c == '-' || c == '+') && i == 0))
      normale += c;
    else
      return std::nullopt;
  }
  if (normale.find_first_of("0123456789") == std::string::npos) return std::nullopt;
  try {
    size_t letti = 0;
    const double valore = std::stod(normale, &letti);
    if (letti != normale.size() || !std::isfinite(valore)) return std::nullopt;
    return valore;
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

Result<Variant> ConvDec(Libreria&, CallArgs& args) {
  const Variant& valore = args[0];
  if (valore.is_empty()) return Variant::Double(0);
  if (!valore.is_string()) {
    VBS_TRY_ASSIGN(auto numero, args.Double(0));
    return Variant::Double(numero);
  }
  VBS_TRY_ASSIGN(auto testo, args.String(0));
  const auto numero = NumeroScritto(text::Utf16ToUtf8(testo));
  if (!numero) return ArgomentoNonValido(fmt::format("ConvDec: \"{}\" non è un numero", text::Utf16ToUtf8(testo)));
  return Variant::Double(*numero);
}

// The value rounded half away from zero to the decimals asked, when asked; an infinite result is
// an overflow, as VBScript's own arithmetic reports it.
Result<Variant> Arrotondato(const CallArgs& args, size_t i, double valore, std::string_view funzione) {
  if (!std::isfinite(valore))
    return vbs::MakeError(vbs::err::kOverflow,
                          text::Utf8ToUtf16(fmt::format("{}: il risultato è fuori dai limiti di un Double", funzione)));
  if (!args.Has(i)) return Variant::Double(valore);
  VBS_TRY_ASSIGN(auto decimali, args.Long(i));
  if (decimali < 0 || decimali > 15)
    return ArgomentoNonValido(fmt::format("{}: i decimali vanno da 0 a 15, non {}", funzione, decimali));
  const double scala = std::pow(10.0, decimali);
  const double arrotondato = std::round(valore * scala) / scala;
  return Variant::Double(std::isfinite(arrotondato) ? arrotondato : valore);
}

Result<Variant> Dividi(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto dividendo, args.Double(0));
  VBS_TRY_ASSIGN(auto divisore, args.Double(1));
  if (divisore == 0) return Variant::Double(0);
  return Arrotondato(args, 2, dividendo / divisore, "Dividi");
}

Result<Variant> Moltiplica(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto a, args.Double(0));
  VBS_TRY_ASSIGN(auto b, args.Double(1));
  return Arrotondato(args, 2, a * b, "Moltiplica");
}

// A : B = C : X.
Result<Variant> ProporzioneX(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto a, args.Double(0));
  VBS_TRY_ASSIGN(auto b, args.Double(1));
  VBS_TRY_ASSIGN(auto c, args.Double(2));
  if (a == 0) return ArgomentoNonValido("ProporzioneX: in A : B = C : X il primo termine A non può essere 0");
  return Arrotondato(args, 3, b * c / a, "ProporzioneX");
}

const Libreria::Funzione kConversioni[] = {
    {"GetANumeri", 2, 3, &GetANumeri,
     "Testo, aRet, [Massimo = 90]: riempie aRet(1..) con i numeri scritti nel testo (separati da spazi, punti, "
     "virgole, trattini, punti e virgola o barre), nell'ordine in cui sono scritti; una lettera o un numero fuori da "
     "1..Massimo è un errore che lo nomina",
     "Long: quanti numeri; in aRet i numeri (array da 1)",
     "n = GetANumeri(\"5.12.33\", aN) : Scrivi n & \": \" & aN(3)"},
    {"RuoteSel", 2, 2, &RuoteSel,
     "Testo, aRet: riempie aRet(1..) con le ruote scritte nel testo, per sigla (BA, RM), per nome (Bari) o per "
     "numero, TT, TU o Tutte per le dieci ruote cittadine; ogni ruota una volta, nell'ordine in cui è scritta, NZ_ "
     "come 12",
     "Long: quante ruote; in aRet le ruote (array da 1)",
     "n = RuoteSel(\"BA.NA.Roma\", aR) : Scrivi SiglaRuota(aR(3))"},
    {"RuoteSelB", 2, 2, &RuoteSelB,
     "Testo, aRet: come RuoteSel, ma aRet(1..12) dice per ogni ruota se è scritta (True) o no; aRet(11) è True "
     "quando lo sono tutte le dieci ruote cittadine",
     "Long: quante ruote; in aRet un Boolean per ruota (array da 1 a 12)",
     "n = RuoteSelB(\"BA VE\", aB) : Scrivi aB(1) & \" \" & aB(2)"},
    {"ConvDec", 1, 1, &ConvDec,
     "Valore: il numero scritto nel testo con la virgola o con il punto decimale, qualunque sia la lingua del "
     "sistema (\"3,5\", \"3.5\", \"1.234,5\"); un numero resta com'è, Empty vale 0; un testo che non è un numero è "
     "un errore che lo nomina",
     "Double: il numero", "Scrivi ConvDec(\"12.5\") + ConvDec(\"0,5\")"},
    {"Dividi", 2, 3, &Dividi,
     "Dividendo, Divisore, [Decimali]: il quoziente, arrotondato a Decimali (0..15) se dati; 0 quando il divisore "
     "è 0, come serve nelle medie e nelle percentuali di un elenco che può essere vuoto",
     "Double: il quoziente (0 con divisore 0)", "Scrivi Dividi(EstrazioniArchivio, 18, 2)"},
    {"Moltiplica", 2, 3, &Moltiplica, "A, B, [Decimali]: il prodotto, arrotondato a Decimali (0..15) se dati",
     "Double: il prodotto", "Scrivi Moltiplica(11.23, 3, 2)"},
    {"ProporzioneX", 3, 4, &ProporzioneX,
     "A, B, C, [Decimali]: il termine X della proporzione A : B = C : X, cioè B * C / A, arrotondato a Decimali "
     "se dati; A = 0 è un errore",
     "Double: X", "Scrivi ProporzioneX(18, 1, 90, 1)"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniConversioni() { return kConversioni; }

}  // namespace lottolab::script
