// The bytes as the operator's results text, read against an empty archive; whatever it yields is
// then taken as the archive and the same text read again, which must find nothing new: an import
// repeated must never add or refuse a draw.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "TestoFuzz.h"
#include "archive/ImportaRisultati.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view testo = lottolab::fuzz::ComeTesto(data, size);
  auto nuove = lottolab::LeggiNuoveEstrazioni(lottolab::TabellaEstrazioni{}, testo);
  if (!nuove) return 0;
  auto ancora = lottolab::LeggiNuoveEstrazioni(lottolab::TabellaEstrazioni(*nuove), testo);
  if (!ancora || !ancora->empty()) std::abort();
  return 0;
}
