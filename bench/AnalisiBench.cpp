// A typical analysis script on the real archive: the delay, frequency and historical maximum of every
// number on each of the eleven wheels over the whole archive, summed, as a user writes it with nested
// loops. Once with the plain functions, which walk the draws at every call, and once with the Turbo
// forms, which answer from an index that the first call builds; the index is built inside every run,
// as a script's run would.

#include <string>

#include "ScriptSullArchivio.h"

namespace lottolab::script {
namespace {

std::u16string Analisi(std::u16string_view suffisso) {
  const std::u16string s(suffisso);
  return u"Sub Main\n"
         u"  Dim ruote, r, n, somma\n"
         u"  ruote = Array(BA_, CA_, FI_, GE_, MI_, NA_, PA_, RO_, TO_, VE_, NZ_)\n"
         u"  For Each r In ruote\n"
         u"    For n = 1 To 90\n"
         u"      somma = somma + EstrattoRitardo" +
         s + u"(r, n) + EstrattoFrequenza" + s + u"(r, n) + EstrattoStorico" + s +
         u"(r, n)\n"
         u"    Next\n"
         u"  Next\n"
         u"  Scrivi somma\n"
         u"End Sub\n";
}

void EseguiAnalisi(benchmark::State& state, std::u16string_view suffisso) {
  const TabellaEstrazioni* tab = ArchivioReale(state);
  if (!tab) return;
  state.SetLabel("somma " + EseguiOgniIterazione(state, *tab, Analisi(suffisso)));
  state.counters["calls"] = 11 * 90 * 3;
}

void AnalisiConLeFunzioni(benchmark::State& state) { EseguiAnalisi(state, u""); }
BENCHMARK(AnalisiConLeFunzioni)->Unit(benchmark::kMillisecond);

void AnalisiConLeFunzioniTurbo(benchmark::State& state) { EseguiAnalisi(state, u"Turbo"); }
BENCHMARK(AnalisiConLeFunzioniTurbo)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lottolab::script
