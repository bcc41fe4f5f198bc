// The bytes as a results text of every other game. Whatever a reader accepts is what an import
// writes, so each draw must pass the archive's own check and come back unchanged through its record:
// an import must never write an archive that then refuses to load.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "TestoFuzz.h"
#include "archive/ArchivioGenerico.h"
#include "archive/ArchivioGioco.h"
#include "archive/DieciELotto.h"
#include "archive/DieciELottoOgniCinqueMinuti.h"
#include "archive/SuperEnalotto.h"
#include "archive/WinForLife.h"

namespace {

void ControllaArchiviabile(const lottolab::TabellaGioco& tabella) {
  const lottolab::FormatoGioco& formato = tabella.formato();
  std::vector<unsigned char> record(lottolab::ByteRecordGioco(formato));
  for (int k = 1; k <= tabella.EstrazioniArchivio(); ++k) {
    if (lottolab::DifettoEstrazioneGioco(formato, tabella[k], k, k > 1 ? &tabella[k - 1] : nullptr)) std::abort();
    lottolab::CodificaRecordGioco(formato, tabella[k], record.data());
    if (!(lottolab::DecodificaRecordGioco(formato, record.data()) == tabella[k])) std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace lottolab;
  const std::string_view testo = fuzz::ComeTesto(data, size);
  if (auto se = LeggiRisultatiSuperEnalotto(testo))
    ControllaArchiviabile(TabellaGioco(Formato(Gioco::SuperEnalotto), *se));
  if (auto dl = LeggiRisultatiDieciELotto(testo)) ControllaArchiviabile(TabellaGioco(Formato(Gioco::DieciELotto), *dl));
  if (auto dl5 = LeggiRisultatiCinqueMinuti(testo)) ControllaArchiviabile(dl5->tabella);
  if (auto wf = LeggiRisultatiWinForLife(testo)) ControllaArchiviabile(*wf);
  if (auto ft = LeggiArchivioGenerico(testo)) ControllaArchiviabile(*ft);
  return 0;
}
