// The figures of the desktop's charts on the whole real archive, all wheels together: the delay
// history of a number and of an ambo draw by draw (what the window computes before it paints), and
// the frequencies of the 90 numbers with the expected one.

#include <benchmark/benchmark.h>

#include <array>
#include <span>

#include "ArchivioReale.h"
#include "stats/SerieGrafici.h"

namespace lottolab::stats {
namespace {

using bench::ArchivioReale;

void StoriaRitardo(benchmark::State& state, std::span<const int> numeri) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  const std::array ruote{kTutteLeRuote};
  for (auto _ : state)
    benchmark::DoNotOptimize(
        CalcolaStoriaRitardo(*tab, ruote, numeri, static_cast<int>(numeri.size()), 1, tab->EstrazioniArchivio()));
  state.counters["estrazioni"] = tab->EstrazioniArchivio();
}

void StoriaRitardoEstratto(benchmark::State& state) {
  static constexpr std::array kNumero{53};
  StoriaRitardo(state, kNumero);
}
BENCHMARK(StoriaRitardoEstratto)->Unit(benchmark::kMillisecond);

void StoriaRitardoAmbo(benchmark::State& state) {
  static constexpr std::array kAmbo{7, 45};
  StoriaRitardo(state, kAmbo);
}
BENCHMARK(StoriaRitardoAmbo)->Unit(benchmark::kMillisecond);

void FrequenzeTutteLeRuote(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  for (auto _ : state) benchmark::DoNotOptimize(CalcolaFrequenze(*tab, kTutteLeRuote, 1, tab->EstrazioniArchivio()));
}
BENCHMARK(FrequenzeTutteLeRuote)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lottolab::stats
