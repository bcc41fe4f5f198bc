#pragma once

// The evening 10eLotto, drawn from the numbers of the Lotto draw of the same evening, so derived
// from the Lotto archive; its published results are read to check the derivation and to add the
// evenings after the Lotto archive's last draw.
//
// The numbers are read column by column, the first number of the ten city wheels from Bari to
// Venezia, then the second, then the third and on, each number already taken passed over: the first
// twenty are the draw, the next fifteen the Extra (played from 25/10/2022). The Numero Oro is Bari's
// first number, the Doppio Oro Bari's second (played from 01/10/2017), the Gong Nazionale's first
// (played from 26/10/2022); a number not yet played in that period is not held (0).

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Esito.h"
#include "TabellaEstrazioni.h"
#include "TabellaGioco.h"

namespace lottolab {

// The evening draws of the Lotto archive, from 11/06/2009; the contest is the Lotto draw's number
// within its year (the published contest, where the results give it, replaces it in the archive).
std::vector<EstrazioneGioco> DieciELottoDalLotto(const TabellaEstrazioni& lotto);

// The twenty numbers and the Numero Oro ("-" where not given) of a results line, read from `resto`
// into `estrazione`; the reason, in the user's words, when they cannot be.
std::optional<std::string> LeggiNumeriDieciELotto(std::string_view& resto, EstrazioneGioco& estrazione);

// The draws of a results file, one a line: "AAAA/MM/GG contest n1 .. n20 oro", the Numero Oro "-"
// where the file does not give it, lines starting with '#' and empty lines skipped. The first fault
// refuses the file, naming its line.
Esito<std::vector<EstrazioneGioco>> LeggiRisultatiDieciELotto(std::string_view testo);

struct ArchivioDieciELottoCostruito {
  TabellaGioco tabella;
  // The evenings where the results differ from what the Lotto archive gives, in the user's words;
  // the archive keeps the Lotto's.
  std::vector<std::string> differenze;
  int confrontate = 0;  // evenings that both give
};

// The archive: the evenings derived from the Lotto, with the contest numbers of the results, then
// the evenings of the results after the Lotto archive's last draw. An evening that the results
// give differently is kept as the Lotto gives it and reported.
ArchivioDieciELottoCostruito ArchivioDieciELotto(const TabellaEstrazioni& lotto,
                                                 const std::vector<EstrazioneGioco>& risultati);

}  // namespace lottolab
