#pragma once

// The arithmetic of the 90 numbers on their circle: reduction into 1..90, cyclometric differences
// and distances, and the classifications by last digit, digit sum, decade and vertibile.
//
// Scripts hand these functions integers, doubles or numeric text; the script layer turns text into
// its leading numeric value, so every number arrives here as a double. Wheel indices and circle
// sizes are 16-bit integers, as the script converts them. Results are 16-bit integers and truth
// values are -1 (true) and 0 (false), the script's own encoding.
//
// Several rules work on the decimal text of the number rather than on its value: the last digit
// is the last character of that text, the digit sum adds the characters, the decade and the
// vertibile look at one or two characters. The text is written as the script writes a number: up
// to 15 significant digits, no trailing zeros, an exponent ("1E+20") from 1E+15 up, a leading "-"
// for negatives. A character that is not a digit ("-", ".", "E") has the value 0. Those rules are
// what users' scripts have always relied on, quirks included, so they are kept as they are.
//
// Nothing here fails. Only the reduction FuoriX can meet a number too large for it; it then answers
// the base, and RiduciInX lets a caller that has a window tell the user why. Any other result that
// would not fit in 16 bits, which only absurd arguments produce, is held at the nearest limit.

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace lottolab::stats {

// The script's truth values.
inline constexpr int16_t kVero = -1;
inline constexpr int16_t kFalso = 0;

// n reduced into 1..base: n and base are rounded half to even, the remainder takes the sign of n,
// and a value at or below 0 wraps upwards (0 -> base, -1 -> base - 1). Nullopt when the rounded n,
// or the result, does not fit in 16 bits (NaN and infinities included); a base of 0 gives 0.
std::optional<int16_t> RiduciInX(double n, int16_t base);

// RiduciInX, answering the base when n is too large for it.
int16_t FuoriX(double n, int16_t base);
int16_t Fuori90(double n);
int16_t Fuori49(double n);
int16_t Fuori45(double n);
int16_t Fuori42(double n);

// The user's message for a number that FuoriX cannot reduce:
// "Numero <n> troppo grande la funzione tornera <base>".
std::string MessaggioNumeroTroppoGrande(double n, int16_t base);

// The number opposite n on the circle: Fuori90(n + 45).
int16_t Diametrale(double n);

// The number five places further on inside n's decade, counted cyclically; 90 belongs to the first
// decade, where it comes before 1 (so 5 <-> 90, 4 <-> 9). 0 for anything that is not one of 1..90.
int16_t DiametraleD(double n);

// The value of the last character of n's decimal text: 90 -> 0, -7 -> 7.
int16_t Cadenza(double n);

// The digit sum of n's decimal text, repeated until the value is at most 9; a value already at
// most 9 (0 and negatives included) is returned as it is, rounded.
int16_t Figura(double n);

// The tens digit: 0 for n <= 0 and for one-character texts, 9 for 90, the first character of a
// two-character text, 0 for longer texts.
int16_t Decina(double n);

// 1..10 -> 0, 11..20 -> 1, ..., 81..90 -> 8; anything else (fractions between ranges too) -> 0.
int16_t DecinaNaturale(double n);

// 1..9 and 90 -> 1, 10..19 -> 2, ..., 80..89 -> 9; anything else -> 0.
int16_t DecinaCabalistica(double n);

// The controfigura group 1..10 of n, 0 for a number in no group. The groups are the historical
// ones: 37 is listed twice, so it belongs to group 4, and 38 belongs to none.
int16_t ControFigura(double n);

// The radical group 1..8 of n (the digit d with d0, the twin dd and d9: 1, 10, 11, 19 are group 1),
// 0 for a number in no group, 9 and 90 among them.
int16_t Radicale(double n);

// The vertibile: -1 for n <= 0; a one-digit number gains a trailing 0 (5 -> 50); a twin turns into
// its digit followed by 9 (33 -> 39) and a number ending in 9 into the twin of its first digit
// (39 -> 33); any other number has its digits swapped (12 -> 21, 90 -> 9). A text longer than two
// characters uses its first and last character as the two digits. On 1..90 the function is its
// own inverse.
int16_t vert(double n);

// The diametral wheel: 1..5 <-> 6..10 (BA-NA, CA-PA, FI-RO, GE-TO, MI-VE); any other index,
// NZ included, unchanged.
int16_t RuotaDiametrale(int16_t r);

// The twin wheel 11 - r for 1..10 (BA-VE, CA-TO, FI-RO, GE-PA, MI-NA); any other index unchanged.
int16_t RuotaGemella(int16_t r);

// The complement of n (rounded) to x, x = 0 meaning 90: x - n when that is positive, otherwise x.
int16_t ComplAdX(double n, int16_t x);

// -1 when n's decimal text has at least two characters and its first and last have the same value
// (11, 22, ..., 88; also -10, whose sign counts as 0); 0 otherwise. n is not reduced first.
int16_t Gemello(double n);

// The directed difference a - b on the circle of 90: a and b rounded, 90 added while the difference
// is at or below 0, so (5, 10) -> 85 and (7, 7) -> 90. A positive difference is not reduced.
int16_t DiffCiclometrica(double a, double b);

// DiffCiclometrica on a circle of x numbers; x below 1 means 90.
int16_t DiffCiclometricaX(double a, double b, int16_t x);

// The shortest distance between a and b reduced into 1..90: 1..45 for different numbers and 90,
// never 0, for equal ones.
int16_t Distanza(double a, double b);

// The shortest distance on a circle of x numbers (x below 1 means 90) between a and b taken as
// they are, only rounded: |a - b|, folded when it exceeds x / 2, with 0 reported as x. Callers that
// need numbers of the circle reduce them first, as Distanza does.
int16_t DistanzaX(double a, double b, int16_t x);

// -1 when Fuori90(n) is even, else 0.
int16_t Pari(double n);

// -1 when Fuori90(n) is odd, else 0.
int16_t Dispari(double n);

// -1 when Fuori90(n) is a prime (2, 3, 5, ..., 89), else 0.
int16_t Primo(double n);

// The two-digit number written backwards: Fuori90(n) with a leading 0 when it has one digit, its
// two digits swapped and the result brought back into 1..90 (12 -> 21, 5 -> 50, 39 -> 93 -> 3,
// 90 -> 9). Unlike vert, twins stay themselves and numbers ending in 9 get no special treatment.
int16_t Trasposizione(double n);

// The pyramid of a group of numbers: each is reduced with Fuori90 and written with two digits,
// the digits are set in one row, and each row is replaced by the last digits of the sums of its
// neighbouring pairs until two digits remain; those two digits, as a number reduced into 1..90
// (00 -> 90), are the top. 0 for an empty group.
int16_t Piramide(std::span<const double> numeri);

}  // namespace lottolab::stats
