#pragma once

// The update of the archive files behind the desktop's "Aggiorna archivio": the Lotto's from the
// operator's published results or from a results file the user already has, then, after a download,
// every other game whose results address lottolab.ini gives, as `lottolab aggiorna` does. A Lotto
// archive that grew gives the evening 10eLotto again; then the agenda's open bets of every game whose
// archive grew are checked, as the command line's import checks them. Each step's failure is kept and the next step
// runs all the same. Everything here blocks for as long as the downloads and the imports take, so
// the window runs it on another thread; it touches only files, never the tables the windows show,
// which are reloaded afterwards.

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "agenda/VerificaAgenda.h"
#include "app/Configurazione.h"
#include "gui/archivio/ImportazioneGioco.h"
#include "rete/Trasferimento.h"

namespace lottolab::gui {

// The evening 10eLotto derived again from the Lotto archive that has just grown.
struct DieciELottoRicavato {
  bool riuscito = true;
  bool cambiato = false;  // evenings were added or completed
  std::string riga;       // what was done, or why it was not, in one line
};

// What an update did to each archive it touched.
struct EsitoAggiornamento {
  EsitoImportazione lotto;
  // Nothing when no Lotto draw was added or there is no 10eLotto archive to keep up.
  std::optional<DieciELottoRicavato> dieci_e_lotto;
  struct DelGioco {
    Gioco gioco;
    EsitoImportazione esito;
  };
  // Each game whose results address is configured, in the order of the menus.
  std::vector<DelGioco> giochi;
  // The agenda's bets checked on the archives that grew; nothing when none grew or there is no agenda.
  std::optional<Esito<agenda::EsitoVerificaAgenda>> agenda;

  // The games of the agenda whose archives grew.
  std::vector<agenda::GiocoGiocata> GiochiCresciuti() const;
  // Whether every step succeeded.
  bool Riuscito() const;
  // Whether an archive of another game than the Lotto changed, so that its windows must reload it.
  bool GiochiCambiati() const;
};

class AggiornamentoArchivio {
 public:
  explicit AggiornamentoArchivio(app::Configurazione configurazione);

  // Appends the draws of `file` (text, or a zip holding it) that the Lotto archive lacks.
  EsitoAggiornamento ImportaDaFile(const std::filesystem::path& file) const;

  // Downloads the Lotto's results from the configured address and imports them, then does the same
  // for every other game whose address is configured; `passo` is told, in the user's words, each
  // archive as its turn comes and the megabytes downloaded. `annullato` is asked during every
  // download: once it says true, the download under way and those after it fail as cancelled,
  // leaving their archives untouched (an import, once started, always finishes).
  EsitoAggiornamento Scarica(const std::function<void(std::string)>& passo = {},
                             const std::function<bool()>& annullato = {}) const;

 private:
  EsitoAggiornamento ImportaLotto(const std::filesystem::path& file) const;
  EsitoImportazione ScaricaGioco(Gioco gioco, const rete::AvanzamentoTrasferimento& avanzamento) const;

  app::Configurazione m_configurazione;
};

// The agenda's open bets of `giochi` checked on the configured archives, as an update checks them;
// nothing when there is no agenda or no game to check. Blocks: the windows run it off their thread.
std::optional<Esito<agenda::EsitoVerificaAgenda>> VerificaAgendaDopoAggiornamento(
    const app::Configurazione& configurazione, const std::vector<agenda::GiocoGiocata>& giochi);

// "Agenda delle giocate: verificate 3 giocate, 1 vincita da vedere.", or why it was not checked;
// the bets not checked join `avvisi`.
std::string RigaAgenda(const Esito<agenda::EsitoVerificaAgenda>& verifica, std::vector<std::string>& avvisi);

// The report of an update in the user's words: a line for the Lotto, one for the 10eLotto derived
// again, one for each other game, one for the agenda, then what the user should check, the longest
// lists cut short.
std::string TestoAggiornamento(const EsitoAggiornamento& esito);

}  // namespace lottolab::gui
