#pragma once

// The check of the agenda's bets against the archives, as the command line and the desktop both run
// it after an update and on demand: each bet goes to its game's engine (VerificaLotto.h for the
// Lotto, VerificaGioco.h for the others), each one's results are stored, and a bet that cannot be
// checked is told without stopping the others.

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Agenda.h"
#include "VerificaGioco.h"
#include "archive/TabellaEstrazioni.h"
#include "archive/TabellaGioco.h"

namespace lottolab::agenda {

// The draws the bets are checked on; a game left empty is not checked. The tables are only read.
struct ArchiviGiocate {
  const TabellaEstrazioni* lotto = nullptr;
  const TabellaGioco* superenalotto = nullptr;
  const TabellaGioco* dieci_e_lotto = nullptr;  // the evening 10eLotto
  const TabellaGioco* win_for_life = nullptr;

  // Whether the game's table is given.
  bool Ha(GiocoGiocata gioco) const;
  // The table of a game other than the Lotto, or nothing.
  const TabellaGioco* AltroGioco(GiocoGiocata gioco) const;
};

// The bet's results draw by draw, by its game's engine on its game's table, a pool prize taking the
// quota given for it; refused, with a message naming the archive, when that table is not given.
Esito<std::vector<VerificaColpo>> VerificaGiocataAgenda(const Giocata& giocata, const ArchiviGiocate& archivi,
                                                        const QuoteNote& quote = {});

struct EsitoVerificaAgenda {
  int verificate = 0;
  // A line for each bet that could not be checked, and for each game whose open bets wait for its archive.
  std::vector<std::string> non_verificate;
  int vincite_da_vedere = 0;  // every win not seen yet, this check's and the earlier ones'
};

struct SceltaVerifica {
  std::optional<int64_t> id = std::nullopt;  // one bet, open or closed; otherwise every open bet
  std::vector<GiocoGiocata> giochi = {};     // only the open bets of these games; empty: of every game
};

// Told before each bet is checked: how many were checked so far, and how many there are.
using PassoVerifica = std::function<void(int fatte, int totali)>;

// Checks the bets chosen and stores each one's results. Fails only when the agenda itself cannot be
// read or written, or when the one bet named is not in it. May take a while: run it off a window's
// thread, with an Agenda of that thread.
Esito<EsitoVerificaAgenda> VerificaAgenda(Agenda& agenda, const ArchiviGiocate& archivi,
                                          const SceltaVerifica& scelta = {}, const PassoVerifica& passo = {});

// Stores the quota, then checks again every bet of its game whose stored check holds a win of that
// category in that draw, so that those wins take its money; what the check did is told as VerificaAgenda tells it.
Esito<EsitoVerificaAgenda> ApplicaQuota(Agenda& agenda, const ArchiviGiocate& archivi, const QuotaPubblicata& quota);

// The games of the bets that VerificaAgenda would check with `scelta`, so that a caller loads only
// their archives.
Esito<std::vector<GiocoGiocata>> GiochiDaVerificare(const Agenda& agenda, const SceltaVerifica& scelta = {});

// The archives of some games read from their files, as ArchiviGiocate points to them. A game whose
// file does not exist is left out, so its bets wait for it; one that cannot be read is told.
struct ArchiviCaricati {
  std::optional<TabellaEstrazioni> lotto;
  std::optional<TabellaGioco> superenalotto, dieci_e_lotto, win_for_life;
  std::vector<std::string> errori;

  ArchiviGiocate Archivi() const;
};
using FileArchivio = std::function<std::filesystem::path(GiocoGiocata)>;
ArchiviCaricati CaricaArchivi(const std::vector<GiocoGiocata>& giochi, const FileArchivio& file);

// VerificaAgenda on the agenda of `file_agenda` with the archives of the games it needs, read
// from their files; what could not be read joins the bets not checked. An agenda file that does not
// exist has nothing to check and is not created.
Esito<EsitoVerificaAgenda> VerificaAgendaSuiFile(const std::filesystem::path& file_agenda, const FileArchivio& file,
                                                 const SceltaVerifica& scelta = {});

// "1 giocata" or "3 giocate": how the messages count bets.
std::string ContaGiocate(int quante);

}  // namespace lottolab::agenda
