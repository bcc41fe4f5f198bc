#pragma once

// Reading a line of a Lotto ticket from the command line's options (--sorte, --numeri, --ruote,
// --posta, --posizione), shared by the commands on prizes and bets.

#include <optional>
#include <string>
#include <vector>

#include "Argomenti.h"
#include "stats/PremiLotto.h"

namespace lottolab::cli {

// The value of option `nome`, or `predefinito` when it was not given.
std::string Opzione(const Argomenti& argomenti, const std::string& nome, const std::string& predefinito = "");

// "12,34,56".
Esito<std::vector<int>> LeggiNumeri(const std::string& testo);

// A date GG/MM/AAAA; today when empty.
Esito<GruppoData> LeggiDataPremio(const std::string& testo);

// The line the options name, checked as it can be played on `data`, with the wheels expanded. With
// `numeri` the line plays those numbers and --numeri is not asked for.
Esito<stats::PuntataLotto> LeggiPuntata(const Argomenti& argomenti, const GruppoData& data,
                                        std::optional<std::vector<int>> numeri = std::nullopt);

}  // namespace lottolab::cli
