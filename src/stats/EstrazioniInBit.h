#pragma once

// The draws held as sets of numbers, one 128-bit set per wheel and draw, wheel after wheel, with the
// wheels drawn in each draw. The hit test of Ritardi.h on a group of numbers becomes an intersection
// of two sets and a count of its bits, read from one wheel's draws in a row, where the walks of
// Ritardi.h look up each of the five numbers of every wheel: the same figures for any group, sorte
// and set of wheels, at a fraction of the cost, once the sets are built.
//
// The figures are exactly those of Ritardi.h with every position flagged, for every record whose
// wheels hold five different numbers, as every real draw does; numbers outside 1..90 are never held.

#include <cstdint>
#include <span>
#include <vector>

#include "Tabellone.h"
#include "archive/TabellaEstrazioni.h"

namespace lottolab::stats {

class EstrazioniInBit {
 public:
  explicit EstrazioniInBit(const TabellaEstrazioni& tab);

  // The draws of the table the sets were built from.
  int Estrazioni() const { return static_cast<int>(m_ruote_estratte.size()) - 1; }

  // What RitardoCombinazione and StatisticaCombinazione of Ritardi.h give with every position, for
  // wheels 1..12, numbers 1..90 and a sorte 1..5 over inizio..fine inside the table.
  int Ritardo(std::span<const int> ruote, std::span<const int> numeri, int sorte, int inizio, int fine) const;
  StatisticaNumero Statistica(std::span<const int> ruote, std::span<const int> numeri, int sorte, int inizio,
                              int fine) const;

 private:
  struct Insieme {
    uint64_t basso = 0;  // numbers 1..64 at bits 0..63
    uint64_t alto = 0;   // numbers 65..90 at bits 0..25
  };
  class Gruppo;

  // For each wheel 1..11 and draw 0..the last, its numbers; empty for a record that holds no draw.
  std::vector<Insieme> m_numeri;
  // For each draw, bit r - 1 for each wheel r drawn in it; 0 for a record that holds no draw.
  std::vector<uint16_t> m_ruote_estratte;
};

}  // namespace lottolab::stats
