// The bytes as an archive file: each record decoded alone, then the file loaded as every window and
// command loads it, and read as they read it: dates, the delay table, delays and frequencies. A
// damaged or foreign file must give a message or numbers, never a crash.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "TestoFuzz.h"
#include "archive/ClsEstrazioni.h"
#include "stats/Ritardi.h"
#include "stats/Tabellone.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace lottolab;
  for (size_t inizio = 0; inizio < size; inizio += kByteRecordArchivio)
    (void)DecodificaRecord(data + inizio, std::min<size_t>(size - inizio, kByteRecordArchivio));

  ClsEstrazioni archivio(fuzz::ScriviFileTemporaneo("BaseDati.dat", fuzz::ComeTesto(data, size)));
  (void)archivio.GetNumeroEstrazioni();
  Estrazione ultima;
  (void)archivio.LeggiEstrazione(1, ultima);
  auto tabella = archivio.CaricaEstrazioni();
  if (!tabella) return 0;
  const int n = tabella->EstrazioniArchivio();
  for (int k = 1; k <= n; ++k) {
    (void)tabella->DataEstrazione(k);
    (void)tabella->IndiceAnnuale(k);
  }
  (void)tabella->UltimaEstrazioneEntro(GruppoData{0, 1, 1, 2000});
  if (n == 0) return 0;
  (void)stats::CalcolaTabellone(*tabella, 1, n);
  const std::array<int, 2> ruote{1, kTutteLeRuote};
  const std::array<int, 2> numeri{1, 90};
  (void)stats::RitardoCombinazione(*tabella, ruote, numeri, 1, n);
  (void)stats::FrequenzaCombinazione(*tabella, ruote, numeri, 2, n);
  (void)stats::StoricoCombinazione(*tabella, ruote, numeri, 1, n);
  return 0;
}
