// The arithmetic of the numbers 1..90 and of the wheels, over the shared routines of stats/Numeri.h.
//
// The functions of one number of the circle first bring their argument into 1..90, so that in a
// script Cadenza(95) is Cadenza(5); those whose routine reduces by itself, and those that look at
// the number as written (Gemello, the cyclometric differences, ComplAdX), receive it unchanged.

#include "ArgomentiLotto.h"
#include "Famiglia.h"
#include "stats/Numeri.h"
#include "vbscript/Utf.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

using DiUnNumero = int16_t (*)(double);
using DiDueNumeri = int16_t (*)(double, double);

template <DiUnNumero Funzione>
Result<Variant> NumeroComeDato(Libreria&, CallArgs& args) {
  auto n = args.Double(0);
  if (!n) return std::move(n).error();
  return Variant::Integer(Funzione(*n));
}

template <DiUnNumero Funzione>
Result<Variant> NumeroRidotto(Libreria&, CallArgs& args) {
  auto n = args.Double(0);
  if (!n) return std::move(n).error();
  return Variant::Integer(Funzione(stats::Fuori90(*n)));
}

template <DiDueNumeri Funzione>
Result<Variant> DueNumeri(Libreria&, CallArgs& args) {
  auto a = args.Double(0);
  if (!a) return std::move(a).error();
  auto b = args.Double(1);
  if (!b) return std::move(b).error();
  return Variant::Integer(Funzione(*a, *b));
}

// A number too large to reduce is told to the user, who would otherwise see the base come back
// with no reason.
Variant Riduci(Libreria& lib, double n, int16_t base) {
  auto ridotto = stats::RiduciInX(n, base);
  if (!ridotto) {
    lib.ospite().Mostra(AvvisoEsclamativo(stats::MessaggioNumeroTroppoGrande(n, base)));
    return Variant::Integer(base);
  }
  return Variant::Integer(*ridotto);
}

Result<Variant> FuoriX(Libreria& lib, CallArgs& args) {
  auto n = args.Double(0);
  if (!n) return std::move(n).error();
  auto base = args.Integer(1);
  if (!base) return std::move(base).error();
  return Riduci(lib, *n, *base);
}

template <int16_t Base>
Result<Variant> FuoriBase(Libreria& lib, CallArgs& args) {
  auto n = args.Double(0);
  if (!n) return std::move(n).error();
  return Riduci(lib, *n, Base);
}

Result<Variant> DiffCiclometricaX(Libreria&, CallArgs& args) {
  auto a = args.Double(0);
  if (!a) return std::move(a).error();
  auto b = args.Double(1);
  if (!b) return std::move(b).error();
  auto x = args.Integer(2);
  if (!x) return std::move(x).error();
  return Variant::Integer(stats::DiffCiclometricaX(*a, *b, *x));
}

Result<Variant> ComplAdX(Libreria&, CallArgs& args) {
  auto n = args.Double(0);
  if (!n) return std::move(n).error();
  auto x = args.Integer(1);
  if (!x) return std::move(x).error();
  return Variant::Integer(stats::ComplAdX(*n, *x));
}

// The wheel pairs are symmetric in both numberings, so the index goes through as the script gave it.
template <int16_t (*Funzione)(int16_t)>
Result<Variant> RuotaAbbinata(Libreria&, CallArgs& args) {
  auto ruota = args.Integer(0);
  if (!ruota) return std::move(ruota).error();
  return Variant::Integer(Funzione(*ruota));
}

template <std::string_view (*Funzione)(int)>
Result<Variant> TestoRuota(Libreria&, CallArgs& args) {
  auto ruota = RuotaTabella(args, 0);
  if (!ruota) return std::move(ruota).error();
  return Variant::String(vbs::Utf8ToUtf16(Funzione(*ruota)));
}

Result<Variant> Piramide(Libreria&, CallArgs& args) {
  auto numeri = ValoriArgomento(args, 0);
  if (!numeri) return std::move(numeri).error();
  return Variant::Integer(stats::Piramide(*numeri));
}

