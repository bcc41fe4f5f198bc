#pragma once

// The real draws for the benchmarks, read through the import code a user runs.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <optional>
#include <string>

#include "archive/ImportaRisultati.h"

namespace lottolab::bench {

// The real draws, read on first use; null, with the benchmark skipped and the reason given, when absent.
inline const TabellaEstrazioni* ArchivioReale(benchmark::State& state) {
  static std::optional<TabellaEstrazioni> tabella;
  static std::string errore;
  if (!tabella && errore.empty()) {
    const std::filesystem::path risultati = std::filesystem::path(LOTTOLAB_SHARED_DIR) / "data" / "lotto.txt";
    auto lette = LeggiNuoveEstrazioniDaFile(TabellaEstrazioni(), risultati);
    if (lette)
      tabella.emplace(std::move(lette).Valore());
    else
      errore = "real draws not available at " + risultati.string() + ": nothing to measure";
  }
  if (!tabella) {
    state.SkipWithError(errore.c_str());
    return nullptr;
  }
  return &*tabella;
}

}  // namespace lottolab::bench
