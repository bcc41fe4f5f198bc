#pragma once

// Date literals (#1/2/2003 10:30 PM#) are read the way VBScript reads them in source code: month
// before day whatever the user's locale, because a script must mean the same date on every machine.

#include <optional>
#include <string_view>

namespace vbs {

// The OLE date serial (days since 30/12/1899, the time of day as the fraction) of the text between
// the two '#'; nullopt when it is not a valid date, time or date and time. A date without a year
// takes the current year, as VBScript does.
std::optional<double> ParseDateLiteral(std::u16string_view text);

}  // namespace vbs
