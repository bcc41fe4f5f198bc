#pragma once

// A progression of stakes on one sorte: the stake of each colpo chosen so that the smallest win
// that colpo can bring (one winning combination on one wheel), net of the tax, pays back every
// stake spent up to it, its own included, plus a profit. Each stake is the smallest that does, in
// the steps the operator accepts, so the progression grows no faster than it must; it ends where
// no stake up to a ticket's maximum would cover what was spent.

#include <vector>

#include "PremiLotto.h"

namespace lottolab::stats {

struct ParametriProgressione {
  SorteLotto sorte = SorteLotto::Ambo;  // the five classic sorti
  int numeri = 2;                       // played on the sorte, up to a ticket's 10
  int ruote = 1;                        // 1..11: the stake is split over them
  int colpi = 1;
  Centesimi utile = 0;           // the profit every colpo's win must leave
  Centesimi posta_minima = 100;  // the stake of the first colpo, at least
  Centesimi passo = 50;          // every stake a multiple of it
  GruppoData data;               // the prize table and the tax of that date
};

// The stakes of the colpi that can be covered, from the first; fewer than `colpi` when the
// progression outgrows a ticket's largest stake, none when a win cannot even cover its own stake.
// Parameters outside the ranges above, or a sorte not played on that date, are refused with the
// user's message.
Esito<std::vector<Centesimi>> VettoreProgressione(const ParametriProgressione& parametri);

// The net of the smallest win of a stake: one combination on one wheel, taxed as on that date.
Centesimi VincitaMinimaNetta(const ParametriProgressione& parametri, Centesimi posta);

}  // namespace lottolab::stats
