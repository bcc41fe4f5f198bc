#pragma once

// Win for Life: ten numbers of 1..20 and the Numerone, also of 1..20, drawn every hour. No public
// file of its results exists, so the program reads a plain text layout of its own, one draw a line:
//
//     AAAA/MM/GG  hh:mm  contest  n1 .. n10  numerone
//
// fields separated by tabs or blanks, lines starting with '#' and empty lines passed over. The
// contest is its number within the day; within a day contests and times grow, and days do not go back.

#include <string_view>

#include "Esito.h"
#include "TabellaGioco.h"

namespace lottolab {

// The draws of such a text, numbered from 1; the first fault refuses it, naming its line.
Esito<TabellaGioco> LeggiRisultatiWinForLife(std::string_view testo);

}  // namespace lottolab
