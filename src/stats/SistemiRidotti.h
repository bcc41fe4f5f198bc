#pragma once

// Reduced systems with a guarantee: columns of k numbers chosen among N so that, whichever m of the
// N come out, some column holds at least t of them. With m = t these are the covering designs
// C(N,k,t); with m > t the lotto designs L(N,k,m,t).
//
// The numbers are positions 1..N: the caller maps them to the numbers the player chose. A system is
// built by a search (a greedy start, then simulated annealing that takes columns away while the
// guarantee holds; an exhaustive search settles the smallest cases), and whatever the search
// returns is checked afterwards by VerificaGaranzia, which walks every m-group on its own. A system
// that failed the check would be a fault of the search: it is reported, never returned.

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "archive/Esito.h"

namespace lottolab::stats {

// The largest N, k and m accepted; beyond them the columns or the check would not fit in memory
// or in a user's patience.
inline constexpr int kMassimoNumeriSistema = 90;
inline constexpr int kMassimaClasseSistema = 12;
inline constexpr int kMassimaCondizioneSistema = 10;
// The m-groups of the N that the check walks one by one; beyond this the system is refused.
inline constexpr double kMassimiGruppiVerificati = 4'000'000;

using ColonnaSistema = std::vector<int>;

struct ParametriSistema {
  int numeri = 0;      // N
  int classe = 0;      // k, the numbers in each column
  int garanzia = 0;    // t, the sorte guaranteed
  int condizione = 0;  // m, how many of the N must come out for the guarantee to hold
  std::uint64_t seme = 1;
};

struct AvanzamentoSistema {
  int colonne = 0;            // the columns of the system being improved
  int migliore = 0;           // the fewest columns of a system found so far that keeps the guarantee
  std::int64_t scoperti = 0;  // the m-groups the current columns leave without the guarantee
};

// How long the search may go on and how a caller stops it or watches it. The callbacks are called
// on the thread that builds the system, every few thousand steps.
struct ControlloSistema {
  // True when the caller wants the search to stop; the build then fails with an Italian message.
  std::function<bool()> interrompi;
  std::function<void(const AvanzamentoSistema&)> avanzamento;
  // True when the caller has waited enough: the search stops improving and returns its best, as
  // when the time limit is reached.
  std::function<bool()> basta;
  // After this the search stops improving and returns the smallest system found so far, which
  // always keeps the guarantee. Without a time limit reached, equal seeds give equal systems.
  std::chrono::milliseconds tempo_massimo{20'000};
  // How hard the search tries at each size before giving up: the number of annealing steps is this
  // factor times the columns, times k (N - k).
  int sforzo = 40;
};

struct SistemaRidotto {
  ParametriSistema parametri;
  std::vector<ColonnaSistema> colonne;  // each sorted, numbers 1..N; in lexicographic order
  bool minimo_dimostrato = false;       // no system with fewer columns exists
  bool tempo_scaduto = false;           // the time limit stopped the search
};

// A system for the given parameters, or an Italian message: parameters out of range, a check too
// large to perform, the caller's stop, or (a fault) a system that failed its own check.
Esito<SistemaRidotto> CostruisciSistemaRidotto(const ParametriSistema& parametri,
                                               const ControlloSistema& controllo = {});

// The first m-group of 1..N, in lexicographic order, in which no column holds t numbers; nothing
// when the columns keep the guarantee. Preconditions (asserted): 1 <= t <= m <= N <= 90, C(N,m) at
// most kMassimiGruppiVerificati, and every column made of different numbers in 1..N.
std::optional<std::vector<int>> VerificaGaranzia(std::span<const ColonnaSistema> colonne, int numeri, int condizione,
                                                 int garanzia);

// The Schönheim lower bound on the columns of a covering design C(v,k,t): ceil(v/k ceil((v-1)/(k-1)
// ... ceil((v-t+1)/(k-t+1))...)). 1 <= t <= k <= v.
std::int64_t LimiteSchoenheim(int v, int k, int t);

}  // namespace lottolab::stats
