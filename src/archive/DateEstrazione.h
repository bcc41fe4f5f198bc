#pragma once

// Dates of draws as users write them: "GG/MM/AAAA".

#include <string>
#include <string_view>

#include "Esito.h"
#include "Estrazione.h"

namespace lottolab {

// Day and month with two digits, year with four (or its last two), joined by "/".
std::string FormattaData(const GruppoData& data, bool anno_breve = false);

// Splits the text at "/" into day, month and year; the annual index of `base` is kept. Any other
// number of parts, or a part that is not a whole number, is refused with the user's message.
Esito<GruppoData> LeggiData(std::string_view testo, GruppoData base = {});

// Orders two dates by year, month and day; the annual index takes no part.
int ConfrontaDate(const GruppoData& a, const GruppoData& b);

// Days since 1/1/1900 (proleptic Gregorian), for measuring the gap between two dates.
int GiornoAssoluto(const GruppoData& data);

}  // namespace lottolab
