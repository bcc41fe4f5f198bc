#pragma once

// A bet of the agenda on the SuperEnalotto, the evening 10eLotto or Win for Life, checked against
// that game's draws by the prize engine of the other games (stats/GiocataGioco.h), one draw at a
// time so that a progression changes the stake of each.
//
// A win is named by its category: "punti 5" or "5+1" at the SuperEnalotto ("punti 3 SuperStar"
// when the SuperStar came out), "punti 6", "punti 6 Oro", "punti 2 Extra" or "Gong" at the
// 10eLotto, the score and its category at Win for Life ("9+1 (seconda)"). The columns that won the
// same category in a draw make one win, `combinazioni` of them. The SuperEnalotto and Win for Life
// pay shares of a pool, published after the draw and not held by the archive: such a win takes the
// quota the user gave for that draw and category, taxed on its part above 500 euro, and without one
// it is stored with its amount not known (`importo_noto` false, lordo 0), never as a win of nothing;
// the 10eLotto cells no source confirms are stored the same way. Win for Life's seventh category pays
// a fixed 2 euro.

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Giocata.h"
#include "archive/Esito.h"
#include "archive/TabellaGioco.h"

namespace lottolab::agenda {

// The archive that holds the draws of a bet of the other games: the evening 10eLotto for DL.
Gioco GiocoDellArchivio(GiocoGiocata gioco);

// The quota the user gave for a category ("punti 5", as the win is named) of a draw, found by the
// draw's index and date in the game's archive; none when not given.
using QuoteNote = std::function<std::optional<int64_t>(int id_estr, const GruppoData& data, const std::string& sorte)>;

// The draws checked, from the bet's first draw in `tabella` (the archive of the bet's game) for at
// most its colpi, as far as the archive goes, stopping after the winning draw when the bet stops at
// its first win. A SuperEnalotto column of more than six numbers, or a Win for Life one of more
// than ten, is the integral system of its numbers. Fails with the engine's Italian message (a draw
// before the game's prize table or an option's start, a stake it does not sell), with a Lotto bet,
// or with a table of another game.
Esito<std::vector<VerificaColpo>> VerificaGiocataAltroGioco(const Giocata& giocata, const TabellaGioco& tabella,
                                                            const QuoteNote& quote = {});

}  // namespace lottolab::agenda
