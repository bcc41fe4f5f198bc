#pragma once

// The wins of every number in the draws of a table, kept two ways, each for the questions it answers
// quickly, with the counted draws of each wheel up to every draw. Built in one walk of the table,
// they answer the questions that scripts ask thousands of times in a run without walking every wheel
// of every draw of the range as Ritardi.h does.
//
// - For each wheel and number, the draws in which it came out, with the positions it held: the
//   figures of one number or one ambo on one wheel read only the draws where it came out, about one
//   draw in eighteen, and its delay on one position only the last few of them.
// - For each number and draw, the set of wheels on which it came out, number after number: a group
//   of any size on any wheels is then walked a few bit operations per number and draw, reading one
//   row of the table per number in order, where the walk reads five numbers of every wheel played.
//
// For the draws since 1939 that is about 3.6 MB: the lists of all numbers lie end to end in one
// array, with their positions alongside, and hold the wheels one by one only; all the wheels together
// are read from the sets.
//
// The figures are exactly those of Ritardi.h: Estratto(r, n, inizio, fine).frequenza ==
// EstrattoFrequenza(tab, r, n, inizio, fine) and so on, Gruppo gives StatisticaCombinazione with
// every position, and Ritardo(r, n, p, inizio, fine) is RitardoCombinazione for n with only position p
// flagged. That holds for every record whose wheels hold five different numbers, as every real draw
// does; a damaged record that repeats a number on a wheel may give other figures for a group of
// numbers, but never a read outside the index.

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "Tabellone.h"
#include "archive/TabellaEstrazioni.h"

namespace lottolab::stats {

class IndiceVincite {
 public:
  explicit IndiceVincite(const TabellaEstrazioni& tab);

  // The draws of the table the index was built from.
  int Estrazioni() const { return static_cast<int>(m_ruote_estratte.size()) - 1; }

  // `numero` (1..90) on `ruota` (1..11, or 12 for all wheels) over inizio..fine (draw indices inside
  // the table; an empty range gives zeros).
  StatisticaNumero Estratto(int ruota, int numero, int inizio, int fine) const;
  // The ambo {a, b} (two different numbers 1..90) in the same way.
  StatisticaNumero Ambo(int ruota, int a, int b, int inizio, int fine) const;
  // The delay of `numero` as Estratto gives it when `posizione` is 0; with a position 1..5, counting
  // only the wins in which the number came out there.
  int Ritardo(int ruota, int numero, int posizione, int inizio, int fine) const;

  // What StatisticaCombinazione and RitardoCombinazione give with every position: numbers 1..90,
  // repeated or not, played together for a sorte 1..5 on wheels 1..12.
  StatisticaNumero Gruppo(std::span<const int> ruote, std::span<const int> numeri, int sorte, int inizio,
                          int fine) const;
  int RitardoGruppo(std::span<const int> ruote, std::span<const int> numeri, int sorte, int inizio, int fine) const;

 private:
  class Giocata;

  // The place of the list of a wheel 1..11 and a number 1..90 in m_inizi.
  static size_t Lista(int ruota, int numero);
  std::span<const int> Vincite(int ruota, int numero) const;
  // The latest draw of inizio..fine in which `numero` came out on `ruota` (1..11) at one of the
  // positions whose bits are set in `cercate`; inizio - 1 when there is none.
  int UltimaVincita(int ruota, int numero, unsigned cercate, int inizio, int fine) const;
  // The figures from the winning draws of inizio..fine on one wheel, in increasing order.
  StatisticaNumero Statistica(std::span<const int> vincite, int ruota, int inizio, int fine) const;

  // Where each list starts in m_vincite, and after the last one where it ends.
  std::vector<size_t> m_inizi;
  // The winning draws, each list in increasing order.
  std::vector<int> m_vincite;
  // For each win, bit p - 1 set for every position p that held the number.
  std::vector<uint8_t> m_posizioni;
  // For each number 1..90 in turn, for each draw 0..the last, bit r - 1 set for every wheel r on
  // which it came out.
  std::vector<uint16_t> m_ruote_uscite;
  // For each draw, bit r - 1 set for every wheel r drawn; 0 for a record that holds no draw.
  std::vector<uint16_t> m_ruote_estratte;
  // For each wheel 1..12, the counted draws of 1..id for id = 0..the last draw.
  std::array<std::vector<int>, kTutteLeRuote + 1> m_contate;
};

}  // namespace lottolab::stats
