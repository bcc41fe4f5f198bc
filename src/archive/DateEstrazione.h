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

// The day of the week as scripts' Weekday numbers it: Sunday 1 .. Saturday 7.
int GiornoDellaSettimana(const GruppoData& data);

// The year of the first draw of the unified Lotto: no archive holds an earlier one.
inline constexpr int kPrimoAnnoLotto = 1871;

// Whether the day exists in its month and year (29 February only in leap years).
bool DataValida(const GruppoData& data);

// Today's date on this computer's clock, local time.
GruppoData DataOdierna();

// A date a draw can have: valid, from kPrimoAnnoLotto on, and not after the day after `oggi` (a
// results file published late in the evening may already carry the next day's date).
bool DataPossibile(const GruppoData& data, const GruppoData& oggi);

}  // namespace lottolab
