#pragma once

// What the entry points say when an exception reaches them. Every failure the program expects
// comes back as an Esito with its own message; an exception that gets this far is a failure nobody
// foresaw (a path the system refuses, memory exhausted), and the user still deserves to know, in
// Italian, what was refused and where, instead of an abort.

#include <exception>
#include <string>
#include <system_error>

namespace lottolab::app {

// The words every such message opens with, so that tests and fuzzers can tell them apart.
inline constexpr std::string_view kErroreInatteso = "errore inatteso";

// "errore inatteso: <what failed, in Italian>", on one line; paths longer than a line are cut in
// the middle. Call it inside a catch block: it looks at the exception being handled.
std::string DescriviEccezioneCorrente();

// The Italian reason for a system error code (DescrizioneErrore of archive/FileSicuri.h); the
// code's own text for codes of other categories.
std::string DescriviErroreDiSistema(const std::error_code& codice);

// A path as a message shows it: whole when short, else its start and end around an ellipsis.
std::string PercorsoPerMessaggio(const std::string& percorso);

}  // namespace lottolab::app
