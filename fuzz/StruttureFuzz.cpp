// The bytes as a structure file: loaded, its conditions compiled against its own vertices, encoded
// again, and searched for over a small archive with the play followed, as a structure file shared
// by someone else would be.

#include <cstddef>
#include <cstdint>
#include <variant>

#include "TestoFuzz.h"
#include "figures/Condizione.h"
#include "figures/FileStrutture.h"
#include "figures/RicercaFigure.h"
#include "figures/StatisticaStrutture.h"

namespace {

// Eight draws in which every wheel holds numbers spread over 1..90.
lottolab::TabellaEstrazioni ArchivioPiccolo() {
  std::vector<lottolab::Estrazione> estrazioni;
  for (int k = 1; k <= 8; ++k) {
    lottolab::Estrazione estrazione;
    estrazione.id_estr = k;
    estrazione.data = {static_cast<int16_t>(k), static_cast<int16_t>(k * 3), 1, 2020};
    for (int ruota = 1; ruota <= lottolab::kNumeroRuote; ++ruota)
      for (int posizione = 1; posizione <= lottolab::kNumeriPerRuota; ++posizione)
        estrazione.ImpostaNumero(ruota, posizione, (k * 31 + ruota * 7 + posizione * 13) % 90 + 1);
    estrazioni.push_back(estrazione);
  }
  return lottolab::TabellaEstrazioni(std::move(estrazioni));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace lottolab;
  static const TabellaEstrazioni tabella = ArchivioPiccolo();

  auto struttura = figures::CaricaStruttura(fuzz::ScriviFileTemporaneo("figura.dat", fuzz::ComeTesto(data, size)));
  if (!struttura) return 0;
  for (const std::string& condizione : struttura->condizioni)
    (void)figures::Condizione::Compila(condizione, struttura->vertici);
  (void)figures::DecodificaStruttura(figures::CodificaStruttura(*struttura));

  figures::OpzioniRicerca opzioni;
  auto trovate = figures::CercaFigura(tabella, *struttura, opzioni);
  if (trovate) (void)figures::CalcolaStatistica(tabella, *trovate, 3, 1, tabella.EstrazioniArchivio());
  return 0;
}
