// The tables a user opens every day, on the whole real archive: the analitico of 90 numbers on every
// wheel at an end draw chosen anywhere (the goal is under a millisecond), all 4005 ambi on every
// wheel (under 5 ms), and the most delayed terni on one wheel with one thread and with two (under
// 200 ms with two).

#include <benchmark/benchmark.h>

#include "ArchivioReale.h"
#include "stats/Analitico.h"
#include "stats/AnaliticoAmbi.h"
#include "stats/TerniRitardatari.h"

namespace lottolab::stats {
namespace {

using bench::ArchivioReale;

// Preparing the index once, as the window does when it opens.
void PreparaAnalitico(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  for (auto _ : state) benchmark::DoNotOptimize(Analitico(*tab));
}
BENCHMARK(PreparaAnalitico)->Unit(benchmark::kMillisecond);

// The 90 x 12 table at an end draw that moves through the archive at every iteration.
void AnaliticoAUnaFineQualsiasi(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  const Analitico analitico(*tab);
  const int ultima = tab->EstrazioniArchivio();
  int fine = ultima;
  for (auto _ : state) {
    benchmark::DoNotOptimize(analitico.Tabella(fine));
    fine = fine > 1000 ? fine - 997 : ultima;
  }
}
BENCHMARK(AnaliticoAUnaFineQualsiasi)->Unit(benchmark::kMicrosecond);

void AmbiSuTutteLeRuote(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  for (auto _ : state) benchmark::DoNotOptimize(CalcolaAnaliticoAmbi(*tab, 1, tab->EstrazioniArchivio()));
}
BENCHMARK(AmbiSuTutteLeRuote)->Unit(benchmark::kMillisecond);

// Argument: the threads. Real time, since the work is spread over threads.
void TerniSuUnaRuota(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  for (auto _ : state)
    benchmark::DoNotOptimize(
        CalcolaTerniRitardatari(*tab, VE, 1, tab->EstrazioniArchivio(), 100, {}, static_cast<int>(state.range(0))));
}
BENCHMARK(TerniSuUnaRuota)->Arg(1)->Arg(2)->UseRealTime()->Unit(benchmark::kMillisecond);

void TerniSuTutteLeRuote(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  for (auto _ : state)
    benchmark::DoNotOptimize(CalcolaTerniRitardatari(*tab, kTutteLeRuote, 1, tab->EstrazioniArchivio(), 100, {},
                                                     static_cast<int>(state.range(0))));
}
BENCHMARK(TerniSuTutteLeRuote)->Arg(1)->Arg(2)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lottolab::stats
