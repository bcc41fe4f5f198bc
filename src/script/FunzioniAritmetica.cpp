// The arithmetic of the numbers 1..90 and of the wheels, over the shared routines of stats/Numeri.h.
//
// The functions of one number of the circle first bring their argument into 1..90, so that in a
// script Cadenza(95) is Cadenza(5); those whose routine reduces by itself, and those that look at
// the number as written (Gemello, the cyclometric differences, ComplAdX), receive it unchanged.

#include "ArgomentiLotto.h"
#include "Famiglia.h"
#include "stats/Numeri.h"
#include "text/Utf.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

using DiUnNumero = int16_t (*)(double);
using DiDueNumeri = int16_t (*)(double, double);

template <DiUnNumero Funzione>
Result<Variant> NumeroComeDato(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto n, args.Double(0));
  return Variant::Integer(Funzione(n));
}

// A number too large to bring into 1..90 is refused, not folded onto 90.
template <DiUnNumero Funzione>
Result<Variant> NumeroRidotto(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto n, args.Double(0));
  VBS_TRY_ASSIGN(auto ridotto, NumeroRiportato(n, kMassimoNumero));
  return Variant::Integer(Funzione(ridotto));
}

template <DiDueNumeri Funzione>
Result<Variant> DueNumeri(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto a, args.Double(0));
  VBS_TRY_ASSIGN(auto b, args.Double(1));
  return Variant::Integer(Funzione(a, b));
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
  VBS_TRY_ASSIGN(auto n, args.Double(0));
  VBS_TRY_ASSIGN(auto base, args.Integer(1));
  return Riduci(lib, n, base);
}

template <int16_t Base>
Result<Variant> FuoriBase(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto n, args.Double(0));
  return Riduci(lib, n, Base);
}

Result<Variant> DiffCiclometricaX(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto a, args.Double(0));
  VBS_TRY_ASSIGN(auto b, args.Double(1));
  VBS_TRY_ASSIGN(auto x, args.Integer(2));
  return Variant::Integer(stats::DiffCiclometricaX(a, b, x));
}

Result<Variant> ComplAdX(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto n, args.Double(0));
  VBS_TRY_ASSIGN(auto x, args.Integer(1));
  return Variant::Integer(stats::ComplAdX(n, x));
}

// The wheel pairs are symmetric in both numberings, so the index goes through as the script gave it.
template <int16_t (*Funzione)(int16_t)>
Result<Variant> RuotaAbbinata(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto ruota, args.Integer(0));
  return Variant::Integer(Funzione(ruota));
}

template <std::string_view (*Funzione)(int)>
Result<Variant> TestoRuota(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto ruota, RuotaTabella(args, 0));
  return Variant::String(text::Utf8ToUtf16(Funzione(ruota)));
}

Result<Variant> Piramide(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto numeri, ValoriArgomento(args, 0));
  return Variant::Integer(stats::Piramide(numeri));
}

