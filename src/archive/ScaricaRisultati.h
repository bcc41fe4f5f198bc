#pragma once

// Download of the results file that the operator publishes. The file lands under a temporary name
// beside its destination and takes the destination's name only once it is complete, so an
// interrupted download never leaves a truncated file where the import would read it.

#include <filesystem>
#include <string>

#include "Esito.h"

namespace lottolab {

// Fetches `indirizzo` (http, https, ftp or file) into `destinazione`, replacing it, and returns its
// path. Gives up after 30 s without a connection or 120 s in all, and fails on an HTTP status of 400
// or more; on failure nothing is written, an older `destinazione` stays as it was, and the message
// says why ("Impossibile scaricare <indirizzo>: <reason>"). Blocks: run it off the window's thread.
Esito<std::filesystem::path> ScaricaRisultati(const std::string& indirizzo, const std::filesystem::path& destinazione);

}  // namespace lottolab
