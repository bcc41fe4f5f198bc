#pragma once

// The commands of `lottolab`. Each takes the words that follow its name and returns the exit status.

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

#include "Contesto.h"
#include "agenda/Giocata.h"

namespace lottolab::cli {

using Parole = std::vector<std::string>;

int ComandoImporta(Contesto& contesto, const Parole& parole);
// Prints the count and the dates of the draws; a damaged archive is told on stderr and fails it.
int ComandoInfo(Contesto& contesto, const Parole& parole);
// Cuts an archive's partial trailing record, after copying the archive beside it.
int ComandoRipara(Contesto& contesto, const Parole& parole);
int ComandoEstrazione(Contesto& contesto, const Parole& parole);
// Updates the Lotto archive and each other game's whose results address is configured, or with
// --gioco that game alone; a game that fails is told and the others go on.
int ComandoAggiorna(Contesto& contesto, const Parole& parole);
// The same three for the game of --gioco.
int ComandoImportaGioco(Contesto& contesto, const Parole& parole);
// What importa and aggiorna share: a results file, text or zip, imported into the Lotto archive (and
// the evening 10eLotto derived again from it) or into the archive of the game of --gioco, what was
// done printed on `out`. The first shows its failure and gives the exit status; the second gives
// the failure back, so that aggiorna may name the game.
int ImportaLotto(Contesto& contesto, const std::filesystem::path& file);
Esito<int> ImportaGioco(Contesto& contesto, const std::filesystem::path& file);
int ComandoInfoGioco(Contesto& contesto, const Parole& parole);
int ComandoEstrazioneGioco(Contesto& contesto, const Parole& parole);

enum class Statistica { Ritardo, Frequenza, Storico };
int ComandoStatistica(Contesto& contesto, const Parole& parole, Statistica statistica);
// The same for the game of --gioco, where a draw is one set of numbers.
int ComandoStatisticaGioco(Contesto& contesto, const Parole& parole, Statistica statistica);
int ComandoTabellone(Contesto& contesto, const Parole& parole);
// Every number of the game of --gioco, at sorte 1: delay, frequency, historical maximum.
int ComandoTabelloneGioco(Contesto& contesto, const Parole& parole);
// Runs a plain VBScript program with a WScript object; its exit status is the script's.
int ComandoVbs(Contesto& contesto, const Parole& parole);
// Runs a user's script with the library, its includes and the run sequence; the text output goes to
// the context's `out`, messages and the error report to its `err`.
int ComandoEsegui(Contesto& contesto, const Parole& parole);
// Lists the library's public names, each with whether it is implemented and its arguments, or
// writes a reference page of them with --html FILE.
int ComandoFunzioni(Contesto& contesto, const Parole& parole);
// Writes the template of a new script; an existing file is left alone.
int ComandoNuovoScript(Contesto& contesto, const Parole& parole);
// Prints the vertices, lines and conditions of a structure file; needs no archive.
int ComandoStruttura(Contesto& contesto, const Parole& parole);

// Searches the archive for a user figure saved in a structure file; lists each figure found and,
// with --colpi, what its play did next.
int ComandoCercaFigura(Contesto& contesto, const Parole& parole);

// What a line of a ticket pays for each count of numbers drawn: gross, tax and net; with --gioco the
// 10eLotto's table, or a SuperEnalotto or Win for Life quota taxed.
int ComandoPremio(Contesto& contesto, const Parole& parole);
// A Lotto bet checked against the archive draw by draw, with its totals.
int ComandoVerificaGiocata(Contesto& contesto, const Parole& parole);
int ComandoRetroverifica(Contesto& contesto, const Parole& parole);
// The agenda of the bets played: aggiungi, elenco, rimuovi, verifica.
int ComandoGiocata(Contesto& contesto, const Parole& parole);
// After an import that added draws to configured archives: the agenda's open bets of those games
// checked, and one line saying how many wins wait to be seen; failures are warnings.
void VerificaAgendaDopoImportazione(Contesto& contesto, const std::vector<agenda::GiocoGiocata>& giochi);

// The whole command line: global options, then a command and its words. An exception that escapes
// a command ends it with one line on `err` opening with app::kErroreInatteso, and status 1.
int EseguiLottolab(const Parole& argomenti, std::ostream& out, std::ostream& err);

}  // namespace lottolab::cli
