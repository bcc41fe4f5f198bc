#include "gui/strutture/GrigliaEstrazioni.h"

#include <algorithm>

namespace lottolab::gui {

GrigliaEstrazioni GrigliaPer(std::span<const figures::ClsVertice> vertici, int estrazioni) {
  GrigliaEstrazioni griglia;
  griglia.ultima_estrazione = estrazioni;
  int ultima_riga = griglia.UltimaRiga();
  for (const figures::ClsVertice& vertice : vertici) {
    if (vertice.Index == 0) continue;
    griglia.prima_riga = std::min<int>(griglia.prima_riga, vertice.Riga);
    ultima_riga = std::max<int>(ultima_riga, vertice.Riga);
  }
  griglia.righe = ultima_riga - griglia.prima_riga + 1;
  const auto disegnato = std::find_if(vertici.begin(), vertici.end(), [&](const figures::ClsVertice& vertice) {
    return vertice.Index != 0 && vertice.IdEstrazione >= 1 && vertice.IdEstrazione <= estrazioni;
  });
  if (disegnato != vertici.end()) {
    const int ultima = disegnato->IdEstrazione + (ultima_riga - disegnato->Riga);
    if (ultima <= estrazioni) griglia.ultima_estrazione = ultima;
  }
  return griglia;
}

}  // namespace lottolab::gui
