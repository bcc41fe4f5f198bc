#pragma once

// The bets of a script's run. A script fills numbered slots (ImpostaGiocata, AddLunghettaInGiocata,
// ImpostaProgressione and their game forms), then plays them all after a draw it names (Gioca): a
// back-test places a bet after every draw it studies, so the run's ledger holds many bets that
// overlap in time. Each bet is checked at once, over the draws that follow it, by the prize engine
// (stats/Giocata.h, stats/GiocataGioco.h) and kept as its account draw by draw in one form for
// every game, so that totals, summaries and accounts never ask which game a bet played. A run keeps
// two ledgers: the real one and the virtual one, whose bets are tracked without money staked and
// never enter the real totals.

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "ArchiviGiochi.h"
#include "ClsFunctionsGeodoScript.h"
#include "TabellaOutput.h"
#include "stats/Giocata.h"
#include "stats/GiocataGioco.h"

namespace lottolab::script {

// The game a bet plays: the Lotto, or the game of a suffix in the order of Suffisso.
enum class GiocoGiocata : unsigned char { Lotto, SE, DL, WF, FT };
GiocoGiocata GiocoDi(Suffisso suffisso);

// A Lotto bet set in a slot: everything but its first draw, which Gioca gives. `sorte_arresto` 0
// plays every colpo; k stops at the first win of a sorte of k numbers or more (the estratto
// determinato counts as an estratto, the ambetto as an ambo).
struct SlotLotto {
  stats::Giocata giocata;
  int sorte_arresto = 1;
};

// A bet of another game set in a slot: one stake per column at each colpo (the progression's, the
// last repeated, when there is one). `sorte_arresto` k stops at the first win of k hits or more.
struct SlotGioco {
  std::vector<std::vector<int>> colonne;
  stats::Centesimi posta = stats::kCentesimiPerEuro;
  std::vector<stats::Centesimi> progressione;
  stats::OpzioneDieciELotto opzione = stats::OpzioneDieciELotto::Base;
  int colpi = 1;
  int sorte_arresto = 1;

  stats::Centesimi AlColpo(int colpo) const;
};

// One draw of a bet's account.
struct ColpoConto {
  int colpo = 0;
  int id_estr = 0;
  GruppoData data;
  stats::Centesimi spesa = 0;
  stats::Tassato vinto;
  stats::Centesimi saldo = 0;
  std::vector<std::string> vincite;  // each win as the user reads it: "ambo su BA", "5+1", "punti 4"
  bool vincente = false;             // FT hits with no prize are shown but win nothing
};

enum class StatoGiocata { Persa, Vinta, Aperta, Interrotta };

struct GiocataEffettuata {
  GiocoGiocata gioco = GiocoGiocata::Lotto;
  int indice = 0;
  int dopo = 0;  // the draw after which it was placed: it plays from the next one
  int colpi = 0;
  std::vector<ColpoConto> conto;
  stats::Centesimi spesa = 0;
  stats::Tassato vinto;
  int colpi_mancanti = 0;  // colpi past the end of the archive, still to be played
  bool interrotta = false;
  bool importi_mancanti = false;                   // a win whose money is not known (a quota not given)
  std::optional<stats::EsitoGiocata> esito_lotto;  // the engine's account, for the Lotto's summary

  int PrimoColpoVincente() const;
  StatoGiocata Stato() const;
};

class RegistroGiocate {
 public:
  std::map<int, SlotLotto> lotto;
  std::array<std::map<int, SlotGioco>, kNumeroSuffissi> giochi;
  std::vector<GiocataEffettuata> effettuate;

