// A user's script against the real archive: every number of every wheel of every draw read with
// Estratto and summed (wheels 1 to 12 in the script's numbering, where 11, all wheels, reads 0),
// beside the same loop written in C++. The ratio is the price of the script language and of the
// library's call path.

#include <cstdint>

#include "ScriptSullArchivio.h"

namespace lottolab::script {
namespace {

constexpr char16_t kSomma[] =
    u"Sub Main\n"
    u"  Dim id, r, p, somma, ultima\n"
    u"  ultima = EstrazioniArchivio()\n"
    u"  For id = 1 To ultima\n"
    u"    For r = 1 To 12\n"
    u"      For p = 1 To 5\n"
    u"        somma = somma + Estratto(id, r, p)\n"
    u"      Next\n"
    u"    Next\n"
    u"  Next\n"
    u"  Scrivi somma\n"
    u"End Sub\n";

void SommaConLoScript(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  EseguiOgniIterazione(state, *tab, kSomma);
  state.counters["calls"] = tab->EstrazioniArchivio() * 60.0;
}
BENCHMARK(SommaConLoScript)->Unit(benchmark::kMillisecond);

void SommaInCpp(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  for (auto _ : state) {
    int64_t somma = 0;
    for (int id = 1; id <= tab->EstrazioniArchivio(); ++id)
      for (int r = 1; r <= 11; ++r)
        for (int p = 1; p <= 5; ++p) somma += (*tab)[id].Numero(r, p);
    benchmark::DoNotOptimize(somma);
  }
}
BENCHMARK(SommaInCpp)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lottolab::script
