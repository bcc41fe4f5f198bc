// Combinatorics for scripts: counting, developing every combination or disposition of a group of
// numbers, the ambi of a group and the ambi a draw gives on two wheels at once, the theoretical
// probabilities of the sorti, and random numbers.
//
// A development can be walked one group at a time (Init..., then Get... in a loop), which needs no
// memory whatever its size, or produced whole as a matrix, which is refused beyond a size that
// would exhaust memory. The integral development of the run can skip a whole branch
// (ForzaIncrementoPuntatoreSvilSisInt); GetMotoreSviluppoIntegrale gives one as an object of its
// own, for scripts that walk several at once.

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <optional>
#include <random>

#include "ArgomentiLotto.h"
#include "ArgomentiRitardi.h"
#include "Famiglia.h"
#include "MotoreSviluppo.h"
#include "stats/Combinazioni.h"
#include "stats/Numeri.h"
#include "stats/SviluppoIntegrale.h"
#include "text/Utf.h"
#include "vbscript/runtime/Interpreter.h"
#include "vbscript/value/SafeArray.h"

namespace lottolab::script {

namespace {

using namespace famiglia;

// Enough for every development of the 90 numbers that a script can usefully hold (all the terni,
// 117480 of them, take 352440 elements); about 130 MB of values at the limit.
constexpr double kMassimoElementiMatrice = 1 << 23;
// How many groups a full development makes between two looks at the user's interruption.
constexpr size_t kGruppiTraControlli = 4096;
// The widest range the random functions walk or shuffle.
constexpr int32_t kMassimoIntervalloCasuale = 10'000'000;

// A count past what a Double holds is VBScript's overflow, as 171! would be, not an infinity.
// The message's title names the function.
Result<Variant> Conteggio(double conteggio) {
  if (!std::isfinite(conteggio))
    return vbs::MakeError(vbs::err::kOverflow, u"il conteggio supera il massimo di un Double");
  return ConteggioSviluppo(conteggio);
}

// The elements of an array argument as given, Empty ones (the unused element 0 of scripts' arrays)
// left out; a single value is a group of one.
Result<std::vector<Variant>> ElementiArgomento(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto valore, args.Value(i));
  if (!valore.is_array()) return std::vector<Variant>{valore};
  std::vector<Variant> elementi;
  for (const Variant& elemento : valore.as_array()->elements())
    if (!elemento.is_empty()) elementi.push_back(elemento);
  return elementi;
}

Result<int> ClasseArgomento(const CallArgs& args, size_t i, size_t quanti) {
  VBS_TRY_ASSIGN(auto classe, args.Long(i));
  if (classe < 1 || static_cast<size_t>(classe) > quanti)
    return ArgomentoNonValido(
        fmt::format("Classe {} non valida: deve essere compresa tra 1 e {}, i numeri da sviluppare", classe, quanti));
  return classe;
}

// ---- Counts ----

Result<Variant> Combinazioni(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto n, args.Long(0));
  VBS_TRY_ASSIGN(auto k, args.Long(1));
  if (n < 0 || k < 0) return ArgomentoNonValido("N e K non possono essere negativi");
  return Conteggio(stats::Combinazioni(n, k));
}

Result<Variant> Permutazioni(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto n, args.Long(0));
  VBS_TRY_ASSIGN(auto k, args.Long(1, n));
  if (n < 0 || k < 0) return ArgomentoNonValido("N e K non possono essere negativi");
  return Conteggio(stats::Disposizioni(n, k));
}

// 170! is the largest factorial a Double holds.
Result<Variant> Fattoriale(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto n, args.Long(0));
  if (n < 0 || n > 170)
    return ArgomentoNonValido(fmt::format("Fattoriale di {}: N deve essere compreso tra 0 e 170", n));
  return Variant::Double(stats::Fattoriale(n));
}

// ---- Developments ----

template <typename Motore>
struct Sviluppo {
  std::vector<Variant> elementi;
  std::optional<Motore> motore;
};

struct StatoSviluppi {
  Sviluppo<stats::SviluppoIntegrale> integrale;
  Sviluppo<stats::SviluppoDisposizioni> permutazioni;
};

template <typename Motore>
using SviluppoDi = Sviluppo<Motore> StatoSviluppi::*;

template <typename Motore>
Result<Sviluppo<Motore>> NuovoSviluppo(const CallArgs& args) {
  VBS_TRY_ASSIGN(auto elementi, ElementiArgomento(args, 0));
  VBS_TRY_ASSIGN(auto classe, ClasseArgomento(args, 1, elementi.size()));
  const int n = static_cast<int>(elementi.size());
  return Sviluppo<Motore>{std::move(elementi), Motore(n, classe)};
}

template <typename Motore>
std::vector<Variant> GruppoCorrente(const Sviluppo<Motore>& sviluppo) {
  std::vector<Variant> gruppo;
  for (int posizione : sviluppo.motore->Gruppo()) gruppo.push_back(sviluppo.elementi[posizione]);
  return gruppo;
}

