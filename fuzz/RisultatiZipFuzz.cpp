// The bytes as a downloaded results file, zip or text, read from disk as `importa` reads it: the
// zip's directory, its entries and their sizes are all the attacker's.

#include <cstddef>
#include <cstdint>

#include "TestoFuzz.h"
#include "archive/ImportaRisultati.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  auto file = lottolab::fuzz::ScriviFileTemporaneo("risultati.zip", lottolab::fuzz::ComeTesto(data, size));
  (void)lottolab::LeggiNuoveEstrazioniDaFile(lottolab::TabellaEstrazioni{}, file);
  return 0;
}
