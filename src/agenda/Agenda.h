#pragma once

// The agenda of the bets a user really played: an SQLite file in the base folder holding each bet,
// its check draw by draw and its wins. SQLite gives what a file of our own would have to rebuild:
// every write is one transaction, so a kill at any moment leaves each bet whole or absent, and
// several programs (the desktop and the command line) may use the file at once. Every call runs on
// the caller's thread; one Agenda object is used by one thread at a time.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "Giocata.h"
#include "Sqlite.h"

namespace lottolab::agenda {

// The agenda's file in the base folder when the configuration names none.
inline constexpr std::string_view kFileAgenda = "AgendaGiocate.db";

enum class StatoGiocate { Tutte, Aperte, Chiuse };

struct FiltroGiocate {
  StatoGiocate stato = StatoGiocate::Tutte;
  std::optional<GiocoGiocata> gioco;
};

// Money of the draws checked so far, in cents.
struct Totali {
  int64_t spesa = 0;
  int64_t lordo = 0;
  int64_t ritenuta = 0;
  int64_t netto = 0;
  int colpi_verificati = 0;
  int colpi_vincenti = 0;
  // Wins whose money is not known (a pool prize without its quota): counted in none of the sums.
  int vincite_senza_importo = 0;

  int64_t Saldo() const { return netto - spesa; }
};

// A bet is closed once all its colpi are checked, or once it won when it stops at the first win.
struct VoceAgenda {
  Giocata giocata;
  Totali totali;
  bool chiusa = false;
};

// A win the user has not looked at yet, with the draw that gave it.
struct VincitaNonVista {
  int64_t giocata = 0;
  int colpo = 0;
  int id_estr = 0;
  GruppoData data;
  VincitaColpo vincita;
};

class Agenda {
 public:
  // Opens the agenda, creating it when the file is absent and bringing an older file to the current
  // schema. A file that is not an agenda, is damaged or comes from a newer version is refused with
  // an Italian message naming it, and is left untouched.
  static Esito<Agenda> Apri(const std::filesystem::path& file);

  // Stores a bet that ControllaGiocata accepts (its id and creation time are ignored) and gives its id.
  Esito<int64_t> Aggiungi(const Giocata& giocata);
  // The bet as it was added; an unknown id, or a record that no longer makes a valid bet, fails.
  Esito<Giocata> Carica(int64_t id) const;
  // The bets that pass the filter, by id, each with its totals.
  Esito<std::vector<VoceAgenda>> Elenco(const FiltroGiocate& filtro = {}) const;
  // Removes a bet with its checks and wins; an unknown id fails.
  Esito<Fatto> Rimuovi(int64_t id);

  // Stores the check of a bet draw by draw, replacing what was stored before: element k is colpo
  // k+1. A win that was already seen stays seen.
  Esito<Fatto> SalvaVerifiche(int64_t id, const std::vector<VerificaColpo>& verifiche);
  Esito<std::vector<VerificaColpo>> Verifiche(int64_t id) const;

  Esito<Totali> TotaliGiocata(int64_t id) const;
  // The sums over the bets that pass the filter.
  Esito<Totali> TotaliComplessivi(const FiltroGiocate& filtro = {}) const;

  // Marks every win stored so far as seen, and now as the time of the last look.
  Esito<Fatto> SegnaVisione();
  // Seconds since 1970 (UTC) of the last look; none before the first.
  Esito<std::optional<int64_t>> UltimaVisione() const;
  // The wins stored since the last look, by bet and colpo.
  Esito<std::vector<VincitaNonVista>> VinciteNonViste() const;

  // Stores the quota of a category of a draw, replacing the one stored before; a game without pool
  // prizes, an empty category or an amount not above zero is refused.
  Esito<Fatto> SalvaQuota(const QuotaPubblicata& quota);
  // The quotas stored for the game, by draw and category.
  Esito<std::vector<QuotaPubblicata>> Quote(GiocoGiocata gioco) const;

  const std::filesystem::path& File() const { return m_connessione.File(); }

 private:
  explicit Agenda(Connessione connessione) : m_connessione(std::move(connessione)) {}
  Esito<Fatto> CaricaParti(Giocata& giocata) const;
  Esito<std::vector<VoceAgenda>> LeggiElenco(const FiltroGiocate& filtro) const;
  Esito<std::vector<VerificaColpo>> LeggiVerifiche(int64_t id) const;
  Esito<Fatto> ScriviVerifiche(const Giocata& giocata, const std::vector<VerificaColpo>& verifiche);

  Connessione m_connessione;
};

// Checks a bet against the draws: its results draw by draw, as far as the archive reaches.
using Verificatore = std::function<Esito<std::vector<VerificaColpo>>(const Giocata&)>;

// Checks the open bets, or only bet `id` (open or not), with `verifica` and stores each one's
// results; gives how many bets were checked. A bet whose check fails stops the run with its message;
// the bets stored before it keep their new results.
Esito<int> VerificaGiocate(Agenda& agenda, const Verificatore& verifica, std::optional<int64_t> id = std::nullopt);

}  // namespace lottolab::agenda
