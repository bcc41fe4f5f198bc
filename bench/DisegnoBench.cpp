// The circle of the 90 numbers with the figures of a draw, painted and written as PNG, as a headless
// run writes it for QvCerchio_InitDisegno (goal: under 50 ms).

#include <benchmark/benchmark.h>

#include <filesystem>

#include "disegno/TelaImmagine.h"

namespace {

using namespace lottolab;

// 55 numbers marked and 60 figures of every kind: more than the figures of one real draw.
script::DisegnoCerchio DisegnoPieno() {
  script::DisegnoCerchio disegno;
  for (int n = 1; n <= 55; ++n) disegno.marcati.push_back((n * 37) % 90 + 1);
  for (int k = 0; k < 15; ++k) {
    disegno.figure.push_back({{k + 1, k + 46}, {}, {}, {}});
    disegno.figure.push_back({{k + 1, k + 31, k + 61}, {}, {}, {}});
    disegno.figure.push_back({{k + 1, k + 24, k + 46, k + 69}, 0xFF0000, 3.0, {}});
    disegno.figure.push_back({{k + 2, k + 20, k + 47, k + 65}, 0x008000, 1.0, {}});
  }
  disegno.evidenziata = 7;
  return disegno;
}

void CerchioInPng(benchmark::State& state) {
  disegno::AssicuraApplicazioneGrafica();
  const script::DisegnoCerchio disegno = DisegnoPieno();
  const auto file = std::filesystem::temp_directory_path() / "lottolab_bench_cerchio.png";
  const int lato = static_cast<int>(state.range(0));
  for (auto _ : state) {
    disegno::ConteggioCerchio conteggio;
    const QImage immagine = disegno::ImmagineCerchio(disegno, lato, &conteggio);
    if (!disegno::SalvaPng(immagine, file)) state.SkipWithError("PNG non scritto");
    benchmark::DoNotOptimize(conteggio);
  }
  std::filesystem::remove(file);
}
BENCHMARK(CerchioInPng)->Arg(600)->Arg(1000)->Unit(benchmark::kMillisecond);

// Painted only, with the kinds of ImpostazioniCerchio::flag given: where the time goes.
void CerchioSoloDipinto(benchmark::State& state) {
  disegno::AssicuraApplicazioneGrafica();
  script::DisegnoCerchio disegno = DisegnoPieno();
  disegno.impostazioni.flag = static_cast<uint32_t>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(disegno::ImmagineCerchio(disegno, 600));
}
BENCHMARK(CerchioSoloDipinto)
    ->Arg(script::kFlagTutti)
    ->Arg(script::kFlagNumeri)
    ->Arg(script::kFlagMarcati)
    ->Arg(script::kFlagTutti & ~(script::kFlagNumeri | script::kFlagMarcati))
    ->Unit(benchmark::kMillisecond);

}  // namespace
