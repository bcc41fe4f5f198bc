// How long the statistics take on the whole real archive, each fast whole-table routine beside the
// same figures computed one combination at a time, so that the gain shows in one run.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <optional>
#include <random>
#include <string>
#include <system_error>

#include "archive/ClsEstrazioni.h"
#include "archive/ImportaRisultati.h"
#include "stats/Ritardi.h"
#include "stats/RitardiAmbi.h"
#include "stats/Tabellone.h"

namespace lottolab::stats {
namespace {

const std::filesystem::path kFileRisultati = std::filesystem::path(LOTTOLAB_SHARED_DIR) / "data" / "lotto.txt";

// The real draws, and the same draws written to an archive file of our own, which is removed at exit.
class DatiReali {
 public:
  DatiReali() {
    auto lette = LeggiNuoveEstrazioniDaFile(TabellaEstrazioni(), kFileRisultati);
    if (!lette) {
      m_errore = "cannot read " + kFileRisultati.string() + ": " + lette.Errore().testo;
      return;
    }
    m_tabella = TabellaEstrazioni(std::move(lette).Valore());
    std::random_device caso;
    m_archivio = std::filesystem::temp_directory_path() /
                 ("lottolab-bench-" + std::to_string(caso()) + std::to_string(caso()) + ".dat");
    ClsEstrazioni file(m_archivio);
    if (auto salvato = file.SalvaFileEstrazioni(m_tabella.Tutte()); !salvato)
      m_errore = "cannot write " + m_archivio.string() + ": " + salvato.Errore().testo;
  }
  ~DatiReali() {
    std::error_code ignorato;
    if (!m_archivio.empty()) std::filesystem::remove(m_archivio, ignorato);
  }
  DatiReali(const DatiReali&) = delete;
  DatiReali& operator=(const DatiReali&) = delete;

  const std::string& Errore() const { return m_errore; }
  const TabellaEstrazioni& Tabella() const { return m_tabella; }
  const std::filesystem::path& Archivio() const { return m_archivio; }

 private:
  TabellaEstrazioni m_tabella;
  std::filesystem::path m_archivio;
  std::string m_errore;
};

// The data, read on first use; null, with the benchmark skipped and the reason given, when absent.
const DatiReali* Dati(benchmark::State& state) {
  static std::optional<DatiReali> dati;
  static std::string assenti;
  if (!dati && assenti.empty()) {
    if (std::filesystem::exists(kFileRisultati))
      dati.emplace();
    else
      assenti = "real draws not found at " + kFileRisultati.string() + ": nothing to measure";
  }
  const std::string& errore = dati ? dati->Errore() : assenti;
  if (!errore.empty()) {
    state.SkipWithError(errore.c_str());
    return nullptr;
  }
  return &*dati;
}

void CaricaArchivio(benchmark::State& state) {
  const DatiReali* dati = Dati(state);
  if (!dati) return;
  const ClsEstrazioni file(dati->Archivio());
  for (auto _ : state) {
    auto tabella = file.CaricaEstrazioni();
    benchmark::DoNotOptimize(tabella);
  }
  state.counters["draws"] = dati->Tabella().EstrazioniArchivio();
}
BENCHMARK(CaricaArchivio)->Unit(benchmark::kMillisecond);

// The number 53 on Venezia: its current delay, which walks back only to its latest win, then its
// historical maximum, which walks the whole archive.
void RitardoDiUnNumero(benchmark::State& state) {
  const DatiReali* dati = Dati(state);
  if (!dati) return;
  for (auto _ : state) benchmark::DoNotOptimize(EstrattoRitardo(dati->Tabella(), VE, 53));
}
BENCHMARK(RitardoDiUnNumero)->Unit(benchmark::kMicrosecond);

void StoricoDiUnNumero(benchmark::State& state) {
  const DatiReali* dati = Dati(state);
  if (!dati) return;
  for (auto _ : state) benchmark::DoNotOptimize(EstrattoStorico(dati->Tabella(), VE, 53));
}
BENCHMARK(StoricoDiUnNumero)->Unit(benchmark::kMicrosecond);

// A cinquina that never came out on any wheel: the delay walk visits every draw and every wheel.
void RitardoSenzaVincitaSuTutteLeRuote(benchmark::State& state) {
  const DatiReali* dati = Dati(state);
  if (!dati) return;
  const std::array ruote{kTutteLeRuote};
  const std::array numeri{1, 2, 3, 4, 5};
  const int fine = dati->Tabella().EstrazioniArchivio();
  for (auto _ : state) benchmark::DoNotOptimize(RitardoCombinazione(dati->Tabella(), ruote, numeri, 5, fine));
}
BENCHMARK(RitardoSenzaVincitaSuTutteLeRuote)->Unit(benchmark::kMicrosecond);

void Tabellone(benchmark::State& state) {
  const DatiReali* dati = Dati(state);
  if (!dati) return;
  const TabellaEstrazioni& tab = dati->Tabella();
  for (auto _ : state) {
    TabelloneRuote tabellone = CalcolaTabellone(tab, 1, tab.EstrazioniArchivio());
    benchmark::DoNotOptimize(tabellone);
  }
}
BENCHMARK(Tabellone)->Unit(benchmark::kMillisecond);

// The same 90 x 12 figures (delay, frequency, maximum, increment) one number at a time.
void TabelloneNumeroPerNumero(benchmark::State& state) {
  const DatiReali* dati = Dati(state);
  if (!dati) return;
  const TabellaEstrazioni& tab = dati->Tabella();
  for (auto _ : state) {
    for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota) {
      for (int numero = 1; numero <= kMassimoNumero; ++numero) {
        benchmark::DoNotOptimize(EstrattoRitardo(tab, ruota, numero));
        benchmark::DoNotOptimize(EstrattoFrequenza(tab, ruota, numero));
        benchmark::DoNotOptimize(EstrattoStorico(tab, ruota, numero));
        benchmark::DoNotOptimize(EstrattoIncrStorico(tab, ruota, numero));
      }
    }
  }
}
BENCHMARK(TabelloneNumeroPerNumero)->Unit(benchmark::kMillisecond);

void RitardiDegliAmbi(benchmark::State& state) {
  const DatiReali* dati = Dati(state);
  if (!dati) return;
  const TabellaEstrazioni& tab = dati->Tabella();
  for (auto _ : state) {
    RitardiAmbi ritardi = CalcolaRitardiAmbi(tab, 1, tab.EstrazioniArchivio());
    benchmark::DoNotOptimize(ritardi);
  }
}
BENCHMARK(RitardiDegliAmbi)->Unit(benchmark::kMillisecond);

// The same 4005 x 12 delays one ambo at a time.
void RitardiDegliAmbiUnoPerUno(benchmark::State& state) {
  const DatiReali* dati = Dati(state);
  if (!dati) return;
  const TabellaEstrazioni& tab = dati->Tabella();
  for (auto _ : state) {
    for (int ruota = 1; ruota <= kTutteLeRuote; ++ruota)
      for (int a = 1; a <= kMassimoNumero; ++a)
        for (int b = a + 1; b <= kMassimoNumero; ++b) benchmark::DoNotOptimize(AmboRitardo(tab, ruota, a, b));
  }
}
BENCHMARK(RitardiDegliAmbiUnoPerUno)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lottolab::stats
