#pragma once

// A figure placed on the table of draws: each vertex on one cell, holding that cell's number. The
// search builds these and the conditions are evaluated over them.

#include <cstdint>
#include <vector>

namespace lottolab::figures {

struct VerticePiazzato {
  int id_estr = 0;        // the draw of the vertex's row
  int ruota = 0;          // 1..11
  int posizione = 0;      // 1..5
  int numero = 0;         // 1..90
  bool chiusura = false;  // marked UsaPerChiusura
};

// Vertices in the order of the structure's vertices (those with Index 0 left out).
struct FiguraPiazzata {
  std::vector<VerticePiazzato> vertici;
};

}  // namespace lottolab::figures
