// The search of a user figure over the whole real archive: a square of four cells with two
// conditions, every placement of it on every pair of draws and every pair of neighbouring columns.

#include <benchmark/benchmark.h>

#include "ArchivioReale.h"
#include "figures/RicercaFigure.h"

namespace lottolab::figures {
namespace {

ClsVertice Vertice(int16_t index, const char* caption, int16_t riga, int16_t colonna) {
  ClsVertice vertice;
  vertice.Index = index;
  vertice.Caption = caption;
  vertice.Riga = riga;
  vertice.Colonna = colonna;
  return vertice;
}

void BM_QuadratoConDueCondizioni(benchmark::State& state) {
  const TabellaEstrazioni* tab = bench::ArchivioReale(state);
  if (!tab) return;
  const Struttura quadrato{{Vertice(1, "A", 0, 1), Vertice(2, "B", 0, 2), Vertice(3, "C", 1, 1), Vertice(4, "D", 1, 2)},
                           {{1, 1, 2}, {2, 2, 4}, {3, 4, 3}, {4, 3, 1}},
                           {"[A] = [D]", "Cadenza([B]) = Cadenza([C])"}};
  size_t trovate = 0;
  for (auto _ : state) {
    auto esito = CercaFigura(*tab, quadrato, {});
    trovate = esito ? esito->elenco.size() : 0;
    benchmark::DoNotOptimize(trovate);
  }
  state.counters["trovate"] = static_cast<double>(trovate);
  state.counters["estrazioni"] = tab->EstrazioniArchivio();
}
BENCHMARK(BM_QuadratoConDueCondizioni)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lottolab::figures
