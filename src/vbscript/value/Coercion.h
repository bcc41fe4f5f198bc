#pragma once

// Every conversion between subtypes lives in Coercion.cpp: the `to_*` members of Variant, the
// conversion functions (CInt, CStr, ...), reading numbers from strings and writing them back, as
// Windows does for the locale. The rules in brief:
//  - Integers round half to even (CInt(2.5) = 2, CInt(3.5) = 4) before the range check, so
//    CInt(32767.5) overflows (6) while CInt(-32768.5) is -32768.
//  - Empty is 0, "" or False; Null is error 94 for every conversion; an object converts through
//    its default member (Nothing: error 91); arrays and Error values: 13.
//  - Strings read as numbers with the locale's separators: on Italian settings "1,5" is 1.5 and
//    "1.5" is 15, because the thousands separator is accepted anywhere in the integer part. Also
//    accepted: blanks around, a sign before or after, parentheses for negative, the currency
//    symbol, an exponent ("1e3"), and &H/&O prefixes (a 32-bit value). "" is 13.
//  - Booleans print as the locale's words (CStr(True) is "Vero" on Italian settings, as Windows'
//    locale-aware Boolean conversion gives), and "True"/"False", "#TRUE#"/"#FALSE#" and the
//    locale's words read back. CByte(True) is 255, every other integer conversion gives -1.
//  - Doubles print with 15 significant digits, Singles with 7, switching to "1E+20"/"1,5E-07"
//    outside 1E-05..1E+15 (1E-05..1E+07 for Singles); Currency prints up to four decimals.

#include <optional>
#include <string>
#include <string_view>

#include "vbscript/value/Locale.h"
#include "vbscript/value/Result.h"
#include "vbscript/value/Variant.h"

namespace vbs {

// Rounds half to even: what every conversion to an integer does.
double RoundHalfEven(double value);

// The value a Variant stands for when a plain value is needed: the target of a reference, the
// default member of an object (error 91 for Nothing, the object's own error, 438 usually, when it
// has no default member), the Variant itself otherwise.
Result<Variant> ValueOf(const Variant& value);

// The conversion functions. The result has the named subtype; to_* give the same rules as plain
// C++ values.
Result<Variant> ConvertTo(const Variant& value, Subtype target, const Locale& locale);

// A string read as a number with the locale's rules; nullopt when it is not one.
std::optional<double> ParseNumber(std::u16string_view text, const Locale& locale);
// A string read as a Boolean word: True/False, #TRUE#/#FALSE#, or the locale's words.
std::optional<bool> ParseBooleanWord(std::u16string_view text, const Locale& locale);

std::u16string FormatDouble(double value, const Locale& locale);
std::u16string FormatSingle(float value, const Locale& locale);
std::u16string FormatCurrency(int64_t scaled, const Locale& locale);
std::u16string FormatInteger(int64_t value);

}  // namespace vbs