template <typename Motore, SviluppoDi<Motore> Membro>
Result<Variant> InitSviluppo(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto sviluppo, NuovoSviluppo<Motore>(args));
  Sviluppo<Motore>& stato = lib.Stato<StatoSviluppi>().*Membro;
  stato = std::move(sviluppo);
  return Conteggio(stato.motore->Totale());
}

template <typename Motore, SviluppoDi<Motore> Membro>
Result<Sviluppo<Motore>*> SviluppoAvviato(Libreria& lib) {
  Sviluppo<Motore>& stato = lib.Stato<StatoSviluppi>().*Membro;
  if (!stato.motore)
    return ArgomentoNonValido("Nessuno sviluppo avviato: chiamare prima la funzione Init... dello sviluppo");
  return &stato;
}

template <typename Motore, SviluppoDi<Motore> Membro>
Result<Variant> ProssimoGruppo(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto sviluppo, SviluppoAvviato<Motore, Membro>(lib));
  if (!(sviluppo)->motore->Avanza()) return Variant::Boolean(false);
  args.Out(0) = ArrayDaUno(GruppoCorrente(*sviluppo));
  return Variant::Boolean(true);
}

using stats::SviluppoIntegrale;

Result<Variant> GetCombSviluppate(Libreria& lib, CallArgs&) {
  VBS_TRY_ASSIGN(auto sviluppo, SviluppoAvviato<SviluppoIntegrale, &StatoSviluppi::integrale>(lib));
  return Conteggio((sviluppo)->motore->Sviluppati());
}

Result<Variant> GetNumPerSviluppo(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto sviluppo, SviluppoAvviato<SviluppoIntegrale, &StatoSviluppi::integrale>(lib));
  args.Out(0) = ArrayDaUno((sviluppo)->elementi);
  return Variant::Long(static_cast<int32_t>((sviluppo)->elementi.size()));
}

Result<Variant> GetPercCombSviluppate(Libreria& lib, CallArgs&) {
  VBS_TRY_ASSIGN(auto sviluppo, SviluppoAvviato<SviluppoIntegrale, &StatoSviluppi::integrale>(lib));
  const auto& motore = *(sviluppo)->motore;
  return Variant::Double(100 * motore.Sviluppati() / motore.Totale());
}

// Livello: past every combination sharing the current one's first Livello elements.
Result<Variant> ForzaIncrementoPuntatoreSvilSisInt(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto sviluppo, SviluppoAvviato<SviluppoIntegrale, &StatoSviluppi::integrale>(lib));
  auto& motore = *(sviluppo)->motore;
  VBS_TRY_ASSIGN(auto livello, LivelloArgomento(args, 0, static_cast<int>(motore.Gruppo().size())));
  return Conteggio(motore.Salta(livello));
}

// aNumeri, Classe: a development object of its own.
Result<Variant> GetMotoreSviluppoIntegrale(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto elementi, ElementiArgomento(args, 0));
  VBS_TRY_ASSIGN(auto classe, ClasseArgomento(args, 1, elementi.size()));
  return Variant::Object(vbs::MakeRef<MotoreSviluppoIntegrale>(lib.locale(), std::move(elementi), classe));
}

// The matrix (group, element), 1-based in both dimensions; stored column-major, so element j of
// group g sits at (g - 1) + (j - 1) * groups.
template <typename Motore>
Result<Variant> SviluppoCompleto(Libreria& lib, CallArgs& args) {
  auto nuovo = NuovoSviluppo<Motore>(args);
  VBS_TRY(nuovo);
  Sviluppo<Motore>& sviluppo = *nuovo;
  Motore& motore = *sviluppo.motore;
  const size_t classe = motore.Gruppo().size();
  if (motore.Totale() * static_cast<double>(classe) > kMassimoElementiMatrice)
    return ArgomentoNonValido(fmt::format(
        "Sviluppo troppo grande: {:.0f} gruppi di classe {}; svilupparli uno alla volta con la funzione Init... "
        "e il ciclo Get...",
        motore.Totale(), classe));
  const auto gruppi = static_cast<int32_t>(motore.Totale());
  const vbs::ArrayBound limiti[] = {{1, gruppi}, {1, static_cast<int32_t>(classe)}};
  VBS_TRY_ASSIGN(auto matrice, vbs::SafeArray::Create(limiti));
  auto celle = (matrice)->elements();
  for (size_t g = 0; motore.Avanza(); ++g) {
    if (g % kGruppiTraControlli == 0) VBS_TRY(lib.ControllaInterruzione());
    auto gruppo = motore.Gruppo();
    for (size_t j = 0; j < classe; ++j) celle[g + j * gruppi] = sviluppo.elementi[gruppo[j]];
  }
  args.Out(2) = Variant::Array(std::move(matrice));
  return Variant::Long(gruppi);
}

// ---- Ambi of a group ----

using Ambo = std::pair<int, int>;

