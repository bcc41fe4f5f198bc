// The bytes as a structure file: decoded, its conditions compiled against its own vertices, encoded
// again, and then shown and searched for by the commands over a small archive, as a structure file
// shared by someone else would be.

#include <cstddef>
#include <cstdint>
#include <variant>

#include "ComandiFuzz.h"
#include "TestoFuzz.h"
#include "archive/ClsEstrazioni.h"
#include "figures/Condizione.h"
#include "figures/FileStrutture.h"

namespace {

// Eight draws in which every wheel holds numbers spread over 1..90.
std::string ArchivioPiccolo() {
  std::string byte;
  for (int k = 1; k <= 8; ++k) {
    lottolab::Estrazione estrazione;
    estrazione.id_estr = k;
    estrazione.data = {static_cast<int16_t>(k), static_cast<int16_t>(k * 3), 1, 2020};
    for (int ruota = 1; ruota <= lottolab::kNumeroRuote; ++ruota)
      for (int posizione = 1; posizione <= lottolab::kNumeriPerRuota; ++posizione)
        estrazione.ImpostaNumero(ruota, posizione, (k * 31 + ruota * 7 + posizione * 13) % 90 + 1);
    unsigned char record[lottolab::kByteRecordArchivio];
    lottolab::CodificaRecord(estrazione, record);
    byte.append(reinterpret_cast<const char*>(record), sizeof record);
  }
  return byte;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace lottolab;
  static const std::string archivio = fuzz::ScriviFileTemporaneo("Piccolo.dat", ArchivioPiccolo()).string();

  if (auto struttura = figures::DecodificaStruttura(fuzz::ComeTesto(data, size))) {
    for (const std::string& condizione : struttura->condizioni)
      (void)figures::Condizione::Compila(condizione, struttura->vertici);
    (void)figures::DecodificaStruttura(figures::CodificaStruttura(*struttura));
  }

  const std::string file = fuzz::ScriviFileTemporaneo("figura.dat", fuzz::ComeTesto(data, size)).string();
  (void)fuzz::EseguiComando({"struttura", file});
  (void)fuzz::EseguiComando({"--archivio", archivio, "cerca-figura", file, "--colpi", "3"});
  return 0;
}
