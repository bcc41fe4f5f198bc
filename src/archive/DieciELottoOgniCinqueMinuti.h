#pragma once

// The 10eLotto every five minutes: 288 contests a day, contest n at 5n minutes after midnight, the
// last one (288) written either as 23:59 of its day or as 00:00 of the next. Its Extra, Doppio Oro
// and Gong come from draws of their own that the results do not give; the archive holds the twenty
// numbers and the Numero Oro.

#include <string>
#include <string_view>
#include <vector>

#include "Esito.h"
#include "TabellaGioco.h"

namespace lottolab {

struct RisultatiCinqueMinuti {
  TabellaGioco tabella;
  // What the results leave in doubt, a day and a contest each, in the user's words; the doubtful
  // contests are not in the table.
  std::vector<std::string> segnalazioni;
};

// The draws of a results file, one a line: "AAAA/MM/GG hh:mm contest n1 .. n20 oro [doppio oro]"
// (the last column, whose meaning the sources do not agree on, is not read). A line that cannot be
// read, or a contest out of its day's order, refuses the file, naming its line. A contest given
// twice with different numbers is left out, and so is a missing contest: each is reported, naming
// the day and the contest.
Esito<RisultatiCinqueMinuti> LeggiRisultatiCinqueMinuti(std::string_view testo);

}  // namespace lottolab
