#pragma once

// What the tests of figures share: vertices written in one line, and a small table in which the
// draws that complete a one-vertex figure on 7 can be counted by hand.

#include <cstdint>
#include <string>

#include "figures/Struttura.h"
#include "stats/ArchiviDiProva.h"

namespace lottolab::figures::test {

inline ClsVertice Vertice(int16_t index, std::string caption, int16_t riga = 0, int16_t colonna = 0) {
  ClsVertice vertice;
  vertice.Index = index;
  vertice.Caption = std::move(caption);
  vertice.Riga = riga;
  vertice.Colonna = colonna;
  return vertice;
}

// 7 comes out on Bari at draws 1 and 6 (position 1) and 3 and 4 (position 5), and on Cagliari
// (position 1) at draw 2; every other cell holds 81..85.
inline TabellaEstrazioni SeiEstrazioni() {
  return lottolab::test::Archivio()
      .Estrazione({{BA, {7, 1, 2, 3, 4}}})
      .Estrazione({{BA, {1, 2, 3, 4, 5}}, {CA, {7, 1, 2, 3, 4}}})
      .Estrazione({{BA, {8, 9, 10, 11, 7}}})
      .Estrazione({{BA, {1, 2, 3, 4, 7}}})
      .Estrazione({{BA, {1, 2, 3, 4, 5}}})
      .Estrazione({{BA, {7, 2, 3, 4, 5}}})
      .Tabella();
}

}  // namespace lottolab::figures::test
