#pragma once

// A real bet as the player wrote it on the ticket, and what its check found draw by draw. These are
// plain values: the agenda stores them, the checking engine fills the results, the command line
// and the desktop show them. Money is always in euro cents, so that sums are exact.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "archive/Esito.h"
#include "archive/Estrazione.h"

namespace lottolab::agenda {

enum class GiocoGiocata { Lotto, SuperEnalotto, DieciELotto, WinForLife };

// "LO", "SE", "DL", "WF", as the command line's --gioco names them.
std::string_view SiglaGioco(GiocoGiocata gioco);
std::optional<GiocoGiocata> GiocoDaSigla(std::string_view sigla);

// The stake on one sorte: for the Lotto, of the whole bet (the engine splits it over the wheels);
// for the other games, of one column, as their tickets price it.
struct Posta {
  std::string sorte;  // a word of SortiDelGioco()
  int64_t centesimi = 0;

  friend bool operator==(const Posta&, const Posta&) = default;
};

struct Giocata {
  int64_t id = 0;  // given by the agenda when the bet is added
  GiocoGiocata gioco = GiocoGiocata::Lotto;
  // One lunghetta is one column; a system written out is several.
  std::vector<std::vector<int>> colonne;
  // The chosen number beside the columns: the SuperStar, the 10eLotto's Gong, the Win for Life's
  // Numerone; 0 when none.
  int numero_speciale = 0;
  // Wheel indexes 1..11, or 12 alone for all the city wheels; empty for the other games.
  std::vector<int> ruote;
  std::vector<Posta> poste;
  // The first draw in play: by date, by IdEstr, or both.
  std::optional<GruppoData> dal;
  std::optional<int> id_estr_dal;
  int colpi = 1;
  // The factor of every stake at each colpo (1,1,2,2,...): empty, or exactly `colpi` values.
  std::vector<int> progressione;
  bool ferma_alla_vincita = false;
  std::string nota;
  int64_t creata = 0;  // seconds since 1970 (UTC), set by the agenda

  friend bool operator==(const Giocata&, const Giocata&) = default;
};

// One win inside one draw's check.
struct VincitaColpo {
  int ruota = 0;            // wheel index; 0 for the games without wheels
  std::string sorte;        // as the engine names it: "ambo", "punti 5", "10+1", ...
  std::vector<int> numeri;  // the numbers played that came out
  int combinazioni = 1;     // how many winning combinations (or columns, for the other games)
  int64_t lordo = 0;        // cents; 0 when the amount is not known
  // False for a pool prize whose quota the program does not know (SuperEnalotto, Win for Life,
  // the 10eLotto cells no source confirms): the win is real, its money is not counted anywhere.
  bool importo_noto = true;

  friend bool operator==(const VincitaColpo&, const VincitaColpo&) = default;
};

// The check of one draw of a bet: colpo k of the bet is the k-th element of its results.
struct VerificaColpo {
  int id_estr = 0;
  GruppoData data;
  int64_t spesa = 0;
  int64_t lordo = 0;
  int64_t ritenuta = 0;
  int64_t netto = 0;  // lordo - ritenuta
  std::vector<VincitaColpo> vincite;

  friend bool operator==(const VerificaColpo&, const VerificaColpo&) = default;
};

// The quota published for a category of a draw of the SuperEnalotto or Win for Life, as the user
// read it: the money of one winning column, before tax. `sorte` names the category as the check
// names the win ("punti 5", "5+1", "9+1 (seconda)", "punti 3 SuperStar").
struct QuotaPubblicata {
  GiocoGiocata gioco = GiocoGiocata::SuperEnalotto;
  int id_estr = 0;
  GruppoData data;
  std::string sorte;
  int64_t centesimi = 0;

  friend bool operator==(const QuotaPubblicata&, const QuotaPubblicata&) = default;
};

// The words of the stakes each game takes, the first being its plain play: Lotto "estratto",
// "ambo", "terno", "quaterna", "cinquina", "ambetto", "estratto1".."estratto5" (estratto
// determinato in that position); SuperEnalotto "giocata", "superstar"; 10eLotto "giocata", "oro",
// "doppio-oro", "extra", "gong"; Win for Life "giocata".
const std::vector<std::string_view>& SortiDelGioco(GiocoGiocata gioco);

// The canonical word for `testo` in `gioco` ("ambata" is "estratto"; case is ignored), or an
// Italian message listing the game's words.
Esito<std::string> LeggiSorte(GiocoGiocata gioco, std::string_view testo);

// Whether the bet can be played as written: numbers in the game's range and count, no repeats in
// a column, wheels only for the Lotto, a stake on each sorte at most once and enough numbers for
// it, the other games' stakes as their tickets sell them, colpi and progression in agreement, a
// first draw. The message says the first fault in Italian.
Esito<Fatto> ControllaGiocata(const Giocata& giocata);

// Whether a bet's results can be stored: no more draws than colpi, amounts not negative, net
// equal to gross less tax, every win with a sorte and its numbers.
Esito<Fatto> ControllaVerifiche(const Giocata& giocata, const std::vector<VerificaColpo>& verifiche);

}  // namespace lottolab::agenda
