#pragma once

// Helpers shared by the value tests: a one-line description of a Variant that names its subtype
// and value ("Long 32768", "String \"0,5\"", "error 13"), so that a table row states both, and a
// host object with a settable default value.

#include <charconv>
#include <cmath>
#include <string>

#include "text/Utf.h"
#include "vbscript/value/Coercion.h"
#include "vbscript/value/DateTime.h"
#include "vbscript/value/Object.h"
#include "vbscript/value/Variant.h"

namespace vbs::testing {

inline std::string Describe(const Variant& value) {
  const Variant& v = value.Deref();
  const std::string type = text::Utf16ToUtf8(v.TypeName());
  const Locale& en = EnglishLocale();
  char buffer[64];
  switch (v.subtype()) {
    case Subtype::Byte: return type + " " + std::to_string(v.as_byte());
    case Subtype::Integer: return type + " " + std::to_string(v.as_integer());
    case Subtype::Long: return type + " " + std::to_string(v.as_long());
    case Subtype::Boolean: return type + (v.as_boolean() ? " True" : " False");
    case Subtype::Single: {
      auto end = std::to_chars(buffer, buffer + sizeof buffer, v.as_single()).ptr;
      return type + " " + std::string(buffer, end);
    }
    case Subtype::Double: {
      auto end = std::to_chars(buffer, buffer + sizeof buffer, v.as_double()).ptr;
      return type + " " + std::string(buffer, end);
    }
    case Subtype::Currency: return type + " " + text::Utf16ToUtf8(FormatCurrency(v.as_currency(), en));
    case Subtype::Date: return type + " " + text::Utf16ToUtf8(FormatDateTime(v.as_date(), en));
    case Subtype::String: return type + " \"" + text::Utf16ToUtf8(v.as_string_view()) + "\"";
    case Subtype::Error: return type + " " + std::to_string(v.as_error());
    default: return type;
  }
}

inline std::string Describe(const Result<Variant>& result) {
  if (!result) return "error " + std::to_string(result.error().number);
  return Describe(*result);
}

inline Variant Str(std::u16string_view text) { return Variant::String(text); }
inline Variant Cur(double amount) { return Variant::Currency(std::llround(amount * kCurrencyScale)); }
inline Variant DateOf(int y, int m, int d) { return Variant::Date(*SerialFromDate(y, m, d)); }

// A host object whose default member reads `value`; without one (`has_default` false) it fails
// as Windows objects do, with 438.
class ValueObject : public Object {
 public:
  explicit ValueObject(Variant v, bool has_default = true) : value(std::move(v)), has_default(has_default) {}
  std::u16string ClassName() const override { return u"ValueObject"; }
  DispId FindMember(std::string_view) override { return kUnknownMember; }
  Result<Variant> Invoke(DispId member, InvokeKind kind, std::span<Variant>) override {
    if (member != kDefaultMember || kind != InvokeKind::Get || !has_default) return MakeError(438);
    return value;
  }
  Variant value;
  bool has_default;
};

inline Variant MakeObject(Variant value, bool has_default = true) {
  return Variant::Object(MakeRef<ValueObject>(std::move(value), has_default));
}

}  // namespace vbs::testing
