#pragma once

// The prepared forms of the archive that the statistics families share during a run, each built at
// its first use: the columns the plain functions walk and the index the Turbo forms read. The
// archive of a run does not change, but a table of another length is another state of the archive
// and gets tables of its own.

#include "ClsFunctionsGeodoScript.h"
#include "stats/IndiceVincite.h"
#include "stats/Ritardi.h"

namespace lottolab::script {

const stats::ColonneRuote& ColonneDellEsecuzione(ClsFunctionsGeodoScript& lib, const TabellaEstrazioni& tab);
// One index answers the delay lists and the figures of numbers and groups alike, so a run that uses
// both families builds it once.
const stats::IndiceVincite& IndiceDellEsecuzione(ClsFunctionsGeodoScript& lib, const TabellaEstrazioni& tab);

}  // namespace lottolab::script
