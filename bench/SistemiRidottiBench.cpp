// How long a reduced system takes to build and how many columns it has, for every covering design
// C(v,k,t) with v up to 20, t = 2, 3 and k from t + 1 to 6, and for a few lotto designs: the
// "colonne" counter is our size, beside the Schönheim lower bound. The table in src/stats/README.md
// is copied from a run of this program.

#include <benchmark/benchmark.h>

#include <chrono>
#include <ctime>

#include "stats/SistemiRidotti.h"

namespace lottolab::stats {
namespace {

// The time a user may wait for a system of this size; the search returns its best by then. It is
// processor time, so that a busy machine gives the same sizes as an idle one.
constexpr double kSecondiMassimi = 1.9;

double SecondiDelThread() {
  timespec ora{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ora);
  return static_cast<double>(ora.tv_sec) + static_cast<double>(ora.tv_nsec) * 1e-9;
}

// Builds the system once per iteration under the processor-time limit, and reports its size.
void Misura(benchmark::State& stato, const ParametriSistema& parametri) {
  std::size_t colonne = 0;
  ControlloSistema controllo;
  controllo.tempo_massimo = std::chrono::minutes(1);
  for (auto _ : stato) {
    const double inizio = SecondiDelThread();
    controllo.basta = [inizio] { return SecondiDelThread() - inizio > kSecondiMassimi; };
    auto sistema = CostruisciSistemaRidotto(parametri, controllo);
    if (!sistema) {
      stato.SkipWithError(sistema.Errore().testo.c_str());
      return;
    }
    colonne = sistema->colonne.size();
    stato.counters["minimo_dimostrato"] = sistema->minimo_dimostrato;
    stato.counters["tempo_scaduto"] = sistema->tempo_scaduto;
  }
  stato.counters["colonne"] = static_cast<double>(colonne);
}

void Copertura(benchmark::State& stato) {
  const int v = static_cast<int>(stato.range(0));
  const int k = static_cast<int>(stato.range(1));
  const int t = static_cast<int>(stato.range(2));
  Misura(stato, {v, k, t, t, 1});
  stato.counters["schoenheim"] = static_cast<double>(LimiteSchoenheim(v, k, t));
}

void Casi(benchmark::internal::Benchmark* b) {
  for (int t = 2; t <= 3; ++t)
    for (int k = t + 1; k <= 6; ++k)
      for (int v = k + 1; v <= 20; ++v) b->Args({v, k, t});
}
BENCHMARK(Copertura)->Apply(Casi)->Iterations(1)->Unit(benchmark::kMillisecond);

// Lotto designs that players ask for: ten numbers, columns of five, a terno if four come out, and
// the like.
void Lotto(benchmark::State& stato) {
  Misura(stato, {static_cast<int>(stato.range(0)), static_cast<int>(stato.range(1)), static_cast<int>(stato.range(2)),
                 static_cast<int>(stato.range(3)), 1});
}
BENCHMARK(Lotto)
    ->Args({10, 5, 2, 3})
    ->Args({12, 6, 3, 4})
    ->Args({15, 5, 2, 5})
    ->Args({20, 6, 3, 6})
    ->Args({30, 5, 2, 4})
    ->Args({90, 5, 2, 3})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lottolab::stats