  // Closes the open bets: their colpi still to be played are dropped.
  void InterrompiAperte();
  void Dimentica() { *this = RegistroGiocate{}; }
};

// The run's state: the real and the virtual ledger, and the FT prizes per count of hits.
struct StatoGiocate {
  RegistroGiocate reale;
  RegistroGiocate virtuale;
  std::map<int, stats::Centesimi> premi_ft;
};

// ---- Arguments ----

// The slots a script may use: 1..kMassimoIndice.
inline constexpr int kMassimoIndice = 10000;

// The most stakes a progression holds, one a colpo: far more colpi than any bet plays.
inline constexpr size_t kMassimaProgressione = 10000;

// Argument i as a slot, 1..kMassimoIndice.
vbs::Result<int> IndiceArgomento(const vbs::CallArgs& args, size_t i);
// The same when it may be omitted: none then, meaning every slot.
vbs::Result<std::optional<int>> IndiceFacoltativo(const vbs::CallArgs& args, size_t i);
// Argument i as the numbers of a column, as given: one value or an array of any bounds (the Empty
// elements passed over). Whole numbers only; the range is the game's to check.
vbs::Result<std::vector<int>> NumeriGiocati(const vbs::CallArgs& args, size_t i);
// A value in euro as cents: not negative, at most two decimals; `cosa` names it in the refusal.
vbs::Result<stats::Centesimi> CentesimiDi(const vbs::Variant& valore, const vbs::Locale& locale, std::string_view cosa);
// Argument i as stakes in euro, one per colpo, in the array's order: the progression.
vbs::Result<std::vector<stats::Centesimi>> ProgressioneArgomento(const vbs::CallArgs& args, size_t i);
// Argument i as a Lotto sorte of aPoste's numbering: 1..5 estratto..cinquina, 6..10 the estratto
// determinato in position 1..5 (EDET1_..EDET5_), 11 the ambetto.
vbs::Result<stats::PostaSorte> SorteGiocataArgomento(const vbs::CallArgs& args, size_t i);
// Argument i as aPoste: the stake in euro of each sorte, indexed as SorteGiocataArgomento numbers them;
// 0 or Empty leaves the sorte out. At least one stake.
vbs::Result<std::vector<stats::PostaSorte>> PosteArgomento(const vbs::CallArgs& args, size_t i);
// Argument i as SorteArresto, 0..massima (1 when omitted).
vbs::Result<int> SorteArrestoArgomento(const vbs::CallArgs& args, size_t i, int massima);

// ---- Playing ----

// Whether the slot can be played from draw `prima` (the archive's last draw when `prima` is past
// it): the engine's checks, and otherwise the user's message after `dove` ("giocata 2").
Esito<Fatto> ControllaSlotLotto(const SlotLotto& slot, std::string_view dove, int prima, const TabellaEstrazioni& tab);
// The account of a checked slot placed after draw `dopo`; a bet placed after the last draw has all
// its colpi still to play.
GiocataEffettuata GiocaSlotLotto(const SlotLotto& slot, int indice, int dopo, const TabellaEstrazioni& tab);

// The same for a slot of another game, checked here: refused, with the user's message naming the
// slot, for columns the game does not take, a stake it does not sell, a 10eLotto draw before its
// prize table, and so on.
Esito<GiocataEffettuata> GiocaSlotGioco(const SlotGioco& slot, GiocoGiocata gioco, int indice, int dopo,
                                        const TabellaGioco& tab, const std::map<int, stats::Centesimi>& premi_ft);

// ---- Reporting ----

struct Totali {
  int giocate = 0;
  int colpi = 0;
  stats::Centesimi spesa = 0;
  stats::Tassato vinto;
  stats::Centesimi Guadagno() const { return vinto.netto - spesa; }
};
// Over the bets of every game, or of slot `indice` of every game.
Totali Somma(const std::vector<GiocataEffettuata>& effettuate, std::optional<int> indice = std::nullopt);

// The Lotto bets as one account in the order of the draws, several bets in one draw summed into one
// colpo, and the engine's summary of it (longest run without wins and largest fall over the run).
stats::Riepilogo RiepilogoLotto(const std::vector<GiocataEffettuata>& effettuate);

// The account draw by draw of the game's bets (of slot `indice` only, when given), several bets in
// one draw summed, as a table: draw, date, bets, spent, gross, net, balance, wins.
TabellaOutput TabellaResoconto(const std::vector<GiocataEffettuata>& effettuate, GiocoGiocata gioco,
                               std::optional<int> indice);

// The summary of the Lotto bets as a table of two columns.
TabellaOutput TabellaRiepilogo(const std::vector<GiocataEffettuata>& effettuate);

// One line for a bet just played: won or lost, where each win came, the money.
std::string RigaGiocata(const GiocataEffettuata& giocata);

// Writes a table into the run's page, when open, and as columns into the text output.
void ScriviTabella(ClsFunctionsGeodoScript& lib, const TabellaOutput& tabella);

}  // namespace lottolab::script
