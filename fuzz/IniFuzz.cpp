// The bytes as the configuration file: read, its paths resolved as the program resolves them, a key
// set, and the text written back read again, which must give the value just set while keeping
// whatever else the user wrote.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "TestoFuzz.h"
#include "app/Configurazione.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace lottolab::app;
  Configurazione configurazione{"/base", FileIni::DaTesto(lottolab::fuzz::ComeTesto(data, size))};
  (void)configurazione.ArchivioLotto();
  (void)configurazione.ArchivioModificabile();
  (void)configurazione.IndirizzoRisultati();

  configurazione.ini.Scrivi(kSezioneGenerale, "sFileBd", "archivio.dat");
  FileIni riletto = FileIni::DaTesto(configurazione.ini.Testo());
  if (riletto.Leggi(kSezioneGenerale, "sFileBd") != "archivio.dat") std::abort();
  if (riletto.Leggi("ALTRA", "chiave") != configurazione.ini.Leggi("ALTRA", "chiave")) std::abort();
  return 0;
}
