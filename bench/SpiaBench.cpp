// The numeri spia over the whole real archive: a number on one wheel, its followers looked for on
// all the wheels in the next 10 draws, as the desktop window computes it; then every number 1..90
// as spia on every wheel in turn, which is what a user scanning for the best spia asks.

#include <benchmark/benchmark.h>

#include "ArchivioReale.h"
#include "stats/NumeriSpia.h"

namespace lottolab::bench {
namespace {

stats::DomandaSpia Domanda(const TabellaEstrazioni& tab, int numero, int ruota) {
  stats::DomandaSpia domanda;
  domanda.spia = {numero, 0};
  domanda.ruota_spia = ruota;
  domanda.ruota_esito = kTutteLeRuote;
  domanda.colpi = 10;
  domanda.inizio = 1;
  domanda.fine = tab.EstrazioniArchivio();
  return domanda;
}

void SpiaSuTutteLeRuote(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  int casi = 0;
  for (auto _ : state) {
    auto esito = stats::CalcolaNumeriSpia(*tab, Domanda(*tab, 17, BA));
    casi = esito->casi;
    benchmark::DoNotOptimize(esito);
  }
  state.counters["casi"] = casi;
  state.counters["estrazioni"] = tab->EstrazioniArchivio();
}
BENCHMARK(SpiaSuTutteLeRuote)->Unit(benchmark::kMillisecond);

void OgniSpiaSuOgniRuota(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  for (auto _ : state)
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota)
      for (int numero = 1; numero <= 90; ++numero)
        benchmark::DoNotOptimize(stats::CalcolaNumeriSpia(*tab, Domanda(*tab, numero, ruota)));
  state.counters["spie"] = 90 * kNumeroRuote;
}
BENCHMARK(OgniSpiaSuOgniRuota)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lottolab::bench
