#pragma once

// The draws of any game in one shape for the analysis windows: a row of "wheels" per draw, each of
// the same count of numbers. The Lotto gives eleven wheels of five numbers; another game gives one
// wheel holding its main numbers, so that a search, a frequency or a sum is written once for every
// game. The copy costs a few milliseconds for the whole Lotto archive and is made off the window's
// thread.

#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "archive/Estrazione.h"
#include "archive/TabellaEstrazioni.h"
#include "archive/TabellaGioco.h"

namespace lottolab::stats {

struct EstrazioniPerAnalisi {
  int ruote = 0;
  int numeri_per_ruota = 0;
  int massimo = 0;
  std::vector<GruppoData> date;  // element id - 1 for draw id
  std::vector<uint8_t> numeri;   // draw-major, then wheel-major; 0 means absent

  int Estrazioni() const { return static_cast<int>(date.size()); }
  // The numbers of `ruota` (1-based) in draw `id` (1-based); both must be inside the table.
  std::span<const uint8_t> Numeri(int id, int ruota) const {
    const auto inizio = (static_cast<size_t>(id - 1) * static_cast<size_t>(ruote) + static_cast<size_t>(ruota - 1)) *
                        static_cast<size_t>(numeri_per_ruota);
    return {numeri.data() + inizio, static_cast<size_t>(numeri_per_ruota)};
  }
  // A wheel counts as drawn when its first number is held, as the archive rules.
  bool RuotaEstratta(int id, int ruota) const { return Numeri(id, ruota)[0] != 0; }
};

EstrazioniPerAnalisi PerAnalisi(const TabellaEstrazioni& tab);
// The game's main numbers only: the Extra, Jolly and the other special numbers stay out.
EstrazioniPerAnalisi PerAnalisi(const TabellaGioco& tab);

// A date as one comparable number, AAAAMMGG.
inline int ChiaveData(const GruppoData& data) { return data.anno * 10000 + data.mese * 100 + data.giorno; }

// The first and last draw whose dates lie in dal..al (inclusive); a default date leaves that side
// open. {1, 0} when no draw lies there.
std::pair<int, int> IntervalloDate(const EstrazioniPerAnalisi& estrazioni, const GruppoData& dal, const GruppoData& al);

// The wheels 1..estrazioni.ruote that `ruote` names, in order and once each; every wheel when it
// names none of them.
std::vector<int> RuoteValide(const EstrazioniPerAnalisi& estrazioni, std::span<const int> ruote);

}  // namespace lottolab::stats
