#pragma once

// The analitico: delay, frequency and historical maximum of the ninety numbers on every wheel and on
// all wheels together, from the first draw of the table to any end draw. A user moves the end draw
// back and forth through the archive, so the table is prepared once: for each wheel and number the
// draws in which it came out, each with the frequency and the longest closed run up to it. A figure
// at any end draw is then one binary search in that list, and the 90 x 12 table costs microseconds
// instead of a walk of the whole archive.
//
// The figures are exactly those of Tabellone.h over the range 1..fine, with one difference: a wheel
// that no draw of 1..fine counts (Nazionale before May 2005, or any wheel at the first draws of a
// table that starts later) has no figures at all, where CalcolaTabellone gives it zeros.
//
// About 12 bytes a win: some 13 MB for the draws since 1939. Built in one walk of the table; a copy,
// so build it again when the table changes. Reading it from several threads at once is safe.

#include <optional>
#include <span>
#include <vector>

#include "Tabellone.h"
#include "archive/TabellaEstrazioni.h"

namespace lottolab::stats {

// The 90 x 12 figures at one end draw; a wheel no draw counted holds none.
class TabellaAnalitica {
 public:
  // The figures of `numero` (1..90) on `ruota` (1..11, or 12 for all wheels); nothing when no draw
  // up to the end draw counted the wheel.
  std::optional<StatisticaNumero> Dati(int ruota, int numero) const;
  bool RuotaPresente(int ruota) const;
  // The end draw the figures were taken at.
  int Fine() const { return m_fine; }

 private:
  friend class Analitico;

  int m_fine = 0;
  std::array<bool, kTutteLeRuote + 1> m_presente{};
  std::array<std::array<StatisticaNumero, kMassimoNumero + 1>, kTutteLeRuote + 1> m_dati{};
};

class Analitico {
 public:
  explicit Analitico(const TabellaEstrazioni& tab);

  // The draws of the table it was built from.
  int Estrazioni() const { return static_cast<int>(m_contate[1].size()) - 1; }

  // `numero` (1..90) on `ruota` (1..12) over 1..fine (fine 0..Estrazioni(); 0 gives no figures).
  std::optional<StatisticaNumero> Dati(int ruota, int numero, int fine) const;
  // Every number on every wheel over 1..fine.
  TabellaAnalitica Tabella(int fine) const;
  // The runs that the wins up to `fine` closed, the most recent first, at most `quanti` of them
  // (every one when `quanti` is 0): the delays the number had when it came out. Empty when the
  // wheel has no figures at `fine`.
  std::vector<int> RitardiPrecedenti(int ruota, int numero, int fine, int quanti = 0) const;

 private:
  struct Vincita {
    int estrazione;
    // Up to this win included: the frequency and the longest run a win closed.
    int frequenza;
    int massimo_chiuso;
  };

  static size_t Lista(int ruota, int numero);
  std::span<const Vincita> Vincite(int ruota, int numero) const;
  // The wins of the list up to `fine`.
  std::span<const Vincita> VinciteFino(int ruota, int numero, int fine) const;
  bool RuotaPresente(int ruota, int fine) const { return m_contate[ruota][static_cast<size_t>(fine)] > 0; }

  // Where each list starts in m_vincite, and after the last one where it ends.
  std::vector<size_t> m_inizi;
  std::vector<Vincita> m_vincite;
  // For each wheel 1..12, the counted draws of 1..id for id = 0..the last draw.
  std::array<std::vector<int>, kTutteLeRuote + 1> m_contate;
};

}  // namespace lottolab::stats
