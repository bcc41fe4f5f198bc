#pragma once

// Amounts of money as users write and read them: euro with up to two decimals, the decimal mark a
// comma or a point. Inside the program an amount is a whole number of cents.

#include <cstdint>
#include <string>
#include <string_view>

#include "archive/Esito.h"

namespace lottolab::agenda {

// "1", "0.5", "0,50", "12.25" in cents; a sign, a third decimal, thousands marks or more than a
// million euro are refused with an Italian message.
Esito<int64_t> LeggiImporto(std::string_view testo);

// "1,50", "-3,00", "2380,95": two decimals after a comma.
std::string FormattaImporto(int64_t centesimi);

}  // namespace lottolab::agenda
