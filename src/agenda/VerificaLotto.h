#pragma once

// A Lotto bet of the agenda checked against the archive by the prize engine (stats/Giocata.h).

#include <vector>

#include "Giocata.h"
#include "archive/Esito.h"
#include "archive/TabellaEstrazioni.h"

namespace lottolab::agenda {

// The draws checked, from the bet's first draw (its IdEstr, or the first draw on or after its date)
// for at most its colpi, as far as the archive goes, stopping after the winning draw when the bet
// stops at its first win. The other games' bets are refused (VerificaGioco.h checks them).
Esito<std::vector<VerificaColpo>> VerificaGiocataLotto(const Giocata& giocata, const TabellaEstrazioni& tabella);

}  // namespace lottolab::agenda
