#include "Numeri.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <fmt/format.h>
#include <limits>
#include <string_view>
#include <vector>

#include "text/AsciiCase.h"

namespace lottolab::stats {

namespace {

constexpr double kMinimo16 = std::numeric_limits<int16_t>::min();
constexpr double kMassimo16 = std::numeric_limits<int16_t>::max();

// The groups are looked up as text, " n " inside a row, and the row index is the answer. The rows
// are kept exactly as users have always had them: the doubled 37 of row 5 decides that 37 is in
// group 4 and 38 in none, and every entry keeps a blank on each side for the lookup to find it.
constexpr std::array<std::string_view, 10> kRigheControFigura = {
    "  1  12  23  34  45  56  67  78  89 ", "  2  13  24  35  46  57  68  79  90 ",
    "  3  14  25  36  47  58  69  80  11 ", "  4  15  26  37  48  59  70  81  22 ",
    "  5  16  27  37  49  60  71  82  33 ", "  6  17  28  39  50  61  72  83  44 ",
    "  7  18  29  40  51  62  73  84  55 ", "  8  19  30  41  52  63  74  85  66 ",
    "  9  20  31  42  53  64  75  86  77 ", " 10  21  32  43  54  65  76  87  88 ",
};

constexpr std::array<std::string_view, 8> kRigheRadicale = {
    "  1  10 11 19 ", "  2  20 22 29 ", "  3 30 33 39 ",  "  4 40 44 49 ",
    "  5 50 55 59 ",  "  6  60 66 69 ", "  7  70 77 79 ", "  8  80 88 89 ",
};

// A double as a 16-bit result: rounded half to even, held at the limits, NaN as 0.
int16_t Intero16(double v) {
  if (std::isnan(v)) return 0;
  return static_cast<int16_t>(std::clamp(std::nearbyint(v), kMinimo16, kMassimo16));
}

// n written as the script writes a number: 15 significant digits at most, no trailing zeros, an
// upper-case exponent from 1E+15 up or below 1E-4.
std::string TestoDecimale(double n) {
  // A negative zero is written "0", like any zero.
  if (n == 0) n = 0.0;
  std::array<char, 32> buffer{};
  const auto esito = std::to_chars(buffer.data(), buffer.data() + buffer.size(), n, std::chars_format::general, 15);
  return text::UpperAscii(std::string_view(buffer.data(), esito.ptr));
}

// The numeric value of one character of a number's text: a sign, a point or an exponent count 0.
int ValoreCifra(char c) { return c >= '0' && c <= '9' ? c - '0' : 0; }

template <size_t N>
int16_t RigaContenente(const std::array<std::string_view, N>& righe, double n) {
  const std::string chiave = fmt::format(" {} ", TestoDecimale(n));
  for (size_t i = 0; i < N; ++i) {
    if (righe[i].find(chiave) != std::string_view::npos) return static_cast<int16_t>(i + 1);
  }
  return 0;
}

int16_t Verita(bool condizione) { return condizione ? kVero : kFalso; }

}  // namespace

std::optional<int16_t> RiduciInX(double n, int16_t base) {
  const double intero = std::nearbyint(n);
  if (!(intero >= kMinimo16 && intero <= kMassimo16)) return std::nullopt;
  // The division by a zero base fails before anything is computed, and that failure is silent.
  if (base == 0) return 0;
  int r = static_cast<int>(intero) % base;
  if (n <= 0) r += base;
  if (r == 0) r = base;
  if (r < kMinimo16 || r > kMassimo16) return std::nullopt;
  return static_cast<int16_t>(r);
}

int16_t FuoriX(double n, int16_t base) { return RiduciInX(n, base).value_or(base); }

int16_t Fuori90(double n) { return FuoriX(n, 90); }

int16_t Fuori49(double n) { return FuoriX(n, 49); }

int16_t Fuori45(double n) { return FuoriX(n, 45); }

int16_t Fuori42(double n) { return FuoriX(n, 42); }

std::string MessaggioNumeroTroppoGrande(double n, int16_t base) {
  return fmt::format("Numero {} troppo grande la funzione tornera {}", TestoDecimale(n), base);
}

int16_t Diametrale(double n) { return Fuori90(n + 45); }

int16_t DiametraleD(double n) {
  if (!(n >= 1 && n <= 90) || n != std::floor(n)) return 0;
  const int numero = static_cast<int>(n);
  // The decade's members in order are decina*10 + 0..9, where 90 stands in for the missing 0.
  const int decina = numero == 90 ? 0 : numero / 10;
  const int posizione = numero % 10 + 1;
  const int membro = decina * 10 + FuoriX(posizione + 5, 10) - 1;
  return static_cast<int16_t>(membro == 0 ? 90 : membro);
}

int16_t Cadenza(double n) { return static_cast<int16_t>(ValoreCifra(TestoDecimale(n).back())); }

int16_t Figura(double n) {
  double valore = n;
  while (valore > 9) {
    int somma = 0;
    for (char c : TestoDecimale(valore)) somma += ValoreCifra(c);
    valore = somma;
  }
  return Intero16(valore);
}

int16_t Decina(double n) {
  if (n <= 0) return 0;
  if (n == 90) return 9;
  const std::string testo = TestoDecimale(n);
  return static_cast<int16_t>(testo.size() == 2 ? ValoreCifra(testo[0]) : 0);
}

int16_t DecinaNaturale(double n) {
  for (int d = 0; d <= 8; ++d) {
    if (n >= d * 10 + 1 && n <= d * 10 + 10) return static_cast<int16_t>(d);
  }
  return 0;
}

int16_t DecinaCabalistica(double n) {
  if ((n >= 1 && n <= 9) || n == 90) return 1;
  for (int d = 1; d <= 8; ++d) {
    if (n >= d * 10 && n <= d * 10 + 9) return static_cast<int16_t>(d + 1);
  }
  return 0;
}

int16_t ControFigura(double n) { return RigaContenente(kRigheControFigura, n); }

int16_t Radicale(double n) { return RigaContenente(kRigheRadicale, n); }

int16_t vert(double n) {
  if (n <= 0) return -1;
  const std::string testo = TestoDecimale(n);
  const int prima = ValoreCifra(testo.front());
  if (testo.size() == 1) return static_cast<int16_t>(prima * 10);
  if (testo.front() == testo.back()) return static_cast<int16_t>(prima * 10 + 9);
  if (testo.back() == '9') return static_cast<int16_t>(prima * 11);
  return static_cast<int16_t>(ValoreCifra(testo.back()) * 10 + prima);
}

int16_t RuotaDiametrale(int16_t r) {
  if (r < 1 || r > 10) return r;
  return static_cast<int16_t>(r <= 5 ? r + 5 : r - 5);
}

int16_t RuotaGemella(int16_t r) {
  if (r < 1 || r > 10) return r;
  return static_cast<int16_t>(11 - r);
}

int16_t ComplAdX(double n, int16_t x) {
  if (x == 0) x = 90;
  const double resto = x - std::nearbyint(n);
  return resto <= 0 ? x : Intero16(resto);
}

int16_t Gemello(double n) {
  const std::string testo = TestoDecimale(n);
  return Verita(testo.size() > 1 && ValoreCifra(testo.front()) == ValoreCifra(testo.back()));
}

int16_t DiffCiclometrica(double a, double b) { return DiffCiclometricaX(a, b, 90); }

int16_t DiffCiclometricaX(double a, double b, int16_t x) {
  if (x < 1) x = 90;
  double d = std::nearbyint(a) - std::nearbyint(b);
  // Adding x until the difference turns positive lands on the remainder plus x; fmod is exact.
  if (d <= 0) d = std::fmod(d, x) + x;
  return Intero16(d);
}

int16_t Distanza(double a, double b) { return DistanzaX(Fuori90(a), Fuori90(b), 90); }

int16_t DistanzaX(double a, double b, int16_t x) {
  if (x < 1) x = 90;
  double d = std::fabs(std::nearbyint(a) - std::nearbyint(b));
  if (d == 0) d = x;
  if (d > x / 2.0) d = x - d;
  if (d == 0) return x;
  return Intero16(d);
}

int16_t Pari(double n) { return Verita(Fuori90(n) % 2 == 0); }

int16_t Dispari(double n) { return Verita(Fuori90(n) % 2 != 0); }

int16_t Primo(double n) {
  const int k = Fuori90(n);
  bool primo = k >= 2;
  for (int divisore = 2; primo && divisore * divisore <= k; ++divisore) primo = k % divisore != 0;
  return Verita(primo);
}

int16_t Trasposizione(double n) {
  const int k = Fuori90(n);
  return Fuori90((k % 10) * 10 + k / 10);
}

int16_t Piramide(std::span<const double> numeri) {
  if (numeri.empty()) return 0;
  std::vector<int> cifre;
  cifre.reserve(numeri.size() * 2);
  for (double n : numeri) {
    const int k = Fuori90(n);
    cifre.push_back(k / 10);
    cifre.push_back(k % 10);
  }
  while (cifre.size() > 2) {
    for (size_t i = 0; i + 1 < cifre.size(); ++i) cifre[i] = (cifre[i] + cifre[i + 1]) % 10;
    cifre.pop_back();
  }
  return Fuori90(cifre[0] * 10 + cifre[1]);
}

}  // namespace lottolab::stats
