#include "vbscript/value/Coercion.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "text/AsciiCase.h"
#include "text/Utf.h"
#include "vbscript/value/DateTime.h"
#include "vbscript/value/Object.h"

namespace vbs {
namespace {

bool IsBlank(char16_t c) { return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n' || c == 0x0B || c == 0x0C; }
bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

std::u16string_view Trim(std::u16string_view s) {
  while (!s.empty() && IsBlank(s.front())) s.remove_prefix(1);
  while (!s.empty() && IsBlank(s.back())) s.remove_suffix(1);
  return s;
}

// "&Hxx" and "&Oxx" (or "&xx", octal): a 32-bit pattern, so "&HFFFFFFFF" is -1.
std::optional<double> ParseRadix(std::u16string_view s) {
  s.remove_prefix(1);
  unsigned radix = 8;
  if (!s.empty() && (text::UpperAscii(s[0]) == u'H' || text::UpperAscii(s[0]) == u'O')) {
    radix = text::UpperAscii(s[0]) == u'H' ? 16 : 8;
    s.remove_prefix(1);
  }
  if (s.empty()) return std::nullopt;
  uint64_t value = 0;
  for (char16_t c : s) {
    unsigned digit = 0;
    if (IsDigit(c)) {
      digit = c - u'0';
    } else if (text::UpperAscii(c) >= u'A' && text::UpperAscii(c) <= u'F') {
      digit = text::UpperAscii(c) - u'A' + 10;
    } else {
      return std::nullopt;
    }
    if (digit >= radix) return std::nullopt;
    value = value * radix + digit;
    if (value > 0xFFFFFFFFu) return std::nullopt;
  }
  return static_cast<double>(static_cast<int32_t>(static_cast<uint32_t>(value)));
}

// The value as a whole number in [min, max], rounded half to even; error 6 outside.
Result<int64_t> ToWhole(const Variant& value, int64_t min, int64_t max, bool byte_target, const Locale& locale) {
  VBS_TRY_ASSIGN(auto&& plain, ValueOf(value));
  const Variant& v = plain;
  int64_t whole = 0;
  double real = 0;
  bool is_real = false;
  switch (v.subtype()) {
    case Subtype::Empty: break;
    case Subtype::Boolean: whole = v.as_boolean() ? (byte_target ? 255 : -1) : 0; break;
    case Subtype::Byte: whole = v.as_byte(); break;
    case Subtype::Integer: whole = v.as_integer(); break;
    case Subtype::Long: whole = v.as_long(); break;
    case Subtype::Currency: {
      const int64_t cy = v.as_currency();
      whole = cy / kCurrencyScale;
      const int64_t rest = cy % kCurrencyScale;
      const int64_t half = kCurrencyScale / 2;
      if (rest > half || (rest == half && whole % 2 != 0)) ++whole;
      if (rest < -half || (rest == -half && whole % 2 != 0)) --whole;
      break;
    }
    case Subtype::Single:
      real = v.as_single();
      is_real = true;
      break;
    case Subtype::Double:
      real = v.as_double();
      is_real = true;
      break;
    case Subtype::Date:
      real = v.as_date();
      is_real = true;
      break;
    case Subtype::String: {
      auto parsed = ParseNumber(v.as_string_view(), locale);
      if (!parsed) return MakeError(err::kTypeMismatch);
      real = *parsed;
      is_real = true;
      break;
    }
    case Subtype::Null: return MakeError(err::kNullUse);
    default: return MakeError(err::kTypeMismatch);
  }
  if (is_real) {
    if (!std::isfinite(real)) return MakeError(err::kOverflow);
    const double rounded = RoundHalfEven(real);
    if (rounded < static_cast<double>(min) || rounded > static_cast<double>(max)) return MakeError(err::kOverflow);
    whole = static_cast<int64_t>(rounded);
  }
  if (whole < min || whole > max) return MakeError(err::kOverflow);
  return whole;
}

std::u16string Widen(std::string_view ascii) { return std::u16string(ascii.begin(), ascii.end()); }

// printf's %G with the locale's decimal separator and Windows' upper-case exponent.
std::u16string FormatGeneral(double value, int precision, bool is_float, const Locale& locale) {
  if (value == 0) return u"0";
  char buffer[64];
  const auto result = is_float
                          ? std::to_chars(buffer, buffer + sizeof buffer, static_cast<float>(value),
                                          std::chars_format::general, precision)
                          : std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, precision);
  std::u16string out;
  for (const char* p = buffer; p != result.ptr; ++p) {
    if (*p == '.') {
      out += locale.decimal_separator;
    } else if (*p == 'e') {
      out += u'E';
    } else {
      out += static_cast<char16_t>(*p);
    }
  }
  return out;
}

}  // namespace

double RoundHalfEven(double value) {
  const double floor = std::floor(value);
  const double fraction = value - floor;
  if (fraction > 0.5) return floor + 1;
  if (fraction < 0.5) return floor;
  return std::fmod(floor, 2.0) == 0 ? floor : floor + 1;
}

Result<Variant> ValueOf(const Variant& value) {
  Variant current = value.Deref();
  for (int depth = 0; current.is_object(); ++depth) {
    if (current.is_nothing()) return MakeError(err::kObjectNotSet);
    // A default member that keeps returning objects never yields a value.
    if (depth == 8) return MakeError(err::kTypeMismatch);
    Ref<Object> object = current.object_ref();
    VBS_TRY_ASSIGN(auto&& result, object->Invoke(kDefaultMember, InvokeKind::Get, {}));
    Variant next = result.Deref();
    current = std::move(next);
  }
  return current;
}

std::optional<bool> ParseBooleanWord(std::u16string_view text, const Locale& locale) {
  const std::u16string_view s = Trim(text);
  if (text::EqualsIgnoringCase(s, u"True") || text::EqualsIgnoringCase(s, u"#TRUE#") ||
      text::EqualsIgnoringCase(s, locale.true_text))
    return true;
  if (text::EqualsIgnoringCase(s, u"False") || text::EqualsIgnoringCase(s, u"#FALSE#") ||
      text::EqualsIgnoringCase(s, locale.false_text))
    return false;
  return std::nullopt;
}

std::optional<double> ParseNumber(std::u16string_view text, const Locale& locale) {
  const std::u16string_view s = Trim(text);
  if (s.empty()) return std::nullopt;
  if (s[0] == u'&') return ParseRadix(s);
  const std::u16string_view currency = locale.currency_symbol;
  size_t i = 0;
  bool negative = false;
  bool signed_ = false;
  bool parenthesised = false;
  bool has_currency = false;
  auto skip_blanks = [&] {
    while (i < s.size() && IsBlank(s[i])) ++i;
  };
  for (;;) {
    if (s[i] == u'(' && !parenthesised && !signed_) {
      parenthesised = true;
      ++i;
    } else if ((s[i] == u'+' || s[i] == u'-') && !signed_) {
      signed_ = true;
      negative = s[i] == u'-';
      ++i;
    } else if (!has_currency && !currency.empty() && s.substr(i).starts_with(currency)) {
      has_currency = true;
      i += currency.size();
      skip_blanks();
    } else {
      break;
    }
    if (i == s.size()) return std::nullopt;
  }
  std::string ascii;
  int digits = 0;
  while (i < s.size()) {
    if (IsDigit(s[i])) {
      ascii += static_cast<char>(s[i]);
      ++digits;
    } else if (s[i] != locale.thousands_separator || digits == 0) {
      break;
    }
    ++i;
  }
  if (i < s.size() && s[i] == locale.decimal_separator) {
    ascii += '.';
    ++i;
    while (i < s.size() && IsDigit(s[i])) {
      ascii += static_cast<char>(s[i]);
      ++digits;
      ++i;
    }
  }
  if (digits == 0) return std::nullopt;
  if (i < s.size() && (s[i] == u'e' || s[i] == u'E')) {
    ascii += 'e';
    ++i;
    if (i < s.size() && (s[i] == u'+' || s[i] == u'-')) ascii += static_cast<char>(s[i++]);
    int exponent_digits = 0;
    while (i < s.size() && IsDigit(s[i])) {
      ascii += static_cast<char>(s[i++]);
      ++exponent_digits;
    }
    if (exponent_digits == 0) return std::nullopt;
  }
  skip_blanks();
  if (!has_currency && !currency.empty() && s.substr(i).starts_with(currency)) {
    i += currency.size();
    skip_blanks();
  }
  if (i < s.size() && (s[i] == u'+' || s[i] == u'-') && !signed_) {
    negative = s[i] == u'-';
    ++i;
  }
  if (parenthesised) {
    if (i == s.size() || s[i] != u')' || negative) return std::nullopt;
    negative = true;
    ++i;
  }
  if (i != s.size()) return std::nullopt;
  double value = 0;
  const auto [end, error] = std::from_chars(ascii.data(), ascii.data() + ascii.size(), value);
  if (error == std::errc::result_out_of_range) {
    // Too large is an overflow for the caller to report; too small is zero.
    const bool huge = ascii.find("e-") == std::string::npos;
    value = huge ? std::numeric_limits<double>::infinity() : 0.0;
  } else if (error != std::errc() || end != ascii.data() + ascii.size()) {
    return std::nullopt;
  }
  return negative ? -value : value;
}

std::u16string FormatInteger(int64_t value) { return Widen(std::to_string(value)); }

std::u16string FormatDouble(double value, const Locale& locale) { return FormatGeneral(value, 15, false, locale); }

std::u16string FormatSingle(float value, const Locale& locale) { return FormatGeneral(value, 7, true, locale); }

std::u16string FormatCurrency(int64_t scaled, const Locale& locale) {
  const bool negative = scaled < 0;
  const uint64_t magnitude = negative ? 0 - static_cast<uint64_t>(scaled) : static_cast<uint64_t>(scaled);
  std::u16string out = negative ? u"-" : u"";
  out += Widen(std::to_string(magnitude / kCurrencyScale));
  uint64_t fraction = magnitude % kCurrencyScale;
  if (fraction != 0) {
    std::string digits = std::to_string(fraction + kCurrencyScale).substr(1);
    while (digits.back() == '0') digits.pop_back();
    out += locale.decimal_separator;
    out += Widen(digits);
  }
  return out;
}

Result<bool> Variant::to_boolean(const Locale& locale) const {
  VBS_TRY_ASSIGN(auto&& plain, ValueOf(*this));
  const Variant& v = plain;
  switch (v.subtype()) {
    case Subtype::Empty: return false;
    case Subtype::Null: return MakeError(err::kNullUse);
    case Subtype::Boolean: return v.as_boolean();
    case Subtype::Byte: return v.as_byte() != 0;
    case Subtype::Integer: return v.as_integer() != 0;
    case Subtype::Long: return v.as_long() != 0;
    case Subtype::Single: return v.as_single() != 0;
    case Subtype::Double: return v.as_double() != 0;
    case Subtype::Currency: return v.as_currency() != 0;
    case Subtype::Date: return v.as_date() != 0;
    case Subtype::String: {
      if (auto word = ParseBooleanWord(v.as_string_view(), locale)) return *word;
      if (auto number = ParseNumber(v.as_string_view(), locale)) return *number != 0;
      return MakeError(err::kTypeMismatch);
    }
    default: return MakeError(err::kTypeMismatch);
  }
}

Result<uint8_t> Variant::to_byte(const Locale& locale) const {
  VBS_TRY_ASSIGN(auto&& whole, ToWhole(*this, 0, 255, true, locale));
  return static_cast<uint8_t>(whole);
}

Result<int16_t> Variant::to_integer(const Locale& locale) const {
  VBS_TRY_ASSIGN(auto&& whole, ToWhole(*this, INT16_MIN, INT16_MAX, false, locale));
  return static_cast<int16_t>(whole);
}

Result<int32_t> Variant::to_long(const Locale& locale) const {
  VBS_TRY_ASSIGN(auto&& whole, ToWhole(*this, INT32_MIN, INT32_MAX, false, locale));
  return static_cast<int32_t>(whole);
}

Result<double> Variant::to_double(const Locale& locale) const {
  VBS_TRY_ASSIGN(auto&& plain, ValueOf(*this));
  const Variant& v = plain;
  switch (v.subtype()) {
    case Subtype::Empty: return 0.0;
    case Subtype::Null: return MakeError(err::kNullUse);
    case Subtype::Boolean: return v.as_boolean() ? -1.0 : 0.0;
    case Subtype::Byte: return static_cast<double>(v.as_byte());
    case Subtype::Integer: return static_cast<double>(v.as_integer());
    case Subtype::Long: return static_cast<double>(v.as_long());
    case Subtype::Single: return static_cast<double>(v.as_single());
    case Subtype::Double: return v.as_double();
    case Subtype::Currency: return static_cast<double>(v.as_currency()) / kCurrencyScale;
    case Subtype::Date: return v.as_date();
    case Subtype::String: {
      auto number = ParseNumber(v.as_string_view(), locale);
      if (!number) return MakeError(err::kTypeMismatch);
      if (!std::isfinite(*number)) return MakeError(err::kOverflow);
      return *number;
    }
    default: return MakeError(err::kTypeMismatch);
  }
}

Result<float> Variant::to_single(const Locale& locale) const {
  VBS_TRY_ASSIGN(auto&& real, to_double(locale));
  if (std::fabs(real) > std::numeric_limits<float>::max()) return MakeError(err::kOverflow);
  return static_cast<float>(real);
}

Result<int64_t> Variant::to_currency(const Locale& locale) const {
  const Variant& v = Deref();
  switch (v.subtype()) {
    case Subtype::Currency: return v.as_currency();
    case Subtype::Byte: return int64_t{v.as_byte()} * kCurrencyScale;
    case Subtype::Integer: return int64_t{v.as_integer()} * kCurrencyScale;
    case Subtype::Long: return int64_t{v.as_long()} * kCurrencyScale;
    default: break;
  }
  VBS_TRY_ASSIGN(auto&& real, to_double(locale));
  const double scaled = RoundHalfEven(real * kCurrencyScale);
  // The largest double below 2^63, so that the cast below is defined.
  constexpr double kLimit = 9223372036854774784.0;
  if (!(scaled >= -kLimit && scaled <= kLimit)) return MakeError(err::kOverflow);
  return static_cast<int64_t>(scaled);
}

Result<double> Variant::to_date(const Locale& locale) const {
  VBS_TRY_ASSIGN(auto&& plain, ValueOf(*this));
  const Variant& v = plain;
  double serial = 0;
  if (v.is_date()) return v.as_date();
  if (v.is_string()) {
    if (auto date = ParseDateTime(v.as_string_view(), locale)) return *date;
    auto number = ParseNumber(v.as_string_view(), locale);
    if (!number) return MakeError(err::kTypeMismatch);
    serial = *number;
  } else {
    VBS_TRY_ASSIGN(auto&& real, v.to_double(locale));
    serial = real;
  }
  if (!IsValidDateSerial(serial)) return MakeError(err::kOverflow);
  return serial;
}

Result<VbString> Variant::to_string(const Locale& locale) const {
  VBS_TRY_ASSIGN(auto&& plain, ValueOf(*this));
  const Variant& v = plain;
  switch (v.subtype()) {
    case Subtype::Empty: return VbString();
    case Subtype::Null: return MakeError(err::kNullUse);
    case Subtype::String: return v.as_string();
    case Subtype::Boolean: return VbString(v.as_boolean() ? locale.true_text : locale.false_text);
    case Subtype::Byte: return VbString(FormatInteger(v.as_byte()));
    case Subtype::Integer: return VbString(FormatInteger(v.as_integer()));
    case Subtype::Long: return VbString(FormatInteger(v.as_long()));
    case Subtype::Single: return VbString(FormatSingle(v.as_single(), locale));
    case Subtype::Double: return VbString(FormatDouble(v.as_double(), locale));
    case Subtype::Currency: return VbString(FormatCurrency(v.as_currency(), locale));
    case Subtype::Date: return VbString(FormatDateTime(v.as_date(), locale));
    default: return MakeError(err::kTypeMismatch);
  }
}

Result<Variant> ConvertTo(const Variant& value, Subtype target, const Locale& locale) {
  auto wrap = [](auto result, auto make) -> Result<Variant> {
    if (!result) return std::move(result).error();
    return make(*result);
  };
  switch (target) {
    case Subtype::Boolean: return wrap(value.to_boolean(locale), Variant::Boolean);
    case Subtype::Byte: return wrap(value.to_byte(locale), Variant::Byte);
    case Subtype::Integer: return wrap(value.to_integer(locale), Variant::Integer);
    case Subtype::Long: return wrap(value.to_long(locale), Variant::Long);
    case Subtype::Single: return wrap(value.to_single(locale), Variant::Single);
    case Subtype::Double: return wrap(value.to_double(locale), Variant::Double);
    case Subtype::Currency: return wrap(value.to_currency(locale), Variant::Currency);
    case Subtype::Date: return wrap(value.to_date(locale), Variant::Date);
    case Subtype::String:
      return wrap(value.to_string(locale), [](VbString s) { return Variant::String(std::move(s)); });
    default: break;
  }
  assert(false && "not a conversion target");
  return MakeError(err::kTypeMismatch);
}

}  // namespace vbs
