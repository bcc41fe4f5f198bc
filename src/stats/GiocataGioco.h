#pragma once

// A bet on one of the other games, checked against that game's table draw by draw as Giocata.h
// checks a Lotto bet. The 10eLotto pays by its table, with one option besides the base game; the
// SuperEnalotto and Win for Life share pools, so a win there is its category, with money only when
// the caller gives the quota published for that draw and category.

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Giocata.h"
#include "PremiAltriGiochi.h"
#include "archive/TabellaGioco.h"

namespace lottolab::stats {

struct GiocataGioco {
  std::vector<std::vector<int>> colonne;
  // The base stake of a column: the 10eLotto's (the option costs it again, twice for Doppio Oro);
  // a SuperEnalotto column costs what it cost on the draw's date and this is ignored; Win for Life
  // plays the two-euro ticket at 200 and the one-euro ticket otherwise.
  Centesimi posta = kCentesimiPerEuro;
  OpzioneDieciELotto opzione = OpzioneDieciELotto::Base;  // Gong is not a column's option
  RegoleDieciELotto regole;
  int prima_estrazione = 1;
  int colpi = 1;
  Arresto arresto = Arresto::AllaFine;
};

struct VincitaGioco {
  int id_estr = 0;
  int colpo = 0;
  int colonna = 0;
  int punti = 0;          // matches among the main numbers (the Extra's among the fifteen)
  bool speciale = false;  // the Jolly, the Numerone, the Oro numbers matched
  std::string categoria;  // "6", "5+1", ..., "base", "Oro", "Extra", "prima", ...
  // The net prize and its tax for the 10eLotto, the quota for the others; none when not known.
  std::optional<Tassato> vinto;
};

struct ColpoGioco {
  int colpo = 0;
  int id_estr = 0;
  Centesimi spesa = 0;
  Tassato vinto;  // the wins whose money is known
  Centesimi saldo = 0;
  std::vector<VincitaGioco> vincite;
};

struct EsitoGiocataGioco {
  std::vector<ColpoGioco> colpi;
  Centesimi spesa = 0;
  Tassato vinto;
  Centesimi saldo = 0;
  bool vinta = false;
  bool importi_mancanti = false;  // some win's money was not known
  int colpi_mancanti = 0;
};

// The quota of a category in a draw (SuperEnalotto, Win for Life); none when not known.
using QuotaCategoria = std::function<std::optional<Centesimi>(int id_estr, const std::string& categoria)>;

// The bet's account on the game's table. Refused, with the user's message, for a game without a
// prize table (the generic archive), columns that do not fit the game, a first draw outside the
// table, or a 10eLotto draw before its table's date.
Esito<EsitoGiocataGioco> VerificaGiocataGioco(const GiocataGioco& giocata, const TabellaGioco& tabella,
                                              const QuotaCategoria& quota = {});

}  // namespace lottolab::stats
