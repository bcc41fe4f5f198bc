// A script's chart of 3 series x 1,000 points painted and written as PNG, as a headless run writes
// it for Grafico; and painted only, by kind, to see where the time goes.

#include <benchmark/benchmark.h>

#include <cmath>
#include <filesystem>

#include "disegno/GraficoImmagine.h"
#include "disegno/TelaImmagine.h"

namespace {

using namespace lottolab;

// Three delays-like series, a saw-tooth each, at the default size of 800 x 500.
script::DisegnoGrafico TreSerie(script::TipoGrafico tipo, size_t punti) {
  script::DisegnoGrafico grafico;
  grafico.titolo = "Ritardi di tre numeri";
  grafico.titolo_x = "Estrazione";
  grafico.titolo_y = "Ritardo";
  grafico.tipo = tipo;
  for (int k = 1; k <= 3; ++k) {
    script::SerieGrafico serie;
    serie.nome = "Numero " + std::to_string(k * 17);
    for (size_t i = 0; i < punti; ++i) serie.y.push_back(static_cast<double>((i * (k + 2)) % (40 + 30 * k)));
    grafico.serie.push_back(std::move(serie));
  }
  return grafico;
}

void GraficoInPng(benchmark::State& state) {
  disegno::AssicuraApplicazioneGrafica();
  const auto grafico = TreSerie(script::TipoGrafico::Linee, static_cast<size_t>(state.range(0)));
  const auto file = std::filesystem::temp_directory_path() / "lottolab_bench_grafico.png";
  for (auto _ : state) {
    disegno::ConteggioGrafico conteggio;
    const QImage immagine = disegno::ImmagineGrafico(grafico, &conteggio);
    if (!disegno::SalvaPng(immagine, file)) state.SkipWithError("PNG non scritto");
    benchmark::DoNotOptimize(conteggio);
  }
  std::filesystem::remove(file);
}
BENCHMARK(GraficoInPng)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

void GraficoSoloDipinto(benchmark::State& state) {
  disegno::AssicuraApplicazioneGrafica();
  const auto tipo = static_cast<script::TipoGrafico>(state.range(0));
  // A bar chart takes at most kBarreMassime values a series.
  const auto grafico = TreSerie(tipo, tipo == script::TipoGrafico::Barre ? script::kBarreMassime : 1000);
  for (auto _ : state) benchmark::DoNotOptimize(disegno::ImmagineGrafico(grafico));
}
BENCHMARK(GraficoSoloDipinto)->DenseRange(1, 3)->Unit(benchmark::kMillisecond);

}  // namespace