const Libreria::Funzione kAritmetica[] = {
    {"Fuori90", 1, 1, &FuoriBase<90>, "Numero: il numero riportato in 1..90 (91 -> 1, 0 -> 90, -1 -> 89)",
     "Integer: il numero in 1..90", "Scrivi Fuori90(37 + 80)"},
    {"FuoriX", 2, 2, &FuoriX,
     "Numero, Base: il numero riportato in 1..Base; un numero troppo grande per essere ridotto viene segnalato e dà "
     "Base",
     "Integer: il numero in 1..Base (Base se troppo grande, con avviso)", "Scrivi FuoriX(50, 49)"},
    {"Fuori49", 1, 1, &FuoriBase<49>, "Numero: il numero riportato in 1..49", "Integer: il numero in 1..49",
     "Scrivi Fuori49(60)"},
    {"Fuori45", 1, 1, &FuoriBase<45>, "Numero: il numero riportato in 1..45", "Integer: il numero in 1..45",
     "Scrivi Fuori45(60)"},
    {"Fuori42", 1, 1, &FuoriBase<42>, "Numero: il numero riportato in 1..42", "Integer: il numero in 1..42",
     "Scrivi Fuori42(60)"},
    {"Distanza", 2, 2, &DueNumeri<&stats::Distanza>,
     "Numero1, Numero2: la distanza minima sul cerchio dei 90, 1..45, e 90 per numeri uguali",
     "Integer: la distanza 1..45, 90 per numeri uguali", "Scrivi Distanza(5, 88)"},
    {"Diametrale", 1, 1, &NumeroRidotto<&stats::Diametrale>, "Numero: il numero opposto sul cerchio (n + 45)",
     "Integer: il diametrale in 1..90", "Scrivi Diametrale(50)"},
    {"DiametraleD", 1, 1, &NumeroRidotto<&stats::DiametraleD>,
     "Numero: il numero cinque posti più avanti nella sua decina, con il 90 contato prima dell'1 (5 <-> 90, 10 <-> "
     "15)",
     "Integer: il diametrale nella decina", "Scrivi DiametraleD(12)"},
    {"Figura", 1, 1, &NumeroRidotto<&stats::Figura>,
     "Numero: la somma delle cifre ripetuta fino a ottenere 1..9 (89 -> 8)", "Integer: la figura 1..9",
     "Scrivi Figura(89)"},
    {"Cadenza", 1, 1, &NumeroRidotto<&stats::Cadenza>, "Numero: l'ultima cifra, 0..9 (90 -> 0)",
     "Integer: la cadenza 0..9", "Scrivi Cadenza(47)"},
    {"Decina", 1, 1, &NumeroRidotto<&stats::Decina>, "Numero: la cifra delle decine, 0..9 (1..9 -> 0, 90 -> 9)",
     "Integer: la cifra delle decine 0..9", "Scrivi Decina(47)"},
    {"DecinaNaturale", 1, 1, &NumeroRidotto<&stats::DecinaNaturale>,
     "Numero: la decina naturale, da 0 per 1..10 fino a 8 per 81..90", "Integer: la decina naturale 0..8",
     "Scrivi DecinaNaturale(40)"},
    {"DecinaCabalistica", 1, 1, &NumeroRidotto<&stats::DecinaCabalistica>,
     "Numero: la decina cabalistica, da 1 per 1..9 e 90 fino a 9 per 80..89", "Integer: la decina cabalistica 1..9",
     "Scrivi DecinaCabalistica(90)"},
    {"vert", 1, 1, &NumeroRidotto<&stats::vert>, "Numero: il vertibile (12 -> 21, 5 -> 50, 33 -> 39, 39 -> 33)",
     "Integer: il vertibile", "Scrivi vert(12)"},
    {"Gemello", 1, 1, &NumeroComeDato<&stats::Gemello>,
     "Numero: -1 se il numero, preso così com'è, è un gemello (11, 22, ..., 88), altrimenti 0",
     "Integer: -1 per un gemello, altrimenti 0", "Scrivi Gemello(44)"},
    {"ControFigura", 1, 1, &NumeroRidotto<&stats::ControFigura>,
     "Numero: il gruppo di controfigura 1..10, 0 per un numero che non appartiene a nessuno (38)",
     "Integer: il gruppo 1..10, 0 se nessuno", "Scrivi ControFigura(25)"},
    {"Radicale", 1, 1, &NumeroRidotto<&stats::Radicale>,
     "Numero: il gruppo radicale 1..8 (1, 10, 11, 19 -> 1), 0 per un numero che non appartiene a nessuno (9, 90)",
     "Integer: il gruppo 1..8, 0 se nessuno", "Scrivi Radicale(19)"},
    {"SiglaRuota", 1, 1, &TestoRuota<&lottolab::SiglaRuota>,
     "Ruota: la sigla di due lettere della ruota (\"BA\" .. \"VE\", \"NZ\" per NZ_, \"TT\" per TU_), due spazi se "
     "non è una ruota",
     "String: la sigla di due lettere", "Scrivi SiglaRuota(NA_)"},
    {"NomeRuota", 1, 1, &TestoRuota<&lottolab::NomeRuota>,
     "Ruota: il nome della ruota (\"Bari\" .. \"Nazionale\"), vuoto per TU_ e se non è una ruota",
     "String: il nome della ruota, vuoto se non è una ruota", "Scrivi NomeRuota(NZ_)"},
    {"RuotaGemella", 1, 1, &RuotaAbbinata<&stats::RuotaGemella>,
     "Ruota: la ruota gemella 11 - Ruota per BA_..VE_ (BA-VE, CA-TO, ...); ogni altro valore resta invariato",
     "Integer: la ruota gemella", "Scrivi NomeRuota(RuotaGemella(BA_))"},
    {"RuotaDiametrale", 1, 1, &RuotaAbbinata<&stats::RuotaDiametrale>,
     "Ruota: la ruota diametrale per BA_..VE_ (BA-NA, CA-PA, ...); ogni altro valore resta invariato",
     "Integer: la ruota diametrale", "Scrivi NomeRuota(RuotaDiametrale(BA_))"},
    {"DiffCiclometrica", 2, 2, &DueNumeri<&stats::DiffCiclometrica>,
     "Numero1, Numero2: Numero1 - Numero2 sul cerchio dei 90, 1..90 ((5, 10) -> 85, (7, 7) -> 90)",
     "Integer: la differenza in 1..90", "Scrivi DiffCiclometrica(5, 10)"},
    {"DiffCiclometricaX", 3, 3, &DiffCiclometricaX,
     "Numero1, Numero2, X: Numero1 - Numero2 su un cerchio di X numeri; X minore di 1 vale 90",
     "Integer: la differenza in 1..X", "Scrivi DiffCiclometricaX(3, 40, 49)"},
    {"ComplAdX", 2, 2, &ComplAdX, "Numero, X: X - Numero se positivo, altrimenti X; X = 0 vale 90",
     "Integer: il complemento a X", "Scrivi ComplAdX(30, 90)"},
    {"pari", 1, 1, &NumeroComeDato<&stats::Pari>, "Numero: -1 se il numero in 1..90 è pari, altrimenti 0",
     "Integer: -1 se pari, altrimenti 0", "Scrivi pari(12)"},
    {"dispari", 1, 1, &NumeroComeDato<&stats::Dispari>, "Numero: -1 se il numero in 1..90 è dispari, altrimenti 0",
     "Integer: -1 se dispari, altrimenti 0", "Scrivi dispari(12)"},
    {"Primo", 1, 1, &NumeroComeDato<&stats::Primo>, "Numero: -1 se il numero in 1..90 è primo, altrimenti 0",
     "Integer: -1 se primo, altrimenti 0", "Scrivi Primo(89)"},
    {"Trasposizione", 1, 1, &NumeroComeDato<&stats::Trasposizione>,
     "Numero: le due cifre scambiate, riportato in 1..90 (12 -> 21, 5 -> 50, 39 -> 3, 90 -> 9)",
     "Integer: il numero con le cifre scambiate, in 1..90", "Scrivi Trasposizione(39)"},
    {"Piramide", 1, 1, &Piramide,
     "aNumeri: il vertice della piramide delle cifre dei numeri, in cui ogni riga è formata dalle ultime cifre delle "
     "somme di cifre vicine; 0 se non ci sono numeri",
     "Integer: la cifra 0..9 al vertice, 0 senza numeri", "Scrivi Piramide(Array(12, 34, 56, 78, 90))"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniAritmetica() { return kAritmetica; }

}  // namespace lottolab::script
