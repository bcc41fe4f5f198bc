// The outcome of a forecast checked at every draw of the real archive, as back-testing scripts do:
// the first two numbers of Bari played as an ambo on all the wheels for 18 colpi after each draw.
// Once through a user's script with VerificaEsitoTurbo, once with the walk of stats alone, whose
// difference is the cost of the script and of reading its arguments.

#include "ScriptSullArchivio.h"
#include "stats/EsitoPrevisione.h"

namespace lottolab::script {
namespace {

constexpr int kColpi = 18;

void VerificaEsitoTurboDaScript(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  const std::u16string script =
      u"Sub Main\n"
      u"  Dim id, vinte, ultima\n"
      u"  ultima = EstrazioniArchivio\n"
      u"  For id = 1 To ultima\n"
      u"    If VerificaEsitoTurbo(Array(Estratto(id, BA_, 1), Estratto(id, BA_, 2)), TT_, id, 18, 2) > 0 Then vinte = "
      u"vinte + 1\n"
      u"  Next\n"
      u"  Scrivi vinte\n"
      u"End Sub\n";
  state.SetLabel("vinte " + EseguiOgniIterazione(state, *tab, script));
  state.counters["previsioni"] = tab->EstrazioniArchivio();
  state.counters["per_previsione"] =
      benchmark::Counter(static_cast<double>(tab->EstrazioniArchivio()),
                         benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(VerificaEsitoTurboDaScript)->Unit(benchmark::kMillisecond);

void VerificaPrevisioneInCpp(benchmark::State& state) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  const int ruote[] = {BA, CA, FI, GE, MI, NA, PA, RO, TO, VE};
  int vinte = 0;
  for (auto _ : state) {
    vinte = 0;
    for (int id = 1; id <= tab->EstrazioniArchivio(); ++id) {
      const int numeri[] = {(*tab)[id].Numero(BA, 1), (*tab)[id].Numero(BA, 2)};
      vinte += stats::VerificaPrevisione(*tab, numeri, ruote, id, kColpi, 2).sorte > 0 ? 1 : 0;
    }
    benchmark::DoNotOptimize(vinte);
  }
  state.SetLabel("vinte " + std::to_string(vinte));
  state.counters["per_previsione"] =
      benchmark::Counter(static_cast<double>(tab->EstrazioniArchivio()),
                         benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(VerificaPrevisioneInCpp)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lottolab::script
