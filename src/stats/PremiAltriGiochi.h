#pragma once

// The prizes of the 10eLotto, the SuperEnalotto and Win for Life.
//
// The 10eLotto pays fixed prizes, published as net amounts per euro since 01/07/2019: the gross is
// the net grossed up by the tax of the date (rounded half up to the cent), the tax the difference.
// Its options have their own tables, of which only the cells the sources confirm are held; a cell
// not held is told, never guessed. The SuperEnalotto and Win for Life share a pool among the
// winners of each category: a bet's outcome is its category, its money the quota published for
// that draw, which the user gives.

#include <optional>
#include <string_view>

#include "Denaro.h"
#include "PremiLotto.h"
#include "archive/Esito.h"

namespace lottolab::stats {

enum class OpzioneDieciELotto { Base, Oro, DoppioOro, Extra, Gong };

// Whether the Oro and Doppio Oro tables give the whole prize of a ticket whose Oro came out, or
// what is added to the base prize. The one setting of the open point; Totali by default.
enum class ColonneOro { Totali, Incrementi };

struct RegoleDieciELotto {
  ColonneOro colonne_oro = ColonneOro::Totali;
};

// The net prize per euro of `punti` matches out of `giocati` numbers (1..10) with the option: the
// base table, the Oro tables when the Oro (or both Doppio Oro numbers) is among the matches, the
// Extra table on the fifteen Extra numbers, the Gong (one number, `punti` 1 when it matches). Zero
// for a score that wins nothing; none for a cell the program does not know.
std::optional<Centesimi> PremioNettoPerEuroDieciELotto(OpzioneDieciELotto opzione, int giocati, int punti,
                                                       const RegoleDieciELotto& regole = {});

// Whether the option can be played with that many numbers on the date: refused, with the user's
// message, before the table's date or the option's, or for numbers played outside 1..10.
Esito<Fatto> ControllaDieciELotto(OpzioneDieciELotto opzione, int giocati, const GruppoData& data);

// Gross, tax and net of a 10eLotto score for a stake on a draw's date; refused, with the user's
// message as ControllaDieciELotto refuses, for a cell not known, or for a stake outside 1..200
// euro in steps of 0,50.
Esito<Tassato> PremioDieciELotto(OpzioneDieciELotto opzione, int giocati, int punti, Centesimi posta,
                                 const GruppoData& data, const RegoleDieciELotto& regole = {});

enum class CategoriaSuperEnalotto { Sei, CinquePiuUno, Cinque, Quattro, Tre, Due };

// The category of a column with `punti` of the six matched, the Jolly counted only with five; none
// when it wins nothing (two matches before 02/02/2016 included).
std::optional<CategoriaSuperEnalotto> CategoriaSuperEnalottoDi(int punti, bool jolly, const GruppoData& data);
std::string_view NomeCategoria(CategoriaSuperEnalotto categoria);

// The tax on the part of a win above 500 euro, for the SuperEnalotto and Win for Life.
Tassato TassaVincitaSuperEnalotto(Centesimi quota, const GruppoData& data);

// The Win for Life Classico ticket: one euro plays 7..10 matches, two euro also 0..3.
enum class BigliettoWinForLife { UnEuro, DueEuro };
// The categories by share of the pool; the "Win for Life" one adds the monthly annuity.
enum class CategoriaWinForLife { Prima, Seconda, Terza, Quarta, Quinta, Sesta, Settima, WinForLife };

// The category of `punti` of the ten numbers drawn among those played and whether the Numerone
// matched; none when the score wins nothing on that ticket.
std::optional<CategoriaWinForLife> CategoriaWinForLifeDi(int punti, bool numerone, BigliettoWinForLife biglietto);
std::string_view NomeCategoria(CategoriaWinForLife categoria);
// The fixed prize of the seventh category; the others are shares of the pool.
inline constexpr Centesimi kPremioSettimaWinForLife = 2 * kCentesimiPerEuro;

}  // namespace lottolab::stats
