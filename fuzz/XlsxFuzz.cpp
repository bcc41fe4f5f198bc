// The bytes as an .xlsx workbook a script or the desktop opens: the zip's directory, the sizes it
// declares, every part's XML and the references between them are all the attacker's. The limits are
// lowered so that a run explores the reader rather than the allocator.

#include <cstddef>
#include <cstdint>

#include "TestoFuzz.h"
#include "esporta/LetturaXlsx.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const lottolab::esporta::LimitiLettura limiti{
      .file = 1 << 20, .parte = 4 << 20, .totale = 16 << 20, .celle = 100'000, .fogli = 32, .formati = 1000};
  (void)lottolab::esporta::LeggiXlsxDaByte(lottolab::fuzz::ComeTesto(data, size), limiti);
  return 0;
}
