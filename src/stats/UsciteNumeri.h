#pragma once

// The draws in which each number came out, wheel by wheel and position by position, and the count of
// each wheel's counted draws up to every draw. Built in one walk of the whole table, they give the
// delay of any number at any end draw with a binary search, for scripts that ask for the delays of
// all ninety numbers draw after draw, where walking the range again at every call would repeat the
// same work thousands of times.
//
// The figures are exactly those of Ritardi.h for one number and sorte 1:
// Ritardo(r, n, 0, inizio, fine) == EstrattoRitardo(tab, r, n, inizio, fine), and with a position p
// the delay with only p flagged. A damaged record that repeats a number on a wheel counts it once,
// as the hit test does for sorte 1; numbers outside 1..90 are never found.

#include <vector>

#include "archive/TabellaEstrazioni.h"

namespace lottolab::stats {

class UsciteNumeri {
 public:
  // The delay of `numero` (1..90) on `ruota` (1..11, or 12 for all wheels) over inizio..fine (draw
  // indices inside the table; an empty range gives 0). `posizione` 0 takes every position, 1..5 only
  // that one.
  int Ritardo(int ruota, int numero, int posizione, int inizio, int fine) const;

 private:
  friend UsciteNumeri CalcolaUsciteNumeri(const TabellaEstrazioni& tab);

  static size_t Posto(int ruota, int numero, int posizione);
  int Contate(int ruota, int id_estr) const;

  int m_estrazioni = 0;
  // For each (wheel, number, position 0..5), the winning draws in increasing order.
  std::vector<std::vector<int>> m_uscite;
  // Wheel after wheel, the counted draws of 1..id for id = 0..m_estrazioni.
  std::vector<int> m_contate;
};

UsciteNumeri CalcolaUsciteNumeri(const TabellaEstrazioni& tab);

}  // namespace lottolab::stats
