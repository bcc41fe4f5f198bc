// The analyses of the draws on the whole real archive and all eleven wheels, each the work behind
// one press of "Calcola": the copy of the table into the analyses' shape, the search of the draws
// holding two numbers anywhere, the frequencies year by year, the sums with their distribution, and
// the cadences, figures and decades. Each should stay well under the 300 ms after which the window
// shows its progress dialog.

#include <benchmark/benchmark.h>

#include "ArchivioReale.h"
#include "stats/ClassiNumeri.h"
#include "stats/FrequenzePeriodo.h"
#include "stats/RicercaEstrazioni.h"
#include "stats/Somme.h"

namespace lottolab::stats {
namespace {

using bench::ArchivioReale;

void CopiaPerAnalisi(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  for (auto _ : state) benchmark::DoNotOptimize(PerAnalisi(*tab));
}
BENCHMARK(CopiaPerAnalisi)->Unit(benchmark::kMillisecond);

void RicercaDiDueNumeriOvunque(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  const EstrazioniPerAnalisi estrazioni = PerAnalisi(*tab);
  const FiltroEstrazioni filtro{1, 0, {}, {7, 45}, 0, DoveNumeri::Ovunque};
  for (auto _ : state) benchmark::DoNotOptimize(CercaEstrazioni(estrazioni, filtro));
}
BENCHMARK(RicercaDiDueNumeriOvunque)->Unit(benchmark::kMillisecond);

void FrequenzeAnnoPerAnno(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  const EstrazioniPerAnalisi estrazioni = PerAnalisi(*tab);
  for (auto _ : state) benchmark::DoNotOptimize(CalcolaFrequenzePeriodi(estrazioni, {{}, TipoPeriodo::Anno, 0, 0}));
}
BENCHMARK(FrequenzeAnnoPerAnno)->Unit(benchmark::kMillisecond);

void SommeEDistribuzione(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  const EstrazioniPerAnalisi estrazioni = PerAnalisi(*tab);
  for (auto _ : state) benchmark::DoNotOptimize(CalcolaSomme(estrazioni, {{}, 0, 1, 0}));
}
BENCHMARK(SommeEDistribuzione)->Unit(benchmark::kMillisecond);

void CadenzeFigureEDecine(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  const EstrazioniPerAnalisi estrazioni = PerAnalisi(*tab);
  for (auto _ : state) benchmark::DoNotOptimize(CalcolaClassi(estrazioni, {}));
}
BENCHMARK(CadenzeFigureEDecine)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lottolab::stats
