#pragma once

// The figures that the desktop's charts draw, each computed in one go so that a chart window can run
// it off its thread and then only paint: the delay of a combination draw by draw, the frequency of
// the ninety numbers on a range against what chance alone would give. Pure functions with the
// preconditions of Ritardi.h (a range inside the table, wheels 1..12, numbers 1..90).

#include <span>
#include <vector>

#include "archive/TabellaEstrazioni.h"

namespace lottolab::stats {

// The delay after every draw of a range that counts for the chosen wheels. Draws that do not count
// (a wheel not drawn yet, a record holding no draw) are left out, since the delay does not move in
// them and a chart over dates would show them as a flat stretch.
struct StoriaRitardo {
  // The counted draws in order, and the delay after each of them.
  std::vector<int> estrazioni;
  std::vector<int> ritardi;
  // The longest delay of the range (0 when nothing counted) and the first draw that reached it.
  int storico = 0;
  int estrazione_storico = 0;
  // The delay after the last counted draw.
  int ritardo_attuale = 0;
  // The counted draws of the range in which the combination won.
  int uscite = 0;
};

// The history of `numeri` (one to five numbers, sorte 1..their count) on `ruote` over inizio..fine;
// an empty range gives an empty history.
StoriaRitardo CalcolaStoriaRitardo(const TabellaEstrazioni& tab, std::span<const int> ruote,
                                   std::span<const int> numeri, int sorte, int inizio, int fine);

// How often each number 1..90 came out on a wheel (1..11) or on all of them (12) over inizio..fine.
struct FrequenzeNumeri {
  // Element n - 1 is the frequency of n: on all wheels a number drawn on three wheels of a draw adds three.
  std::vector<int> frequenze;
  // The (draw, wheel) pairs counted: the draws of the range in which each chosen wheel was drawn.
  int estrazioni_ruota = 0;
  // The frequency that chance gives every number: five numbers out of ninety per counted pair.
  double attesa = 0.0;
};

FrequenzeNumeri CalcolaFrequenze(const TabellaEstrazioni& tab, int ruota, int inizio, int fine);

}  // namespace lottolab::stats
