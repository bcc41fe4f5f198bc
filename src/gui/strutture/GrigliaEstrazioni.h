#pragma once

// Which draws the rows of the structure editor's grid show. The grid's rows are those a structure's
// vertices keep (Riga): consecutive draws, later draws below, the last row on `ultima_estrazione`.

#include <span>

#include "figures/Struttura.h"

namespace lottolab::gui {

inline constexpr int kRigheGriglia = 12;

struct GrigliaEstrazioni {
  int prima_riga = 1;
  int righe = kRigheGriglia;
  int ultima_estrazione = 0;

  int UltimaRiga() const { return prima_riga + righe - 1; }
  bool ContieneRiga(int riga) const { return riga >= prima_riga && riga <= UltimaRiga(); }
  // May fall outside the archive when it holds fewer draws than the grid has rows.
  int EstrazioneDellaRiga(int riga) const { return ultima_estrazione - (UltimaRiga() - riga); }
};

// The grid that shows a loaded structure's vertices on the draws they were drawn on, when the archive
// (of `estrazioni` draws) holds them; else on the archive's last draws.
GrigliaEstrazioni GrigliaPer(std::span<const figures::ClsVertice> vertici, int estrazioni);

}  // namespace lottolab::gui
