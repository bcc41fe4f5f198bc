#pragma once

// Reading the published results files, one draw or one wheel a line: fields separated by runs of
// tabs or blanks, whole numbers without sign, dates as "AAAA/MM/GG".

#include <string_view>

#include "Estrazione.h"

namespace lottolab {

// The next field of a line; empty at the end.
std::string_view ProssimoCampo(std::string_view& resto);

// A whole number of decimal digits and nothing else.
bool LeggiIntero(std::string_view testo, int& valore);

// "AAAA/MM/GG" as the operator writes it; no other order is accepted, so that a file in the user's
// own day/month/year form is refused instead of being read with day and year swapped.
bool LeggiDataRisultati(std::string_view testo, GruppoData& data);

}  // namespace lottolab