// The matrix (ambo, 1..2), 1-based, of Long numbers.
Result<Variant> MatriceDiAmbi(std::span<const Ambo> ambi) {
  const auto quanti = static_cast<int32_t>(ambi.size());
  const vbs::ArrayBound limiti[] = {{1, quanti}, {1, 2}};
  VBS_TRY_ASSIGN(auto matrice, vbs::SafeArray::Create(limiti));
  auto celle = (matrice)->elements();
  for (size_t a = 0; a < ambi.size(); ++a) {
    celle[a] = Variant::Long(ambi[a].first);
    celle[a + ambi.size()] = Variant::Long(ambi[a].second);
  }
  return Variant::Array(std::move(matrice));
}

// Every ambo of the group, its numbers in the order they were given, that satisfies the test with
// the value of argument 1; aRet receives the ambi, the count is returned.
template <bool (*Scelto)(int, int, double)>
Result<Variant> AmbiScelti(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto numeri, NumeriArgomento(args, 0));
  VBS_TRY_ASSIGN(auto valore, args.Double(1));
  std::vector<Ambo> ambi;
  for (size_t i = 0; i < numeri.size(); ++i)
    for (size_t j = i + 1; j < numeri.size(); ++j)
      if (Scelto((numeri)[i], (numeri)[j], valore)) ambi.emplace_back((numeri)[i], (numeri)[j]);
  VBS_TRY_ASSIGN(auto matrice, MatriceDiAmbi(ambi));
  args.Out(2) = std::move(matrice);
  return Variant::Long(static_cast<int32_t>(ambi.size()));
}

bool DistanzaUguale(int a, int b, double distanza) { return stats::Distanza(a, b) == distanza; }
bool SommaUguale(int a, int b, double somma) { return stats::Fuori90(a + b) == stats::Fuori90(somma); }
bool Qualsiasi(int, int, double) { return true; }

// ---- Equal ambi of a draw ----

constexpr int kNazionaleScript = 12;  // NZ_ in the script's numbering

int RuotaScript(int ruota) { return ruota == NZ ? kNazionaleScript : ruota; }

struct AmboUguale {
  int numero1;  // the smaller
  int numero2;
  int ruota_a;  // the earlier wheel, in the table's numbering
  int ruota_b;
  friend auto operator<=>(const AmboUguale&, const AmboUguale&) = default;
};

bool Uscito(const Estrazione& estrazione, int ruota, int numero) {
  for (int p = 1; p <= kNumeriPerRuota; ++p)
    if (estrazione.Numero(ruota, p) == numero) return true;
  return false;
}

// Every ambo of the draw that came out on two wheels, once for each such pair of wheels, sorted by
// numbers and then wheels; with `isotopi`, only an ambo whose two numbers hold the same positions on
// both wheels. Nazionale counts as any other wheel when it was drawn. The table's wheel order is the
// script's, so the order holds in either numbering.
std::vector<AmboUguale> AmbiUguali(const Estrazione& estrazione, bool isotopi) {
  std::vector<AmboUguale> ambi;
  for (int a = 1; a <= kNumeroRuote; ++a) {
    for (int b = a + 1; b <= kNumeroRuote; ++b) {
      if (!estrazione.RuotaEstratta(a) || !estrazione.RuotaEstratta(b)) continue;
      for (int i = 1; i <= kNumeriPerRuota; ++i) {
        for (int j = i + 1; j <= kNumeriPerRuota; ++j) {
          const int x = estrazione.Numero(a, i);
          const int y = estrazione.Numero(a, j);
          const bool uguale = isotopi ? estrazione.Numero(b, i) == x && estrazione.Numero(b, j) == y
                                      : Uscito(estrazione, b, x) && Uscito(estrazione, b, y);
          if (uguale) ambi.push_back({std::min(x, y), std::max(x, y), a, b});
        }
      }
    }
  }
  std::ranges::sort(ambi);
  return ambi;
}

// The matrix (row, 1..4) of Numero1, Numero2, RuotaA, RuotaB, 1-based, of Long values, wheels in the
// script's numbering.
Result<Variant> MatriceDiAmbiUguali(std::span<const AmboUguale> ambi) {
  const auto quanti = static_cast<int32_t>(ambi.size());
  const vbs::ArrayBound limiti[] = {{1, quanti}, {1, 4}};
  VBS_TRY_ASSIGN(auto matrice, vbs::SafeArray::Create(limiti));
  auto celle = (matrice)->elements();
  for (size_t k = 0; k < ambi.size(); ++k) {
    const AmboUguale& ambo = ambi[k];
    const int colonne[] = {ambo.numero1, ambo.numero2, RuotaScript(ambo.ruota_a), RuotaScript(ambo.ruota_b)};
    for (size_t c = 0; c < std::size(colonne); ++c) celle[k + c * ambi.size()] = Variant::Long(colonne[c]);
  }
  return Variant::Array(std::move(matrice));
}

