// A user's script against the real archive: every number of every wheel of every draw read with
// Estratto and summed (wheels 1 to 12 in the script's numbering, where 11, all wheels, reads 0), beside the same loop written in C++. The ratio is the price of the script
// language and of the library's call path.

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

void SommaConLoScript(benchmark::State& state) {
  const TabellaEstrazioni* tab = Archivio(state);
  if (!tab) return;
  OpzioniEsecuzione opzioni;
  opzioni.libreria.archivio = tab;
  opzioni.libreria.cartella_output = std::filesystem::temp_directory_path();
  opzioni.nome_file_html = "lottolab-bench-script.htm";
  for (auto _ : state) {
    OspiteMuto ospite;
    EsecutoreScript esecutore(ospite);
    if (esecutore.Esegui(kSomma, opzioni).stato != EsitoEsecuzione::Stato::Completato)
      state.SkipWithError(ospite.testo.c_str());
    benchmark::DoNotOptimize(ospite.testo);
  }
  std::filesystem::remove(opzioni.libreria.cartella_output / opzioni.nome_file_html);
  state.counters["calls"] = tab->EstrazioniArchivio() * 60.0;
}
BENCHMARK(SommaConLoScript)->Unit(benchmark::kMillisecond);

void SommaInCpp(benchmark::State& state) {
  const TabellaEstrazioni* tab = Archivio(state);
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
