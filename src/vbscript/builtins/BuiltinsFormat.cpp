// FormatNumber, FormatCurrency and FormatPercent, with the locale's separators and patterns:
// FormatNumber(1234.5) is "1.234,50" on Italian settings and "1,234.50" on English ones.
//
// As on Windows, the value is first written with its significant digits (15 for a Double, 7 for a
// Single, all four decimals of a Currency), the way CStr writes it, and that decimal text is then
// rounded half away from zero: FormatNumber(1.005, 2) is "1.01" although Round(1.005, 2) is 1.
// The optional arguments: digits after the decimal separator (-1: the locale's, 2 for both
// locales), then three tristates (-2 the locale's setting, -1 yes, 0 no): a 0 before the separator
// of a number below 1, parentheses instead of a minus sign, and digit grouping.

#include <charconv>
#include <string>

#include "vbscript/builtins/Builtins.h"
#include "vbscript/value/Coercion.h"

namespace vbs {

namespace {

constexpr int32_t kUseDefault = -2;

// A number as decimal digits: the value is 0.digits times 10^point, negative when `negative`.
struct Decimal {
  bool negative = false;
  std::string digits;
  int point = 0;
};

Decimal FromDouble(double value, int significant) {
  Decimal d;
  d.negative = value < 0;
  if (value == 0) return d;
  char buffer[64];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value < 0 ? -value : value,
                                 std::chars_format::scientific, significant - 1)
                       .ptr;
  const std::string text(buffer, end);  // "1.2345e+03"
  const size_t e = text.find('e');
  for (size_t i = 0; i < e; ++i)
    if (text[i] != '.') d.digits += text[i];
  d.point = std::stoi(text.substr(e + 1)) + 1;
  while (!d.digits.empty() && d.digits.back() == '0') d.digits.pop_back();
  return d;
}

Decimal FromCurrency(int64_t scaled) {
  Decimal d;
  d.negative = scaled < 0;
  const uint64_t magnitude = d.negative ? 0 - static_cast<uint64_t>(scaled) : static_cast<uint64_t>(scaled);
  if (magnitude == 0) return d;
  d.digits = std::to_string(magnitude);
  d.point = static_cast<int>(d.digits.size()) - 4;
  while (d.digits.back() == '0') d.digits.pop_back();
  return d;
}

// Rounds half away from zero to `decimals` digits after the point.
void RoundDecimal(Decimal& d, int decimals) {
  const int keep = d.point + decimals;
  if (keep >= static_cast<int>(d.digits.size())) return;
  if (keep < 0) {
    d.digits.clear();
    return;
  }
  const bool up = d.digits[static_cast<size_t>(keep)] >= '5';
  d.digits.resize(static_cast<size_t>(keep));
  if (!up) return;
  size_t i = d.digits.size();
  while (i > 0 && d.digits[i - 1] == '9') d.digits[--i] = '0';
  if (i == 0) {
    d.digits.insert(d.digits.begin(), '1');
    ++d.point;
  } else {
    ++d.digits[i - 1];
  }
}

struct NumberStyle {
  int decimals;
  bool leading_zero;
  bool parentheses;
  bool grouping;
};

// The number's digits with separators, without a sign.
std::u16string Digits(const Decimal& d, const NumberStyle& style, const Locale& locale) {
  auto digit_at = [&](int i) -> char16_t {
    if (i < 0 || i >= static_cast<int>(d.digits.size())) return u'0';
    return static_cast<char16_t>(d.digits[static_cast<size_t>(i)]);
  };
  std::u16string out;
  const int whole_digits = d.digits.empty() ? 0 : d.point;
  for (int i = 0; i < whole_digits; ++i) {
    if (i > 0 && style.grouping && (whole_digits - i) % 3 == 0) out += locale.thousands_separator;
    out += digit_at(i);
  }
  if (out.empty() && style.leading_zero) out += u'0';
  if (style.decimals > 0) {
    out += locale.decimal_separator;
    for (int i = 0; i < style.decimals; ++i) out += digit_at(d.point + i);
  }
  return out;
}

enum class Kind { Number, Currency, Percent };

// Where the currency symbol goes, as the locale's settings for positive and negative amounts say:
// "€ 1.234,50" and "-€ 1.234,50" in Italian, "$1,234.50" and "($1,234.50)" in English.
std::u16string CurrencyText(std::u16string_view digits, const Locale& locale) {
  std::u16string amount(locale.currency_symbol);
  if (locale.lcid == kLcidItalian) amount += u' ';
  amount += digits;
  return amount;
}

std::u16string Signed(std::u16string text, bool negative, bool parentheses) {
  if (!negative) return text;
  text.insert(text.begin(), parentheses ? u'(' : u'-');
  if (parentheses) text += u')';
  return text;
}

// The tristate at `index`: -2 or omitted gives `fallback`, 0 false, anything else true.
Result<bool> Tristate(const CallArgs& args, size_t index, bool fallback) {
  if (!args.Has(index)) return fallback;
  VBS_TRY_ASSIGN(auto n, args.Long(index));
  return n == kUseDefault ? fallback : n != 0;
}

template <Kind kind>
Result<Variant> FormatFunction(Frame&, CallArgs& args) {
  const Locale& locale = args.locale();
  NumberStyle style{2, true, false, true};
  if (args.Has(1)) {
    VBS_TRY_ASSIGN(auto n, args.Long(1));
    if (n < -1 || n > 255) return MakeError(err::kInvalidCall);
    if (n != -1) style.decimals = n;
  }
  // English shows negative amounts of money in parentheses; numbers and percentages nowhere.
  const bool parentheses_by_default = kind == Kind::Currency && locale.lcid != kLcidItalian;
  const bool fallbacks[] = {style.leading_zero, parentheses_by_default, style.grouping};
  bool* settings[] = {&style.leading_zero, &style.parentheses, &style.grouping};
  for (size_t i = 0; i < 3; ++i) {
    VBS_TRY_ASSIGN(auto b, Tristate(args, i + 2, fallbacks[i]));
    *settings[i] = b;
  }

  VBS_TRY_ASSIGN(auto plain, args.Value(0));
  if (plain.is_null()) return MakeError(err::kTypeMismatch);
  Decimal d;
  if (plain.is_currency() && kind != Kind::Percent) {
    d = FromCurrency(plain.as_currency());
  } else {
    VBS_TRY_ASSIGN(auto real, plain.to_double(locale));
    const double value = kind == Kind::Percent ? real * 100 : real;
    d = FromDouble(value, plain.is_single() ? 7 : 15);
  }
  RoundDecimal(d, style.decimals);
  const bool negative = d.negative && !d.digits.empty();
  std::u16string text = Digits(d, style, locale);
  if (kind == Kind::Currency) text = CurrencyText(text, locale);
  if (kind == Kind::Percent) text += u'%';
  return Variant::String(Signed(std::move(text), negative, style.parentheses));
}

const Builtin kFormat[] = {
    {"FormatNumber", 1, 5, &FormatFunction<Kind::Number>,
     "FormatNumber(number [, digits [, leadingzero [, parentheses [, grouping]]]]): as the locale writes it"},
    {"FormatCurrency", 1, 5, &FormatFunction<Kind::Currency>,
     "FormatCurrency(number [, digits [, leadingzero [, parentheses [, grouping]]]]): with the currency symbol"},
    {"FormatPercent", 1, 5, &FormatFunction<Kind::Percent>,
     "FormatPercent(number [, digits [, leadingzero [, parentheses [, grouping]]]]): the number times 100 with '%'"},
};

}  // namespace

std::span<const Builtin> FormatBuiltins() { return kFormat; }

}  // namespace vbs
