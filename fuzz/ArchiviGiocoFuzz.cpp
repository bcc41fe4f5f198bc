// The bytes as the archive file of each other game, loaded as every command and script loads it:
// a table or a refusal, never a crash. What loads is saved and loaded again and must come back the
// same, the file byte for byte: a record holds nothing that the table does not keep.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "TestoFuzz.h"
#include "archive/ArchivioGioco.h"
#include "archive/FileSicuri.h"

namespace {

using namespace lottolab;

void ControllaRiscrittura(const Esito<TabellaGioco>& letto, std::string_view byte) {
  if (!letto) {
    if (letto.Errore().testo.empty()) std::abort();
    return;
  }
  const auto copia = fuzz::ScriviFileTemporaneo("copia.dat", "");
  if (!SalvaArchivioGioco(*letto, copia)) std::abort();
  auto salvato = LeggiFileRegolare(copia, byte.size() + 1);
  if (!salvato || !salvato->has_value() || **salvato != byte) std::abort();
  auto riletto = CaricaArchivioGioco(letto->formato(), copia);
  if (!riletto || !(riletto->Tutte() == letto->Tutte()) || riletto->formato().numeri != letto->formato().numeri ||
      riletto->formato().massimo != letto->formato().massimo)
    std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view byte = fuzz::ComeTesto(data, size);
  const auto file = fuzz::ScriviFileTemporaneo("gioco.dat", byte);
  for (Gioco gioco : {Gioco::SuperEnalotto, Gioco::DieciELotto, Gioco::DieciELottoOgniCinqueMinuti, Gioco::WinForLife})
    ControllaRiscrittura(CaricaArchivioGioco(Formato(gioco), file), byte);
  auto generico = CaricaArchivioGenerico(file);
  if (generico && !IsArchivioGenerico(byte)) std::abort();
  ControllaRiscrittura(generico, byte);
  return 0;
}
