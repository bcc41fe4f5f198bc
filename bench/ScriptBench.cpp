// A user's script against the real archive: every number of every wheel of every draw read with
// Estratto and summed (wheels 1 to 12 in the script's numbering, where 11, all wheels, reads 0),
// beside the same loops without the call and the same loop written in C++. The first difference is
// the price of one library call; the ratio to C++ is the price of the script language as a whole.

#include <cstdint>
#include <string>
#include <string_view>

#include "ScriptSullArchivio.h"

namespace lottolab::script {
namespace {

std::u16string SommaDi(std::u16string_view addendo) {
  return u"Sub Main\n"
         u"  Dim id, r, p, somma, ultima\n"
         u"  ultima = EstrazioniArchivio()\n"
         u"  For id = 1 To ultima\n"
         u"    For r = 1 To 12\n"
         u"      For p = 1 To 5\n"
         u"        somma = somma + " +
         std::u16string(addendo) +
         u"\n"
         u"      Next\n"
         u"    Next\n"
         u"  Next\n"
         u"  Scrivi somma\n"
         u"End Sub\n";
}

void SommaConLoScript(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  EseguiOgniIterazione(state, *tab, SommaDi(u"Estratto(id, r, p)"));
  state.counters["calls"] = tab->EstrazioniArchivio() * 60.0;
}
BENCHMARK(SommaConLoScript)->Unit(benchmark::kMillisecond);

void SoloICicliDelloScript(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  EseguiOgniIterazione(state, *tab, SommaDi(u"p"));
  state.counters["calls"] = 0;
}
BENCHMARK(SoloICicliDelloScript)->Unit(benchmark::kMillisecond);

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
