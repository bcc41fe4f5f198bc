#pragma once

// Reading the command line's words: options with a value, wheel lists, numbers and draw references.
// Every refusal is a one-line Italian message for the user.

#include <map>
#include <string>
#include <vector>

#include "archive/Esito.h"
#include "archive/TabellaEstrazioni.h"
#include "archive/TabellaGioco.h"
#include "stats/Ritardi.h"

namespace lottolab::cli {

// Options ("--nome valore") and plain words of one command, in the order given.
struct Argomenti {
  std::map<std::string, std::string> opzioni;
  std::vector<std::string> parole;
};

// Splits the words; only the listed options are accepted and each needs a value.
Esito<Argomenti> SeparaArgomenti(const std::vector<std::string>& parole, const std::vector<std::string>& ammesse);

// "BA,VE" or "TT" (all wheels, index 12); codes as the wheels are known, NZ for Nazionale.
Esito<std::vector<int>> LeggiRuote(const std::string& testo);
Esito<int> LeggiRuota(const std::string& testo);
Esito<int> LeggiNumero(const std::string& testo);
Esito<int> LeggiSorte(const std::string& testo);
// "1,3": the positions that take part, 1..5.
Esito<stats::Posizioni> LeggiPosizioni(const std::string& testo);
// A draw index of the table, or a date naming the last draw on or before it.
Esito<int> LeggiRiferimentoEstrazione(const TabellaEstrazioni& tabella, const std::string& testo);
Esito<int> LeggiRiferimentoEstrazione(const TabellaGioco& tabella, const std::string& testo);

// The range of draws that --inizio and --fine name; the whole archive by default.
struct Intervallo {
  int inizio = 1;
  int fine = 0;
};
Esito<Intervallo> LeggiIntervallo(const TabellaEstrazioni& tabella, const Argomenti& argomenti);
Esito<Intervallo> LeggiIntervallo(const TabellaGioco& tabella, const Argomenti& argomenti);

}  // namespace lottolab::cli
