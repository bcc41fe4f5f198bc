// Numbers in other forms: Hex and Oct, the whole-number functions Fix, Int and Round, and IsDate.
// Fix, Int and Round keep the argument's subtype (a Currency stays a Currency, a Single a Single);
// a string is read as a Double, Empty gives Integer 0 and Null gives Null.

#include <cmath>
#include <optional>
#include <string>

#include "vbscript/builtins/Builtins.h"
#include "vbscript/value/Coercion.h"
#include "vbscript/value/DateTime.h"

namespace vbs {

namespace {

// ---- Hex and Oct ----

// The bit pattern Hex and Oct print: Integer, Byte and Boolean values as 16 bits (Hex(-1) is
// "FFFF"), everything else rounded to a Long (Hex(-32768) is "FFFF8000", since the literal is a
// Long). Nullopt for Null.
Result<std::optional<uint32_t>> DigitsValue(const CallArgs& args) {
  VBS_TRY_ASSIGN(auto plain, args.Value(0));
  const Variant& v = plain;
  if (v.is_null()) return std::optional<uint32_t>();
  if (v.is_integer()) return std::optional<uint32_t>(static_cast<uint16_t>(v.as_integer()));
  if (v.is_byte()) return std::optional<uint32_t>(v.as_byte());
  if (v.is_boolean()) return std::optional<uint32_t>(v.as_boolean() ? 0xFFFFu : 0u);
  VBS_TRY_ASSIGN(auto whole, v.to_long(args.locale()));
  return std::optional<uint32_t>(static_cast<uint32_t>(whole));
}

template <unsigned kBits>
Result<Variant> DigitsFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto value, DigitsValue(args));
  if (!value) return Variant::Null();
  uint32_t rest = *value;
  std::u16string digits;
  do {
    digits.insert(digits.begin(), u"0123456789ABCDEF"[rest & ((1u << kBits) - 1)]);
    rest >>= kBits;
  } while (rest != 0);
  return Variant::String(digits);
}

// ---- Fix, Int, Round ----

enum class Direction { TowardZero, Down };

double WholePart(double value, Direction direction) {
  return direction == Direction::TowardZero ? std::trunc(value) : std::floor(value);
}

int64_t WholeCurrency(int64_t scaled, Direction direction) {
  int64_t whole = scaled / kCurrencyScale * kCurrencyScale;
  if (direction == Direction::Down && whole > scaled) whole -= kCurrencyScale;
  return whole;
}

template <Direction direction>
Result<Variant> WholeFunction(Frame&, CallArgs& args) {
  auto plain = args.Value(0);
  if (!plain) return plain;
  const Variant& v = *plain;
  switch (v.subtype()) {
    case Subtype::Null:
    case Subtype::Byte:
    case Subtype::Integer:
    case Subtype::Long: return v;
    case Subtype::Empty: return Variant::Integer(0);
    case Subtype::Boolean: return Variant::Integer(v.as_boolean() ? -1 : 0);
    case Subtype::Single: return Variant::Single(static_cast<float>(WholePart(v.as_single(), direction)));
    case Subtype::Currency: return Variant::Currency(WholeCurrency(v.as_currency(), direction));
    case Subtype::Date: return Variant::Date(WholePart(v.as_date(), direction));
    default: {
      VBS_TRY_ASSIGN(auto real, v.to_double(args.locale()));
      return Variant::Double(WholePart(real, direction));
    }
  }
}

// Rounds half to even at `digits` decimals, scaling by a power of ten first: 0.125 rounds to 0.12
// and 1.005, which is really 1.00499..., to 1.
double RoundToDigits(double value, int32_t digits) {
  if (digits == 0) return RoundHalfEven(value);
  const double scale = std::pow(10.0, digits);
  const double scaled = value * scale;
  if (!std::isfinite(scaled)) return value;
  return RoundHalfEven(scaled) / scale;
}

int64_t RoundCurrency(int64_t scaled, int32_t digits) {
  if (digits >= 4) return scaled;
  int64_t unit = 1;
  for (int32_t i = digits; i < 4; ++i) unit *= 10;
  int64_t whole = scaled / unit;
  const int64_t rest = scaled % unit;
  if (2 * rest > unit || (2 * rest == unit && whole % 2 != 0)) ++whole;
  if (2 * rest < -unit || (2 * rest == -unit && whole % 2 != 0)) --whole;
  return whole * unit;
}

// Round(number [, digits]): banker's rounding; digits below 0 are error 5. Booleans and the
// integer subtypes come back unchanged.
Result<Variant> RoundFunction(Frame&, CallArgs& args) {
  int32_t digits = 0;
  if (args.Has(1)) {
    VBS_TRY_ASSIGN(auto n, args.Long(1));
    if (n < 0) return MakeError(err::kInvalidCall);
    digits = n;
  }
  auto plain = args.Value(0);
  if (!plain) return plain;
  const Variant& v = *plain;
  switch (v.subtype()) {
    case Subtype::Null:
    case Subtype::Boolean:
    case Subtype::Byte:
    case Subtype::Integer:
    case Subtype::Long: return v;
    case Subtype::Empty: return Variant::Integer(0);
    case Subtype::Single: return Variant::Single(static_cast<float>(RoundToDigits(v.as_single(), digits)));
    case Subtype::Currency: return Variant::Currency(RoundCurrency(v.as_currency(), digits));
    case Subtype::Date: return Variant::Date(RoundToDigits(v.as_date(), digits));
    default: {
      VBS_TRY_ASSIGN(auto real, v.to_double(args.locale()));
      return Variant::Double(RoundToDigits(real, digits));
    }
  }
}

// ---- IsDate ----

// True for a Date and for text that reads as a date or time; never an error.
Result<Variant> IsDateFunction(Frame&, CallArgs& args) {
  auto plain = args.Value(0);
  if (!plain) return Variant::Boolean(false);
  if (plain->is_date()) return Variant::Boolean(true);
  if (!plain->is_string()) return Variant::Boolean(false);
  return Variant::Boolean(ParseDateTime(plain->as_string_view(), args.locale()).has_value());
}

const Builtin kConversion[] = {
    {"Hex", 1, 1, &DigitsFunction<4>, "Hex(number): hexadecimal digits of a rounded whole number"},
    {"Oct", 1, 1, &DigitsFunction<3>, "Oct(number): octal digits of a rounded whole number"},
    {"Fix", 1, 1, &WholeFunction<Direction::TowardZero>, "Fix(number): the whole part, toward zero"},
    {"Int", 1, 1, &WholeFunction<Direction::Down>, "Int(number): the largest whole number not above it"},
    {"Round", 1, 2, &RoundFunction, "Round(number [, digits]): rounded half to even at the digits"},
    {"IsDate", 1, 1, &IsDateFunction, "IsDate(value): whether the value is or reads as a date"},
};

}  // namespace

std::span<const Builtin> ConversionBuiltins() { return kConversion; }

}  // namespace vbs