// IdEstr, then the value of the test when there is one, then aRet; the equal ambi that satisfy the
// test go to aRet and their count is returned.
template <bool Isotopi, bool (*Scelto)(int, int, double) = &Qualsiasi>
Result<Variant> AmbiUgualiScelti(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto archivio, lib.Archivio());
  VBS_TRY_ASSIGN(auto id_estr, EstrazioneArgomento(*archivio, args, 0, 0, "IdEstr"));
  constexpr bool kConValore = Scelto != &Qualsiasi;
  VBS_TRY_ASSIGN(auto valore, kConValore ? args.Double(1) : Result<double>(0.0));
  std::vector<AmboUguale> ambi = AmbiUguali((*archivio)[id_estr], Isotopi);
  std::erase_if(ambi, [&](const AmboUguale& ambo) { return !Scelto(ambo.numero1, ambo.numero2, valore); });
  VBS_TRY_ASSIGN(auto matrice, MatriceDiAmbiUguali(ambi));
  args.Out(kConValore ? 2 : 1) = std::move(matrice);
  return Variant::Long(static_cast<int32_t>(ambi.size()));
}

// ---- Theoretical probabilities ----

Result<double> ProbabilitaArgomenti(const CallArgs& args, size_t i_sorte, size_t i_quantita) {
  VBS_TRY_ASSIGN(auto sorte, args.Long(i_sorte));
  VBS_TRY_ASSIGN(auto quantita, args.Long(i_quantita));
  if (sorte < 1 || sorte > stats::kEstrattiPerRuota)
    return ArgomentoNonValido(fmt::format("Sorte {} non valida: deve essere compresa tra 1 e 5", sorte));
  if (quantita < sorte || quantita > stats::kNumeriLotto)
    return ArgomentoNonValido(
        fmt::format("Quantità di numeri {} non valida: deve essere compresa tra la sorte ({}) e 90", quantita, sorte));
  return stats::ProbabilitaSorte(sorte, quantita);
}

Result<Variant> Prob(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto probabilita, ProbabilitaArgomenti(args, 0, 1));
  return Variant::Double(probabilita);
}

Result<Variant> CicloTeorico(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto probabilita, ProbabilitaArgomenti(args, 0, 1));
  return Variant::Double(1 / probabilita);
}

Result<int32_t> RitardoArgomento(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto ritardo, args.Long(i));
  if (ritardo < 0) return ArgomentoNonValido(fmt::format("Ritardo {} non valido: non può essere negativo", ritardo));
  return ritardo;
}

// The expected number of the 90 numbers' combinations of the class, each won with probability p
// in every draw, whose delay lies in [minimo, massimo]: a delay of exactly r means r draws without
// the sorte after one with it, probability p (1 - p)^r, so the range sums to
// (1 - p)^minimo - (1 - p)^(massimo + 1).
Result<Variant> QuantitaTeorica(const CallArgs& args, int32_t minimo, std::optional<int32_t> massimo) {
  VBS_TRY_ASSIGN(auto classe, args.Long(0));
  VBS_TRY_ASSIGN(auto probabilita, ProbabilitaArgomenti(args, 1, 0));
  const double mancata = 1 - probabilita;
  const double oltre_massimo = massimo ? std::pow(mancata, *massimo + 1.0) : 0;
  return Variant::Double(stats::Combinazioni(stats::kNumeriLotto, classe) *
                         (std::pow(mancata, minimo) - oltre_massimo));
}

Result<Variant> QuantitaTeoricaCombAlRitX(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto ritardo, RitardoArgomento(args, 2));
  return QuantitaTeorica(args, ritardo, ritardo);
}

Result<Variant> QuantitaTeoricaCombMagUgAlRitX(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto ritardo, RitardoArgomento(args, 2));
  return QuantitaTeorica(args, ritardo, std::nullopt);
}

Result<Variant> QuantitaTeoricaCombCompreseTraRit(Libreria&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto minimo, RitardoArgomento(args, 2));
  VBS_TRY_ASSIGN(auto massimo, RitardoArgomento(args, 3));
  if (massimo < minimo)
    return ArgomentoNonValido(fmt::format("Ritardo massimo {} minore del minimo {}", massimo, minimo));
  return QuantitaTeorica(args, minimo, massimo);
}

// ---- Random numbers ----

// Scripts use these for draws to play, not for experiments to repeat, so every run starts from a
// fresh seed.
struct StatoCasuale {
  std::mt19937 generatore{std::random_device{}()};
  std::optional<std::vector<int32_t>> univoci;  // the numbers still to give, in the order they come
};

Result<std::pair<int32_t, int32_t>> IntervalloArgomenti(const CallArgs& args, size_t i, int32_t minimo_mancante,
                                                        int32_t massimo_mancante) {
  VBS_TRY_ASSIGN(auto minimo, args.Long(i, minimo_mancante));
  VBS_TRY_ASSIGN(auto massimo, args.Long(i + 1, massimo_mancante));
  if (massimo < minimo) return ArgomentoNonValido(fmt::format("Massimo {} minore del minimo {}", massimo, minimo));
  return std::pair{minimo, massimo};
}

