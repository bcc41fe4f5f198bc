// The figures of the circle of 90 on the real draws: every figure of every kind among the 55
// numbers of the last draw (all eleven wheels), with the parallelepipeds of every pair of wheels,
// then the same for every draw of the archive.

#include <benchmark/benchmark.h>

#include <vector>

#include "ArchivioReale.h"
#include "stats/Ciclometria.h"

namespace lottolab::stats {
namespace {

constexpr int kTutte[] = {BA, CA, FI, GE, MI, NA, PA, RO, TO, VE, NZ};

// Every figure of the draw, the parallelepipeds included; `figure` is reused across draws.
void TutteLeFigure(const Estrazione& estrazione, std::vector<FiguraCiclometrica>& figure) {
  figure.clear();
  TrovaFigure(InsiemeDaEstrazione(estrazione, kTutte), kFigureDiUnInsieme, figure);
  InsiemeCiclometrico facce[kNumeroRuote];
  for (int r = 0; r < kNumeroRuote; ++r)
    facce[r] = InsiemeDaEstrazione(estrazione, std::span<const int>(&kTutte[r], 1));
  for (int i = 0; i < kNumeroRuote; ++i)
    for (int j = i + 1; j < kNumeroRuote; ++j) TrovaParallelepipedi(facce[i], facce[j], figure);
}

void BM_FigureDiUnEstrazione(benchmark::State& state) {
  const TabellaEstrazioni* tab = bench::ArchivioReale(state);
  if (!tab) return;
  const Estrazione& ultima = (*tab)[tab->EstrazioniArchivio()];
  std::vector<FiguraCiclometrica> figure;
  for (auto _ : state) {
    TutteLeFigure(ultima, figure);
    benchmark::DoNotOptimize(figure.data());
  }
  state.counters["figure"] = static_cast<double>(figure.size());
}
BENCHMARK(BM_FigureDiUnEstrazione)->Unit(benchmark::kMicrosecond);

void BM_FigureDiOgniEstrazione(benchmark::State& state) {
  const TabellaEstrazioni* tab = bench::ArchivioReale(state);
  if (!tab) return;
  std::vector<FiguraCiclometrica> figure;
  double totale = 0;
  for (auto _ : state) {
    totale = 0;
    for (int id = 1; id <= tab->EstrazioniArchivio(); ++id) {
      TutteLeFigure((*tab)[id], figure);
      totale += static_cast<double>(figure.size());
    }
    benchmark::DoNotOptimize(totale);
  }
  state.counters["figure"] = totale;
  state.counters["estrazioni"] = tab->EstrazioniArchivio();
}
BENCHMARK(BM_FigureDiOgniEstrazione)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lottolab::stats
