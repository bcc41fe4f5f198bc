// A typical analysis script on the real archive: the delay, frequency and historical maximum of every
// number on each of the eleven wheels over the whole archive, summed, as a user writes it with nested
// loops. Once with the plain functions, which walk the draws at every call, and once with the Turbo
// forms, which answer from an index that the first call builds; the index is built inside every run,
// as a script's run would.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <optional>
#include <string>

#include "archive/ImportaRisultati.h"
#include "script/EsecuzioneScript.h"
#include "vbscript/Utf.h"

namespace lottolab::script {
namespace {

const std::filesystem::path kFileRisultati = std::filesystem::path(LOTTOLAB_SHARED_DIR) / "data" / "lotto.txt";

std::u16string Analisi(std::u16string_view suffisso) {
  const std::u16string s(suffisso);
  return u"Sub Main\n"
         u"  Dim ruote, r, n, somma\n"
         u"  ruote = Array(BA_, CA_, FI_, GE_, MI_, NA_, PA_, RO_, TO_, VE_, NZ_)\n"
         u"  For Each r In ruote\n"
         u"    For n = 1 To 90\n"
         u"      somma = somma + EstrattoRitardo" + s + u"(r, n) + EstrattoFrequenza" + s +
         u"(r, n) + EstrattoStorico" + s + u"(r, n)\n"
         u"    Next\n"
         u"  Next\n"
         u"  Scrivi somma\n"
         u"End Sub\n";
}

class OspiteMuto final : public InterfacciaScript {
 public:
  void Scrivi(const TrattoTesto& tratto) override { testo += tratto.testo; }
  void Mostra(const Avviso& avviso) override { testo += avviso.testo; }
  void Messaggio(const std::string&) override {}
  void Avanzamento(double) override {}
  std::string testo;
};

// The real draws, read on first use; null, with the benchmark skipped and the reason given, when absent.
const TabellaEstrazioni* Archivio(benchmark::State& state) {
  static std::optional<TabellaEstrazioni> tabella;
  static std::string errore;
  if (!tabella && errore.empty()) {
    auto lette = LeggiNuoveEstrazioniDaFile(TabellaEstrazioni(), kFileRisultati);
    if (lette)
      tabella.emplace(std::move(lette).Valore());
    else
      errore = "real draws not available at " + kFileRisultati.string() + ": nothing to measure";
  }
  if (!tabella) {
    state.SkipWithError(errore.c_str());
    return nullptr;
  }
  return &*tabella;
}

void EseguiAnalisi(benchmark::State& state, std::u16string_view suffisso) {
  const TabellaEstrazioni* tab = Archivio(state);
  if (!tab) return;
  const std::u16string script = Analisi(suffisso);
  OpzioniEsecuzione opzioni;
  opzioni.libreria.archivio = tab;
  opzioni.libreria.cartella_output = std::filesystem::temp_directory_path();
  opzioni.nome_file_html = "lottolab-bench-analisi.htm";
  std::string somma;
  for (auto _ : state) {
    OspiteMuto ospite;
    EsecutoreScript esecutore(ospite);
    if (esecutore.Esegui(script, opzioni).stato != EsitoEsecuzione::Stato::Completato)
      state.SkipWithError(ospite.testo.c_str());
    somma = ospite.testo;
    benchmark::DoNotOptimize(ospite.testo);
  }
  std::filesystem::remove(opzioni.libreria.cartella_output / opzioni.nome_file_html);
  state.SetLabel("somma " + somma);
  state.counters["calls"] = 11 * 90 * 3;
}

void AnalisiConLeFunzioni(benchmark::State& state) { EseguiAnalisi(state, u""); }
BENCHMARK(AnalisiConLeFunzioni)->Unit(benchmark::kMillisecond);

void AnalisiConLeFunzioniTurbo(benchmark::State& state) { EseguiAnalisi(state, u"Turbo"); }
BENCHMARK(AnalisiConLeFunzioniTurbo)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lottolab::script
