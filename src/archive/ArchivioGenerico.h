#pragma once

// The generic archive, for lotteries the program does not know: any text of draws, one a line, a
// date and K numbers of 1..M. The date is "GG/MM/AAAA" or "AAAA/MM/GG"; fields are separated by
// tabs, blanks or ';'. K and M are given by the caller, or by a first line of the text
//
//     # numeri K massimo M
//
// and otherwise K is the count of numbers on the first draw's line and M is 90. Lines starting with
// '#' and empty lines are passed over; days do not go back and do not repeat.

#include <optional>
#include <string_view>

#include "Esito.h"
#include "TabellaGioco.h"

namespace lottolab {

struct MisureGeneriche {
  int numeri = 0;  // 0: from the text
  int massimo = 0;
};

// The K and M that the text's first line gives, if it is "# numeri K massimo M".
std::optional<MisureGeneriche> MisureDichiarate(std::string_view testo);

// The draws of such a text, numbered from 1, in the format they say; the first fault refuses the
// text, naming its line.
Esito<TabellaGioco> LeggiArchivioGenerico(std::string_view testo, MisureGeneriche misure = {});

}  // namespace lottolab
