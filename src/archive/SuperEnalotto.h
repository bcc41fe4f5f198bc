#pragma once

// The SuperEnalotto archive: the published results from 2009 on, and the years before, when the
// game's numbers were taken from the Lotto draw of the same evening, derived from the Lotto archive.
//
// Until 30/06/2009 the six numbers were the first numbers drawn on Bari, Firenze, Milano, Napoli,
// Palermo and Roma, the next number on the same wheel standing in for one already taken; the Jolly
// was the first number of Venezia not among the six; the SuperStar, played from 28/03/2006, was the
// first number of Nazionale.

#include <string_view>
#include <vector>

#include "Esito.h"
#include "TabellaEstrazioni.h"
#include "TabellaGioco.h"

namespace lottolab {

// The draws of a results file, one a line: "AAAA/MM/GG contest n1 .. n6 jolly superstar", lines
// starting with '#' and empty lines skipped. Each line is checked on its own (numbers 1..90, six
// different, a Jolly not among them, a SuperStar of 0..90) and against the line before (a later
// date, the next contest of the year); the first fault refuses the file, naming its line. The
// numbers are kept as written, the draws numbered from 1.
Esito<std::vector<EstrazioneGioco>> LeggiRisultatiSuperEnalotto(std::string_view testo);

// The draws of the Lotto archive that were SuperEnalotto draws too, from 03/12/1997 to 30/06/2009,
// the six numbers in ascending order as the results give them, the contests counted within each year.
std::vector<EstrazioneGioco> SuperEnalottoDalLotto(const TabellaEstrazioni& lotto);

// The whole archive: the draws derived from the Lotto before the first date of the results, then
// the results. Where both give a draw (the first half of 2009), they must agree, Jolly and SuperStar
// included; a disagreement refuses the archive, naming the date.
Esito<TabellaGioco> ArchivioSuperEnalotto(const TabellaEstrazioni& lotto, std::vector<EstrazioneGioco> risultati);

}  // namespace lottolab