Result<Variant> NumeroCasuale(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto intervallo, IntervalloArgomenti(args, 0, 1, 90));
  std::uniform_int_distribution<int32_t> distribuzione(intervallo.first, intervallo.second);
  return Variant::Long(distribuzione(lib.Stato<StatoCasuale>().generatore));
}

// The integers from a value on, walked once: what std::views::iota gives std::sample (the same
// category and difference type, so the same draws), spelt out because clang 14 rejects libstdc++ 12's
// iota_view.
struct Interi {
  using iterator_category = std::input_iterator_tag;
  using value_type = int;
  using difference_type = std::ptrdiff_t;
  using pointer = const int*;
  using reference = int;
  int n;
  int operator*() const { return n; }
  Interi& operator++() {
    ++n;
    return *this;
  }
  Interi operator++(int) { return Interi{n++}; }
  bool operator==(const Interi&) const = default;
};

Result<Variant> GetColonnaCasuale(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto quanti, args.Long(0));
  VBS_TRY_ASSIGN(auto massimo, args.Long(2, stats::kNumeriLotto));
  if (massimo < 1 || massimo > kMassimoIntervalloCasuale)
    return ArgomentoNonValido(
        fmt::format("Massimo {} non valido: deve essere compreso tra 1 e {}", massimo, kMassimoIntervalloCasuale));
  if (quanti < 1 || quanti > massimo)
    return ArgomentoNonValido(fmt::format("Quantità {} non valida: deve essere compresa tra 1 e {}", quanti, massimo));
  std::vector<int> colonna(static_cast<size_t>(quanti));
  std::sample(Interi{1}, Interi{massimo + 1}, colonna.begin(), std::ptrdiff_t{quanti},
              lib.Stato<StatoCasuale>().generatore);
  std::ranges::sort(colonna);
  args.Out(1) = ArrayDaUno(colonna);
  return Variant();
}

Result<Variant> InitGenNumUnivoci(Libreria& lib, CallArgs& args) {
  VBS_TRY_ASSIGN(auto intervallo, IntervalloArgomenti(args, 0, 1, 90));
  const auto [minimo, massimo] = intervallo;
  if (int64_t{massimo} - minimo >= kMassimoIntervalloCasuale)
    return ArgomentoNonValido(fmt::format("Intervallo troppo ampio: al massimo {} numeri", kMassimoIntervalloCasuale));
  StatoCasuale& stato = lib.Stato<StatoCasuale>();
  // Counted in 64 bits: std::iota would step once past a Massimo of the largest Long.
  std::vector<int32_t> numeri(static_cast<size_t>(int64_t{massimo} - minimo + 1));
  for (size_t k = 0; k < numeri.size(); ++k) numeri[k] = static_cast<int32_t>(minimo + static_cast<int64_t>(k));
  std::ranges::shuffle(numeri, stato.generatore);
  stato.univoci = std::move(numeri);
  return Variant();
}

Result<Variant> GetNumeroUnivoco(Libreria& lib, CallArgs&) {
  auto& univoci = lib.Stato<StatoCasuale>().univoci;
  if (!univoci) return ArgomentoNonValido("Generatore non avviato: chiamare prima InitGenNumUnivoci");
  if (univoci->empty())
    return ArgomentoNonValido("Numeri univoci esauriti: ogni numero dell'intervallo è già stato dato");
  const int32_t numero = univoci->back();
  univoci->pop_back();
  return Variant::Long(numero);
}

using stats::SviluppoCombinazioni;
using stats::SviluppoDisposizioni;

