// The bytes as an archive file: each record decoded alone, then the file loaded and read by the
// commands that show it (info, one draw, the delay table, a delay), as a user's damaged or foreign
// file would be.

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "ComandiFuzz.h"
#include "TestoFuzz.h"
#include "archive/ClsEstrazioni.h"

using lottolab::kByteRecordArchivio;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  for (size_t inizio = 0; inizio < size; inizio += kByteRecordArchivio)
    (void)lottolab::DecodificaRecord(data + inizio, std::min<size_t>(size - inizio, kByteRecordArchivio));

  const std::string file = lottolab::fuzz::ScriviFileTemporaneo("BaseDati.dat", lottolab::fuzz::ComeTesto(data, size)).string();
  (void)lottolab::ClsEstrazioni(file).GetNumeroEstrazioni();
  for (const auto& comando : {std::vector<std::string>{"info"}, {"estrazione", "1"}, {"estrazione", "01/01/2000"},
                              {"tabellone", "--ruota", "TT"}, {"ritardo", "--sorte", "1", "7", "90"},
                              {"storico", "--ruote", "BA,NZ", "1", "2"}}) {
    std::vector<std::string> parole{"--archivio", file};
    parole.insert(parole.end(), comando.begin(), comando.end());
    (void)lottolab::fuzz::EseguiComando(parole);
  }
  return 0;
}
