#pragma once

// Delay, frequency and historical maximum of a combination of numbers on a set of wheels.
//
// Every function here walks the same range of draws and applies the same per-wheel hit test: a
// wheel of a draw wins when, taking only the flagged positions, at least `sorte` of its five numbers
// are played numbers. Hits on two wheels of one draw are never added together. A draw counts when at
// least one selected wheel was drawn in it (its first number is held), so draws from before a wheel
// existed, or in which it was not drawn, neither count nor break a run; records that hold no draw
// are skipped. Wheel 12 selects all eleven wheels.
//
// The statistics are pure functions of the table and stateless. Their arguments are not user input:
// callers validate it, and a wheel outside 1..12, a number outside 1..90, a sorte outside 1..5 or a
// range that leaves the table is a programming error caught by an assertion. An empty range
// (inizio > fine) has no counted draws. Each call allocates nothing except the series, which return
// one value per draw.

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "Tabellone.h"
#include "archive/TabellaEstrazioni.h"

namespace lottolab::stats {

// The positions 1..5 of a wheel that take part in the hit test.
using Posizioni = std::array<bool, kNumeriPerRuota>;
inline constexpr Posizioni kTuttePosizioni{true, true, true, true, true};

// The number of counted draws from `fine` back to the latest winning draw of inizio..fine, that draw
// excluded: 0 when `fine` itself wins, every counted draw of the range when nothing wins.
int RitardoCombinazione(const TabellaEstrazioni& tab, std::span<const int> ruote, std::span<const int> numeri,
                        int sorte, int fine, const Posizioni& posizioni = kTuttePosizioni, int inizio = 1);

// The number of (draw, wheel) pairs of inizio..fine whose hit test succeeds: with wheel 12, a number
// drawn on three wheels of one draw adds three.
int FrequenzaCombinazione(const TabellaEstrazioni& tab, std::span<const int> ruote, std::span<const int> numeri,
                          int sorte, int fine, const Posizioni& posizioni = kTuttePosizioni, int inizio = 1);

// The historical maximum: the largest delay that RitardoCombinazione gives for any end draw of
// inizio..fine, that is the longest run of counted draws without a win, the open run included.
int StoricoCombinazione(const TabellaEstrazioni& tab, std::span<const int> ruote, std::span<const int> numeri,
                        int sorte, int fine, const Posizioni& posizioni = kTuttePosizioni, int inizio = 1);

// How far the current delay goes beyond every run that a win closed earlier in inizio..fine: the
// current delay minus the longest closed run when it is larger, otherwise 0. A combination that never
// won has no closed run, so its increment is the whole current delay.
int IncrStoricoCombinazione(const TabellaEstrazioni& tab, std::span<const int> ruote, std::span<const int> numeri,
                            int sorte, int fine, const Posizioni& posizioni = kTuttePosizioni, int inizio = 1);

// The four figures above of the same range from one walk.
StatisticaNumero StatisticaCombinazione(const TabellaEstrazioni& tab, std::span<const int> ruote,
                                        std::span<const int> numeri, int sorte, int fine,
                                        const Posizioni& posizioni = kTuttePosizioni, int inizio = 1);

// The draws laid out wheel by wheel: for each wheel the five numbers of every draw side by side.
// A walk over one wheel then reads 5 bytes a draw instead of a whole record, about a tenth of the
// memory, which is what a script asking for hundreds of figures in a row spends its time on. It is
// a copy: build it again when the table changes.
class ColonneRuote {
 public:
  explicit ColonneRuote(const TabellaEstrazioni& tab);
  int Estrazioni() const { return m_estrazioni; }
  // A record that holds no draw is kept with no numbers on any wheel: it neither counts nor wins,
  // exactly as when it is skipped, and the walks need no test for it.
  static constexpr bool Presente(int) { return true; }
  // The five numbers of the wheel whose numbers start at `base` in a record, (ruota - 1) * 5.
  const uint8_t* Numeri(int id, int base) const {
    return &m_colonne[static_cast<size_t>(base / kNumeriPerRuota)][static_cast<size_t>(id - 1) * kNumeriPerRuota];
  }
  // A wheel's (1..11) whole column: the five numbers of draw 1, then of draw 2, ...
  const uint8_t* Colonna(int ruota) const { return m_colonne[static_cast<size_t>(ruota - 1)].data(); }
  // The draws 1..id (id from 0) in which the wheel was drawn.
  int Contate(int ruota, int id) const { return m_contate[static_cast<size_t>(ruota - 1)][static_cast<size_t>(id)]; }

 private:
  int m_estrazioni;
  std::array<std::vector<uint8_t>, kNumeroRuote> m_colonne;
  std::array<std::vector<int>, kNumeroRuote> m_contate;
};

// StatisticaCombinazione over the columns: the same figures.
StatisticaNumero StatisticaCombinazione(const ColonneRuote& colonne, std::span<const int> ruote,
                                        std::span<const int> numeri, int sorte, int fine,
                                        const Posizioni& posizioni = kTuttePosizioni, int inizio = 1);

// The series give, for each draw e of inizio..fine in order (element e - inizio), the statistic of the
// range inizio..e: what RitardoCombinazione, FrequenzaCombinazione and StoricoCombinazione return with
// `fine` = e. A record that holds no draw repeats the value before it. Empty for an empty range.
std::vector<int> SerieRitardo(const TabellaEstrazioni& tab, std::span<const int> ruote, std::span<const int> numeri,
                              int sorte, int fine, const Posizioni& posizioni = kTuttePosizioni, int inizio = 1);
std::vector<int> SerieFreq(const TabellaEstrazioni& tab, std::span<const int> ruote, std::span<const int> numeri,
                           int sorte, int fine, const Posizioni& posizioni = kTuttePosizioni, int inizio = 1);
std::vector<int> SerieStorico(const TabellaEstrazioni& tab, std::span<const int> ruote, std::span<const int> numeri,
                              int sorte, int fine, const Posizioni& posizioni = kTuttePosizioni, int inizio = 1);

// One number (sorte 1) or one ambo (sorte 2) on one wheel (1..12). An `inizio` of 0 stands for the
// first draw and a `fine` of 0 for the last one, so both omitted measure over the whole archive.
int EstrattoRitardo(const TabellaEstrazioni& tab, int ruota, int numero, int inizio = 0, int fine = 0,
                    const Posizioni& posizioni = kTuttePosizioni);
int EstrattoFrequenza(const TabellaEstrazioni& tab, int ruota, int numero, int inizio = 0, int fine = 0,
                      const Posizioni& posizioni = kTuttePosizioni);
int EstrattoStorico(const TabellaEstrazioni& tab, int ruota, int numero, int inizio = 0, int fine = 0,
                    const Posizioni& posizioni = kTuttePosizioni);
int EstrattoIncrStorico(const TabellaEstrazioni& tab, int ruota, int numero, int inizio = 0, int fine = 0,
                        const Posizioni& posizioni = kTuttePosizioni);
int AmboRitardo(const TabellaEstrazioni& tab, int ruota, int n1, int n2, int inizio = 0, int fine = 0,
                const Posizioni& posizioni = kTuttePosizioni);
int AmboFrequenza(const TabellaEstrazioni& tab, int ruota, int n1, int n2, int inizio = 0, int fine = 0,
                  const Posizioni& posizioni = kTuttePosizioni);

}  // namespace lottolab::stats
