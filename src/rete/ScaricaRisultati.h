#pragma once

// Download of the results file that the operator publishes, for the archive update.

#include <filesystem>
#include <string>

#include "Trasferimento.h"

namespace lottolab::rete {

// Fetches `indirizzo` (http, https, ftp or file) into `destinazione`, replacing it and creating its
// folder when missing (a new installation has none yet), and returns its path. Gives up after 30 s
// without a connection or 300 s in all, on an HTTP status of 400 or more, past 256 MB, or when
// `avanzamento` says so; on failure nothing is written, an older `destinazione` stays as it was, and
// the message says why ("Impossibile scaricare <indirizzo>: <reason>"). Blocks: run it off the
// window's thread.
Esito<std::filesystem::path> ScaricaRisultati(const std::string& indirizzo, const std::filesystem::path& destinazione,
                                              AvanzamentoTrasferimento avanzamento = {});

}  // namespace lottolab::rete