const Libreria::Funzione kAritmetica[] = {
    {"Fuori90", 1, 1, &FuoriBase<90>, "Numero: the number brought into 1..90 (91 -> 1, 0 -> 90, -1 -> 89)"},
    {"FuoriX", 2, 2, &FuoriX,
     "Numero, Base: the number brought into 1..Base; one too large to reduce is reported and gives Base"},
    {"Fuori49", 1, 1, &FuoriBase<49>, "Numero: the number brought into 1..49"},
    {"Fuori45", 1, 1, &FuoriBase<45>, "Numero: the number brought into 1..45"},
    {"Fuori42", 1, 1, &FuoriBase<42>, "Numero: the number brought into 1..42"},
    {"Distanza", 2, 2, &DueNumeri<&stats::Distanza>,
     "Numero1, Numero2: the shortest distance on the circle of 90, 1..45, and 90 for equal numbers"},
    {"Diametrale", 1, 1, &NumeroRidotto<&stats::Diametrale>, "Numero: the number opposite on the circle (n + 45)"},
    {"DiametraleD", 1, 1, &NumeroRidotto<&stats::DiametraleD>,
     "Numero: the number five places on inside its decade, 90 counted before 1 (5 <-> 90, 10 <-> 15)"},
    {"Figura", 1, 1, &NumeroRidotto<&stats::Figura>, "Numero: the digit sum repeated down to 1..9 (89 -> 8)"},
    {"Cadenza", 1, 1, &NumeroRidotto<&stats::Cadenza>, "Numero: the last digit, 0..9 (90 -> 0)"},
    {"Decina", 1, 1, &NumeroRidotto<&stats::Decina>, "Numero: the tens digit, 0..9 (1..9 -> 0, 90 -> 9)"},
    {"DecinaNaturale", 1, 1, &NumeroRidotto<&stats::DecinaNaturale>,
     "Numero: the natural decade, 0 for 1..10 up to 8 for 81..90"},
    {"DecinaCabalistica", 1, 1, &NumeroRidotto<&stats::DecinaCabalistica>,
     "Numero: the cabalistic decade, 1 for 1..9 and 90 up to 9 for 80..89"},
    {"vert", 1, 1, &NumeroRidotto<&stats::vert>,
     "Numero: the vertibile (12 -> 21, 5 -> 50, 33 -> 39, 39 -> 33)"},
    {"Gemello", 1, 1, &NumeroComeDato<&stats::Gemello>,
     "Numero: -1 when the number, taken as given, is a twin (11, 22, ..., 88), else 0"},
    {"ControFigura", 1, 1, &NumeroRidotto<&stats::ControFigura>,
     "Numero: the controfigura group 1..10, 0 for a number in none (38)"},
    {"Radicale", 1, 1, &NumeroRidotto<&stats::Radicale>,
     "Numero: the radical group 1..8 (1, 10, 11, 19 -> 1), 0 for a number in none (9, 90)"},
    {"SiglaRuota", 1, 1, &TestoRuota<&lottolab::SiglaRuota>,
     "Ruota: the wheel's two-letter code (\"BA\" .. \"VE\", \"NZ\" for NZ_, \"TT\" for TU_), two blanks for no wheel"},
    {"NomeRuota", 1, 1, &TestoRuota<&lottolab::NomeRuota>,
     "Ruota: the wheel's name (\"Bari\" .. \"Nazionale\"), empty for TU_ and for no wheel"},
    {"RuotaGemella", 1, 1, &RuotaAbbinata<&stats::RuotaGemella>,
     "Ruota: the twin wheel 11 - Ruota for BA_..VE_ (BA-VE, CA-TO, ...); any other value unchanged"},
    {"RuotaDiametrale", 1, 1, &RuotaAbbinata<&stats::RuotaDiametrale>,
     "Ruota: the diametral wheel for BA_..VE_ (BA-NA, CA-PA, ...); any other value unchanged"},
    {"DiffCiclometrica", 2, 2, &DueNumeri<&stats::DiffCiclometrica>,
     "Numero1, Numero2: Numero1 - Numero2 on the circle of 90, 1..90 ((5, 10) -> 85, (7, 7) -> 90)"},
    {"DiffCiclometricaX", 3, 3, &DiffCiclometricaX,
     "Numero1, Numero2, X: Numero1 - Numero2 on a circle of X numbers, X below 1 meaning 90"},
    {"ComplAdX", 2, 2, &ComplAdX, "Numero, X: X - Numero when positive, else X; X = 0 means 90"},
    {"pari", 1, 1, &NumeroComeDato<&stats::Pari>, "Numero: -1 when the number in 1..90 is even, else 0"},
    {"dispari", 1, 1, &NumeroComeDato<&stats::Dispari>, "Numero: -1 when the number in 1..90 is odd, else 0"},
    {"Primo", 1, 1, &NumeroComeDato<&stats::Primo>, "Numero: -1 when the number in 1..90 is a prime, else 0"},
    {"Trasposizione", 1, 1, &NumeroComeDato<&stats::Trasposizione>,
     "Numero: the two digits swapped, back in 1..90 (12 -> 21, 5 -> 50, 39 -> 3, 90 -> 9)"},
    {"Piramide", 1, 1, &Piramide,
     "aNumeri: the top of the pyramid of the numbers' digits, each row the last digits of neighbouring sums; "
     "0 for no numbers"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniAritmetica() { return kAritmetica; }

}  // namespace lottolab::script
