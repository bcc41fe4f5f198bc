#pragma once

// A Lotto bet and its check against the draws that follow it. A bet plays one or more columns
// (a lunghetta is one column, a system's development many) on the same wheels, each column with
// every stake of the bet, for a number of draws (colpi) from its first one; each colpo may raise
// the stakes (a progression), and the bet may stop at its first win. The check walks the table draw
// by draw and keeps the account: spent, won gross, tax, net and the balance after each colpo, and
// every win with its draw, wheel, column and sorte. Pure: the table is the caller's.

#include <string>
#include <vector>

#include "PremiLotto.h"
#include "archive/TabellaEstrazioni.h"

namespace lottolab::stats {

// A stake on one sorte; `progressione`, when given, is the stake at each colpo (the last one again
// for the colpi past its end) in place of `posta`.
struct PostaSorte {
  SorteLotto sorte = SorteLotto::Ambo;
  Centesimi posta = 0;
  std::vector<Centesimi> progressione;
  int posizione = 0;  // estratto determinato only

  // The stake at colpo 1, 2, ...
  Centesimi AlColpo(int colpo) const;
};

enum class Arresto { AllaFine, AllaPrimaVincita };

struct Giocata {
  std::vector<std::vector<int>> colonne;
  std::vector<int> ruote;  // as the user names them: Tutte (kTutteLeRuote) allowed
  std::vector<PostaSorte> poste;
  int prima_estrazione = 1;
  int colpi = 1;
  Arresto arresto = Arresto::AllaFine;
};

struct VincitaGiocata {
  int id_estr = 0;
  int colpo = 0;  // 1 for the first draw of the bet
  int ruota = 0;
  int colonna = 0;  // from 0, in the order of Giocata::colonne
  SorteLotto sorte = SorteLotto::Ambo;
  int64_t combinazioni = 0;
  Centesimi lordo = 0;
};

// One colpo: what it cost, what it won (the ticket's gross held to the largest win, its tax) and
// the balance of the bet after it.
struct ColpoGiocata {
  int colpo = 0;
  int id_estr = 0;
  Centesimi spesa = 0;
  Tassato vinto;
  Centesimi saldo = 0;
  std::vector<VincitaGiocata> vincite;
};

struct EsitoGiocata {
  std::vector<ColpoGiocata> colpi;
  Centesimi spesa = 0;
  Tassato vinto;
  Centesimi saldo = 0;
  bool vinta = false;
  // Colpi the archive does not hold yet; 0 once the bet is over (stopped at a win too).
  int colpi_mancanti = 0;
};

// Whether the bet can be played from its first draw: columns, wheels and stakes each as
// ControllaPuntata wants them (the progression's stakes too), at least one colpo, the first draw in
// the table. A bet may need several tickets, so ControllaBiglietto is the caller's. The refusal is
// the user's message.
Esito<Fatto> ControllaGiocata(const Giocata& giocata, const TabellaEstrazioni& tabella);

// The account of the bet draw by draw, from its first draw for its colpi or until the table ends.
// A record that holds no draw is passed over without spending a colpo. The bet must pass ControllaGiocata.
EsitoGiocata VerificaGiocata(const Giocata& giocata, const TabellaEstrazioni& tabella);

// The bet's cost in one colpo: every stake of every column.
Centesimi SpesaAlColpo(const Giocata& giocata, int colpo);

// What a back-test reports on an account.
struct Riepilogo {
  int colpi = 0;
  Centesimi spesa = 0;
  Tassato vinto;
  Centesimi saldo = 0;
  // Winning colpi of each sorte, indexed by SorteLotto (0 unused).
  std::array<int, 8> colpi_vincenti_per_sorte{};
  std::array<Centesimi, 8> lordo_per_sorte{};
  int massima_serie_senza_vincite = 0;
  // The largest fall of the balance from an earlier peak (the start, 0, counts as one).
  Centesimi massimo_calo = 0;
};
Riepilogo Riassumi(const EsitoGiocata& esito);

// The bet played in every draw from `inizio` to `fine`, never stopping: its account summed up.
// The bet's own first draw and colpi are ignored.
Riepilogo RetroVerifica(Giocata giocata, const TabellaEstrazioni& tabella, int inizio, int fine);

}  // namespace lottolab::stats
