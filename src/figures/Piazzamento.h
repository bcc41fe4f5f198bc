#pragma once

// The table that figures are drawn on, and what placing a figure on it means.
//
// The table has one row per draw (row = draw index, later draws below) and one column per position
// of each wheel: Bari's five positions are columns 1..5, Cagliari's 6..10, ..., Nazionale's 51..55.
// A cell holds the number drawn there, or nothing where the wheel was not drawn.
//
// A figure keeps the shape its vertices have in the editor's grid: each vertex sits so many rows
// and columns away from the anchor, whose row is the vertical pivot's (the vertex marked FulcroVert)
// and whose column is the horizontal pivot's (FulcroOrizz); without a marked pivot the first vertex
// serves. Placing the figure puts the anchor on a cell; every vertex then falls on a cell of its
// own, and the placement counts only when every one of those cells holds a number.
//
// The pivots' direction settings say which ways the shape is read: VersoVert on the vertical pivot,
// VersoOrizz on the horizontal one, each 0 or 1 for the shape as drawn, -1 for the shape turned over
// on that axis (rows counted back in time, or columns right to left), 2 for both ways.

#include <vector>

#include "Struttura.h"
#include "archive/Estrazione.h"

namespace lottolab::figures {

inline constexpr int kColonneTabella = kNumeroRuote * kNumeriPerRuota;

constexpr int RuotaDellaColonna(int colonna) { return (colonna - 1) / kNumeriPerRuota + 1; }
constexpr int PosizioneDellaColonna(int colonna) { return (colonna - 1) % kNumeriPerRuota + 1; }
constexpr int ColonnaDi(int ruota, int posizione) { return (ruota - 1) * kNumeriPerRuota + posizione; }

// One way of reading the shape: each vertex's distance from the anchor, in the structure's order of
// vertices (those with Index 0 left out).
struct Forma {
  struct Punto {
    int righe = 0;
    int colonne = 0;
    bool chiusura = false;

    friend bool operator==(const Punto&, const Punto&) = default;
  };
  std::vector<Punto> punti;
  int riga_minima = 0;  // the extent of the shape around the anchor
  int riga_massima = 0;
  int colonna_minima = 0;
  int colonna_massima = 0;

  friend bool operator==(const Forma&, const Forma&) = default;
};

// The shapes a search tries, as the direction settings ask: one or two, or four when both settings
// ask for both ways (shapes that come out alike are tried once). None without vertices.
std::vector<Forma> FormeDaCercare(const Struttura& struttura);

}  // namespace lottolab::figures
