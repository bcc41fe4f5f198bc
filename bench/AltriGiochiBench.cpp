// The archives of the other games: loading every archive a run may read, and the delay table of all
// 90 numbers of the evening 10eLotto, the heaviest of their whole-table statistics.

#include <benchmark/benchmark.h>

#include <filesystem>

#include "ArchivioReale.h"
#include "archive/ArchivioGioco.h"
#include "archive/ClsEstrazioni.h"
#include "archive/DieciELotto.h"
#include "archive/DieciELottoOgniCinqueMinuti.h"
#include "archive/FileSicuri.h"
#include "archive/SuperEnalotto.h"
#include "stats/RitardiGioco.h"

namespace lottolab::bench {
namespace {

namespace fs = std::filesystem;

std::string Testo(const char* nome) {
  auto letto = LeggiFileRegolare(fs::path(LOTTOLAB_SHARED_DIR) / "data" / nome, size_t{64} << 20);
  return letto && letto->has_value() ? **letto : std::string();
}

// The archives written once, as `importa` writes them, in a folder of the benchmark's own.
struct ArchiviScritti {
  fs::path cartella = fs::temp_directory_path() / "lottolab-bench-giochi";
  bool pronti = false;

  explicit ArchiviScritti(const TabellaEstrazioni& lotto) {
    fs::create_directories(cartella);
    ClsEstrazioni lotto_file(cartella / "BaseDati.dat");
    auto se = LeggiRisultatiSuperEnalotto(Testo("superenalotto.txt"));
    auto dl = LeggiRisultatiDieciELotto(Testo("10elotto.txt"));
    auto dl5 = LeggiRisultatiCinqueMinuti(Testo("10elotto_5min.txt"));
    if (!se || !dl || !dl5 || !lotto_file.SalvaFileEstrazioni(lotto.Tutte())) return;
    auto archivio_se = ArchivioSuperEnalotto(lotto, *se);
    pronti = archivio_se && SalvaArchivioGioco(*archivio_se, cartella / "SuperEnalotto.dat") &&
             SalvaArchivioGioco(ArchivioDieciELotto(lotto, *dl).tabella, cartella / "10eLotto.dat") &&
             SalvaArchivioGioco(dl5->tabella, cartella / "10eLotto5.dat");
  }
  ~ArchiviScritti() {
    std::error_code ec;
    fs::remove_all(cartella, ec);
  }
};

void CaricaTuttiGliArchivi(benchmark::State& state) {
  const TabellaEstrazioni* lotto = ArchivioReale(state);
  if (!lotto) return;
  ArchiviScritti archivi(*lotto);
  if (!archivi.pronti) return state.SkipWithError("the archives could not be written");
  for (auto _ : state) {
    auto tabella_lotto = ClsEstrazioni(archivi.cartella / "BaseDati.dat").CaricaEstrazioni();
    auto se = CaricaArchivioGioco(Formato(Gioco::SuperEnalotto), archivi.cartella / "SuperEnalotto.dat");
    auto dl = CaricaArchivioGioco(Formato(Gioco::DieciELotto), archivi.cartella / "10eLotto.dat");
    auto dl5 = CaricaArchivioGioco(Formato(Gioco::DieciELottoOgniCinqueMinuti), archivi.cartella / "10eLotto5.dat");
    if (!tabella_lotto || !se || !dl || !dl5) return state.SkipWithError("an archive failed to load");
    benchmark::DoNotOptimize(dl5->EstrazioniArchivio());
  }
}
BENCHMARK(CaricaTuttiGliArchivi)->Unit(benchmark::kMillisecond);

void TabellaRitardiDieciELotto(benchmark::State& state) {
  const TabellaEstrazioni* lotto = ArchivioReale(state);
  if (!lotto) return;
  auto risultati = LeggiRisultatiDieciELotto(Testo("10elotto.txt"));
  if (!risultati) return state.SkipWithError("10elotto.txt not available");
  const TabellaGioco serale = ArchivioDieciELotto(*lotto, *risultati).tabella;
  for (auto _ : state) benchmark::DoNotOptimize(stats::TabelloneGioco(serale, serale.EstrazioniArchivio()));
  state.counters["estrazioni"] = serale.EstrazioniArchivio();
}
BENCHMARK(TabellaRitardiDieciELotto)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace lottolab::bench