const Libreria::Funzione kCombinazioni[] = {
    {"Combinazioni", 2, 2, &Combinazioni,
     "N, K: il numero di combinazioni di N elementi di classe K (Long, Double se più grande); 0 se K > N",
     "Long (Double se più grande): quante combinazioni, 0 se K > N", "Scrivi Combinazioni(90, 2)"},
    {"Permutazioni", 1, 2, &Permutazioni,
     "N, [K = N]: le disposizioni di N elementi di classe K, N! / (N - K)! (Long, Double se più grande)",
     "Long (Double se più grande): quante disposizioni", "Scrivi Permutazioni(10, 3)"},
    {"FattN", 1, 1, &Fattoriale, "N: N! come Double, con N da 0 a 170", "Double: N!; errore 5 fuori da 0..170",
     "Scrivi FattN(10)"},
    {"FattorialeNum", 1, 1, &Fattoriale, "N: N! come Double, con N da 0 a 170, come FattN",
     "Double: N!; errore 5 fuori da 0..170", "Scrivi FattorialeNum(5)"},
    {"InitSviluppoIntegrale", 2, 2, &InitSviluppo<SviluppoIntegrale, &StatoSviluppi::integrale>,
     "aNumeri, Classe: prepara lo sviluppo di tutte le combinazioni di classe Classe dei numeri, in ordine "
     "lessicografico delle loro posizioni; restituisce quante sono",
     "Long (Double se più grande): quante combinazioni", "Scrivi InitSviluppoIntegrale(Array(1, 2, 3, 4, 5), 3)"},
    {"GetCombSviluppo", 1, 1, &ProssimoGruppo<SviluppoIntegrale, &StatoSviluppi::integrale>,
     "aRet: mette in aRet la combinazione successiva dello sviluppo come array con indice da 1 e restituisce True; "
     "False, lasciando aRet invariato, quando tutte le combinazioni sono già state date",
     "Boolean: True e in aRet la combinazione (array da 1), False alla fine; errore 5 senza InitSviluppoIntegrale",
     "n = InitSviluppoIntegrale(Array(1, 2, 3, 4, 5), 3) : Do While GetCombSviluppo(aC) : Scrivi StringaNumeri(aC) : "
     "Loop"},
    {"GetCombSviluppate", 0, 0, &GetCombSviluppate,
     "il numero di combinazioni dello sviluppo date finora, comprese quelle saltate da "
     "ForzaIncrementoPuntatoreSvilSisInt",
     "Long (Double se più grande): le combinazioni date o saltate finora; errore 5 senza sviluppo",
     "n = InitSviluppoIntegrale(Array(1, 2, 3, 4, 5), 3) : b = GetCombSviluppo(aC) : Scrivi GetCombSviluppate()"},
    {"GetNumPerSviluppo", 1, 1, &GetNumPerSviluppo,
     "aRet: riempie aRet con i numeri dello sviluppo di InitSviluppoIntegrale, nell'ordine in cui furono dati, "
     "come array con indice da 1, e restituisce quanti sono",
     "Long: quanti numeri; in aRet i numeri (array da 1)",
     "n = InitSviluppoIntegrale(Array(1, 2, 3, 4, 5), 3) : Scrivi GetNumPerSviluppo(aN) & \" numeri, il primo \" & "
     "aN(1)"},
    {"GetPercCombSviluppate", 0, 0, &GetPercCombSviluppate,
     "la percentuale, 0..100, delle combinazioni dello sviluppo date (o saltate) finora (Double)",
     "Double: la percentuale 0..100",
     "n = InitSviluppoIntegrale(Array(1, 2, 3, 4, 5), 3) : b = GetCombSviluppo(aC) : Scrivi GetPercCombSviluppate()"},
    {"ForzaIncrementoPuntatoreSvilSisInt", 1, 1, &ForzaIncrementoPuntatoreSvilSisInt,
     "Livello: nello sviluppo di InitSviluppoIntegrale, salta tutte le combinazioni che hanno i primi Livello "
     "(1..Classe) elementi uguali a quelli della combinazione corrente, così che GetCombSviluppo dia la prima che ne "
     "differisce: per scartare in un passo un ramo di una ricerca. Restituisce quante combinazioni ha saltato (0 "
     "prima della prima combinazione, dopo l'ultima o con Livello = Classe)",
     "Long (Double se più grande): quante combinazioni ha saltato",
     "n = InitSviluppoIntegrale(Array(1, 2, 3, 4, 5), 3) : b = GetCombSviluppo(aC) : Scrivi "
     "ForzaIncrementoPuntatoreSvilSisInt(1)"},
    {"GetMotoreSviluppoIntegrale", 2, 2, &GetMotoreSviluppoIntegrale,
     "aNumeri, Classe: un oggetto con uno sviluppo integrale tutto suo delle combinazioni di classe Classe di "
     "aNumeri, nell'ordine di InitSviluppoIntegrale, per tenere più sviluppi in corso insieme; i suoi metodi "
     "GetCombSviluppo(aRet), GetCombSviluppate, GetPercCombSviluppate, GetNumPerSviluppo(aRet), "
     "ForzaIncrementoPuntatoreSvilSisInt(Livello) fanno ciò che fanno le funzioni dello stesso nome, "
     "QuantitaCombinazioni dice quante sono, Riavvia ricomincia dalla prima",
     "Object: lo sviluppo con i suoi metodi",
     "Set m = GetMotoreSviluppoIntegrale(Array(10, 20, 30, 40), 2) : Do While m.GetCombSviluppo(aC) : Scrivi "
     "StringaNumeri(aC) : Loop"},
    {"SviluppoIntegrale", 3, 3, &SviluppoCompleto<SviluppoCombinazioni>,
     "aNumeri, Classe, aRet: riempie aRet con tutte le combinazioni di classe Classe dei numeri come matrice "
     "aRet(combinazione, elemento), con indici da 1, in ordine lessicografico; restituisce quante sono; uno sviluppo "
     "di più di 8388608 elementi viene rifiutato",
     "Long: quante combinazioni; in aRet la matrice (combinazione, elemento) da 1; errore 5 oltre 8388608 elementi",
     "n = SviluppoIntegrale(Array(1, 2, 3, 4, 5), 2, aC) : Scrivi n & \" ambi, l'ultimo \" & aC(n, 1) & \"-\" & aC(n, "
     "2)"},
    {"InitSviluppoPermutazioni", 2, 2, &InitSviluppo<SviluppoDisposizioni, &StatoSviluppi::permutazioni>,
     "aNumeri, Classe: prepara lo sviluppo di tutti i gruppi ordinati (disposizioni) di Classe numeri diversi di "
     "aNumeri, in ordine lessicografico delle loro posizioni; Classe uguale alla quantità di numeri dà le "
     "permutazioni; restituisce quanti sono",
     "Long (Double se più grande): quanti gruppi ordinati", "Scrivi InitSviluppoPermutazioni(Array(1, 2, 3), 2)"},
    {"GetCombPermutazioni", 1, 1, &ProssimoGruppo<SviluppoDisposizioni, &StatoSviluppi::permutazioni>,
     "aRet: mette in aRet il gruppo successivo dello sviluppo delle permutazioni come array con indice da 1 e "
     "restituisce True; False, lasciando aRet invariato, alla fine",
     "Boolean: True e in aRet il gruppo (array da 1), False alla fine; errore 5 senza InitSviluppoPermutazioni",
     "n = InitSviluppoPermutazioni(Array(1, 2, 3), 3) : Do While GetCombPermutazioni(aC) : Scrivi StringaNumeri(aC) : "
     "Loop"},
    {"SviluppoPermutazioni", 3, 3, &SviluppoCompleto<SviluppoDisposizioni>,
     "aNumeri, Classe, aRet: riempie aRet con tutti i gruppi ordinati di Classe numeri come matrice aRet(gruppo, "
     "elemento), con indici da 1; restituisce quanti sono; uno sviluppo di più di 8388608 elementi viene rifiutato",
     "Long: quanti gruppi; in aRet la matrice (gruppo, elemento) da 1; errore 5 oltre 8388608 elementi",
     "n = SviluppoPermutazioni(Array(1, 2, 3), 2, aC) : Scrivi n & \" \" & aC(1, 1) & aC(1, 2)"},
    {"GetAmbiDistanzaX", 3, 3, &AmbiScelti<&DistanzaUguale>,
     "aNumeri, Distanza, aRet: riempie aRet con gli ambi dei numeri (riportati in 1..90) la cui distanza sul cerchio "
     "dei 90 è Distanza, come matrice aRet(ambo, 1..2), e restituisce quanti sono",
     "Long: quanti ambi; in aRet la matrice (ambo, 1..2)",
     "n = GetAmbiDistanzaX(Array(1, 10, 46, 55), 45, aA) : Scrivi n"},
    {"GetAmbiSommaX", 3, 3, &AmbiScelti<&SommaUguale>,
     "aNumeri, Somma, aRet: riempie aRet con gli ambi dei numeri (riportati in 1..90) la cui somma, riportata in "
     "1..90, è uguale a Somma riportata in 1..90, come matrice aRet(ambo, 1..2), e restituisce quanti sono",
     "Long: quanti ambi; in aRet la matrice (ambo, 1..2)",
     "n = GetAmbiSommaX(Array(1, 10, 45, 80), 90, aA) : Scrivi n"},
    {"GetAmbiUguali", 2, 2, &AmbiUgualiScelti<false>,
     "IdEstr, aRet: riempie aRet con gli ambi usciti in quell'estrazione su due ruote diverse, Nazionale compresa "
     "se estratta, come matrice aRet(riga, 1..4) = Numero1, Numero2, RuotaA, RuotaB (Numero1 < Numero2, RuotaA < "
     "RuotaB, NZ_ = 12), una riga per ogni coppia di ruote con lo stesso ambo, in ordine di numeri e poi di ruote; "
     "restituisce quante sono le righe",
     "Long: quante righe; in aRet la matrice (riga, 1..4)",
     "n = GetAmbiUguali(EstrazioniArchivio, aA) : Scrivi n & \" ambi uguali\""},
    {"GetAmbiUgualiDistanzaX", 3, 3, &AmbiUgualiScelti<false, &DistanzaUguale>,
     "IdEstr, Distanza, aRet: come GetAmbiUguali, solo gli ambi i cui numeri hanno distanza Distanza sul cerchio "
     "dei 90",
     "Long: quante righe; in aRet la matrice (riga, 1..4)",
     "Scrivi GetAmbiUgualiDistanzaX(EstrazioniArchivio, 30, aA)"},
    {"GetAmbiUgualiSommaX", 3, 3, &AmbiUgualiScelti<false, &SommaUguale>,
     "IdEstr, Somma, aRet: come GetAmbiUguali, solo gli ambi la cui somma, riportata in 1..90, è uguale a Somma "
     "riportata in 1..90",
     "Long: quante righe; in aRet la matrice (riga, 1..4)", "Scrivi GetAmbiUgualiSommaX(EstrazioniArchivio, 90, aA)"},
    {"GetAmbiUgualiIsotopi", 2, 2, &AmbiUgualiScelti<true>,
     "IdEstr, aRet: come GetAmbiUguali, solo gli ambi isotopi, usciti nelle stesse due posizioni su entrambe le "
     "ruote",
     "Long: quante righe; in aRet la matrice (riga, 1..4)", "Scrivi GetAmbiUgualiIsotopi(EstrazioniArchivio, aA)"},
    {"GetAmbiUgualiIsotopiDistanzaX", 3, 3, &AmbiUgualiScelti<true, &DistanzaUguale>,
     "IdEstr, Distanza, aRet: come GetAmbiUgualiIsotopi, solo gli ambi i cui numeri hanno distanza Distanza sul "
     "cerchio dei 90",
     "Long: quante righe; in aRet la matrice (riga, 1..4)",
     "Scrivi GetAmbiUgualiIsotopiDistanzaX(EstrazioniArchivio, 30, aA)"},
    {"GetAmbiUgualiIsotopiSommaX", 3, 3, &AmbiUgualiScelti<true, &SommaUguale>,
     "IdEstr, Somma, aRet: come GetAmbiUgualiIsotopi, solo gli ambi la cui somma, riportata in 1..90, è uguale a "
     "Somma riportata in 1..90",
     "Long: quante righe; in aRet la matrice (riga, 1..4)",
     "Scrivi GetAmbiUgualiIsotopiSommaX(EstrazioniArchivio, 90, aA)"},
    {"Prob", 2, 2, &Prob,
     "Sorte, QuantitaNumeri: la probabilità (Double) che un'estrazione su una ruota vinca la sorte (da 1 estratto a "
     "5 cinquina) giocando QuantitaNumeri numeri, cioè che almeno Sorte di essi siano estratti",
     "Double: la probabilità, da 0 a 1; errore 5 per una sorte fuori da 1..5", "Scrivi Prob(AMBO_, 10)"},
    {"CicloTeorico", 2, 2, &CicloTeorico,
     "Sorte, QuantitaNumeri: il ciclo teorico, 1 / Prob(Sorte, QuantitaNumeri): 18 per l'estratto di un numero, "
     "400.5 per l'ambo di due",
     "Double: il ciclo teorico in estrazioni", "Scrivi CicloTeorico(AMBATA_, 1)"},
    {"QuantitaTeoricaCombAlRitX", 3, 3, &QuantitaTeoricaCombAlRitX,
     "Classe, Sorte, Ritardo: quante delle combinazioni di classe Classe dei 90 numeri ci si aspetta con un ritardo "
     "di esattamente Ritardo estrazioni per la sorte su una ruota (Double)",
     "Double: quante combinazioni attese", "Scrivi QuantitaTeoricaCombAlRitX(2, AMBO_, 100)"},
    {"QuantitaTeoricaCombMagUgAlRitX", 3, 3, &QuantitaTeoricaCombMagUgAlRitX,
     "Classe, Sorte, Ritardo: quante delle combinazioni di classe Classe ci si aspetta con un ritardo di Ritardo "
     "estrazioni o più per la sorte su una ruota (Double)",
     "Double: quante combinazioni attese", "Scrivi QuantitaTeoricaCombMagUgAlRitX(1, AMBATA_, 100)"},
    {"QuantitaTeoricaCombCompreseTraRit", 4, 4, &QuantitaTeoricaCombCompreseTraRit,
     "Classe, Sorte, RitardoMin, RitardoMax: quante delle combinazioni di classe Classe ci si aspetta con un ritardo "
     "da RitardoMin a RitardoMax estrazioni per la sorte su una ruota (Double)",
     "Double: quante combinazioni attese", "Scrivi QuantitaTeoricaCombCompreseTraRit(1, AMBATA_, 0, 18)"},
    {"NumeroCasuale", 0, 2, &NumeroCasuale, "[Min = 1], [Max = 90]: un numero intero casuale da Min a Max (Long)",
     "Long: un numero casuale da Min a Max", "Scrivi NumeroCasuale(1, 90)"},
    {"GetColonnaCasuale", 2, 3, &GetColonnaCasuale,
     "Quanti, aRet, [Max = 90]: riempie aRet con Quanti numeri casuali diversi da 1 a Max, in ordine crescente, come "
     "array con indice da 1",
     "niente (Sub): in aRet i numeri (array da 1)", "GetColonnaCasuale 6, aN : Scrivi StringaNumeri(aN)"},
    {"InitGenNumUnivoci", 0, 2, &InitGenNumUnivoci,
     "[Min = 1], [Max = 90]: prepara GetNumeroUnivoco a dare i numeri da Min a Max una volta ciascuno, in ordine "
     "casuale",
     "niente (Sub)", "InitGenNumUnivoci 1, 10"},
    {"GetNumeroUnivoco", 0, 0, &GetNumeroUnivoco,
     "il successivo numero casuale dell'intervallo di InitGenNumUnivoci non ancora dato (Long); errore quando sono "
     "stati dati tutti",
     "Long: il numero; errore 5 senza InitGenNumUnivoci o a numeri esauriti",
     "InitGenNumUnivoci 1, 5 : For i = 1 To 5 : Scrivi GetNumeroUnivoco() : Next"},
};

}  // namespace

std::span<const Libreria::Funzione> FunzioniCombinazioni() { return kCombinazioni; }

}  // namespace lottolab::script
