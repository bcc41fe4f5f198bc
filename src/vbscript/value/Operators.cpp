#include "vbscript/value/Operators.h"

#include <cmath>
#include <limits>

#include "text/Utf.h"
#include "vbscript/value/Coercion.h"
#include "vbscript/value/DateTime.h"

namespace vbs {
namespace {

// An arithmetic operand reduced to Empty, Boolean, Byte, Integer, Long, Single, Double, Currency
// or Date: strings read as Doubles; Null is reported separately by the callers.
Status ToArithmetic(Variant& v, const Locale& locale) {
  switch (v.subtype()) {
    case Subtype::String: {
      VBS_TRY_ASSIGN(auto&& number, v.to_double(locale));
      v = Variant::Double(number);
      return Ok();
    }
    case Subtype::Array:
    case Subtype::Error:
    case Subtype::Object: return MakeError(err::kTypeMismatch);
    default: return Ok();
  }
}

bool IsWhole(Subtype t) {
  return t == Subtype::Empty || t == Subtype::Boolean || t == Subtype::Byte || t == Subtype::Integer ||
         t == Subtype::Long;
}

int64_t WholeOf(const Variant& v) {
  switch (v.subtype()) {
    case Subtype::Boolean: return v.as_boolean() ? -1 : 0;
    case Subtype::Byte: return v.as_byte();
    case Subtype::Integer: return v.as_integer();
    case Subtype::Long: return v.as_long();
    default: return 0;
  }
}

double RealOf(const Variant& v) {
  switch (v.subtype()) {
    case Subtype::Single: return v.as_single();
    case Subtype::Double: return v.as_double();
    case Subtype::Date: return v.as_date();
    case Subtype::Currency: return static_cast<double>(v.as_currency()) / kCurrencyScale;
    default: return static_cast<double>(WholeOf(v));
  }
}

// The narrowest of `from` and the wider types that holds the value: Byte, Integer, Long, Double.
Variant FitWhole(int64_t value, Subtype from) {
  if (from == Subtype::Byte && value >= 0 && value <= 255) return Variant::Byte(static_cast<uint8_t>(value));
  if (from != Subtype::Long && value >= INT16_MIN && value <= INT16_MAX) {
    return Variant::Integer(static_cast<int16_t>(value));
  }
  if (value >= INT32_MIN && value <= INT32_MAX) return Variant::Long(static_cast<int32_t>(value));
  return Variant::Double(static_cast<double>(value));
}

Result<Variant> FitDouble(double value) {
  if (!std::isfinite(value)) return MakeError(err::kOverflow);
  return Variant::Double(value);
}

Result<Variant> FitDate(double value) {
  if (!IsValidDateSerial(value)) return MakeError(err::kOverflow);
  return Variant::Date(value);
}

Result<Variant> FitCurrency(__int128 scaled) {
  if (scaled < INT64_MIN || scaled > INT64_MAX) return MakeError(err::kOverflow);
  return Variant::Currency(static_cast<int64_t>(scaled));
}

enum class Arith { Add, Subtract, Multiply };

Subtype ResultType(Arith op, Subtype a, Subtype b) {
  auto has = [&](Subtype t) { return a == t || b == t; };
  const bool has_real = has(Subtype::Single) || has(Subtype::Double);
  if (op != Arith::Multiply) {
    if (has(Subtype::Date)) {
      return op == Arith::Subtract && a == Subtype::Date && b == Subtype::Date ? Subtype::Double : Subtype::Date;
    }
    if (has(Subtype::Currency)) return Subtype::Currency;
  } else {
    if (has(Subtype::Currency)) return has_real || has(Subtype::Date) ? Subtype::Double : Subtype::Currency;
    if (has(Subtype::Date)) return Subtype::Double;
  }
  if (has(Subtype::Double)) return Subtype::Double;
  if (has(Subtype::Single)) return has(Subtype::Long) ? Subtype::Double : Subtype::Single;
  if (has(Subtype::Long)) return Subtype::Long;
  if (has(Subtype::Integer) || has(Subtype::Boolean)) return Subtype::Integer;
  if (a == Subtype::Empty && b == Subtype::Empty) return Subtype::Integer;
  return Subtype::Byte;
}

__int128 CurrencyOf(const Variant& v, const Locale& locale, Status& status) {
  if (v.is_currency()) return v.as_currency();
  if (IsWhole(v.subtype())) return static_cast<__int128>(WholeOf(v)) * kCurrencyScale;
  auto cy = v.to_currency(locale);
  if (!cy) {
    status = std::move(cy).error();
    return 0;
  }
  return *cy;
}

// The quotient rounded half to even.
__int128 DivideHalfEven(__int128 n, __int128 d) {
  __int128 q = n / d;
  const __int128 r = n % d;
  const __int128 twice = (r < 0 ? -r : r) * 2;
  if (twice > d || (twice == d && q % 2 != 0)) q += n < 0 ? -1 : 1;
  return q;
}

Result<Variant> Arithmetic(Arith op, const Variant& left, const Variant& right, const Locale& locale) {
  auto a = ValueOf(left);
  if (!a) return a;
  auto b = ValueOf(right);
  if (!b) return b;
  if (a->is_null() || b->is_null()) return Variant::Null();
  if (op == Arith::Add) {
    if (a->is_string() && b->is_string()) {
      VBS_TRY_ASSIGN(auto&& joined, VbString::Concat(a->as_string_view(), b->as_string_view()));
      return Variant::String(std::move(joined));
    }
    if (a->is_empty() && b->is_string()) return *b;
    if (b->is_empty() && a->is_string()) return *a;
  }
  VBS_TRY(ToArithmetic(*a, locale));
  VBS_TRY(ToArithmetic(*b, locale));
  const Subtype type = ResultType(op, a->subtype(), b->subtype());
  switch (type) {
    case Subtype::Byte:
    case Subtype::Integer:
    case Subtype::Long: {
      const int64_t x = WholeOf(*a);
      const int64_t y = WholeOf(*b);
      const int64_t r = op == Arith::Add ? x + y : op == Arith::Subtract ? x - y : x * y;
      return FitWhole(r, type);
    }
    case Subtype::Single: {
      const double x = RealOf(*a);
      const double y = RealOf(*b);
      const double r = op == Arith::Add ? x + y : op == Arith::Subtract ? x - y : x * y;
      if (std::fabs(r) <= std::numeric_limits<float>::max()) return Variant::Single(static_cast<float>(r));
      return FitDouble(r);
    }
    case Subtype::Currency: {
      Status status = Ok();
      const __int128 x = CurrencyOf(*a, locale, status);
      const __int128 y = CurrencyOf(*b, locale, status);
      if (!status) return std::move(status).error();
      if (op == Arith::Multiply) return FitCurrency(DivideHalfEven(x * y, kCurrencyScale));
      return FitCurrency(op == Arith::Add ? x + y : x - y);
    }
    case Subtype::Date: {
      const double x = RealOf(*a);
      const double y = RealOf(*b);
      return FitDate(op == Arith::Add ? x + y : x - y);
    }
    default: {
      const double x = RealOf(*a);
      const double y = RealOf(*b);
      return FitDouble(op == Arith::Add ? x + y : op == Arith::Subtract ? x - y : x * y);
    }
  }
}

// Both operands as Doubles for / and ^; `null` set when either is Null.
Status RealOperands(const Variant& left, const Variant& right, const Locale& locale, double& x, double& y, bool& null) {
  VBS_TRY_ASSIGN(auto&& a, ValueOf(left));
  VBS_TRY_ASSIGN(auto&& b, ValueOf(right));
  null = a.is_null() || b.is_null();
  if (null) return Ok();
  VBS_TRY(ToArithmetic(a, locale));
  VBS_TRY(ToArithmetic(b, locale));
  x = RealOf(a);
  y = RealOf(b);
  return Ok();
}

enum class IntegerOp { Divide, Modulo };

Result<Variant> IntegerDivision(IntegerOp op, const Variant& left, const Variant& right, const Locale& locale) {
  auto a = ValueOf(left);
  if (!a) return a;
  auto b = ValueOf(right);
  if (!b) return b;
  if (a->is_null() || b->is_null()) return Variant::Null();
  VBS_TRY(ToArithmetic(*a, locale));
  VBS_TRY(ToArithmetic(*b, locale));
  auto small = [](Subtype t) { return t == Subtype::Empty || t == Subtype::Byte; };
  auto narrow = [](Subtype t) {
    return t == Subtype::Empty || t == Subtype::Byte || t == Subtype::Integer || t == Subtype::Boolean;
  };
  Subtype type = Subtype::Long;
  if (small(a->subtype()) && small(b->subtype()) && !(a->is_empty() && b->is_empty())) {
    type = Subtype::Byte;
  } else if (narrow(a->subtype()) && narrow(b->subtype())) {
    type = Subtype::Integer;
  }
  VBS_TRY_ASSIGN(auto&& x, a->to_long(locale));
  VBS_TRY_ASSIGN(auto&& y, b->to_long(locale));
  if (y == 0) return MakeError(err::kDivisionByZero);
  const int64_t n = x;
  const int64_t d = y;
  return FitWhole(op == IntegerOp::Divide ? n / d : n % d, type);
}

// A logical operand: its subtype (Boolean, Byte, Integer or Long) and bits, or Null.
struct Bits {
  bool null = false;
  Subtype type = Subtype::Integer;
  int64_t bits = 0;
  bool AllOnes() const { return type == Subtype::Byte ? bits == 0xFF : bits == -1; }
};

Result<Bits> ToBits(const Variant& value, const Locale& locale) {
  VBS_TRY_ASSIGN(auto&& plain, ValueOf(value));
  const Variant& v = plain;
  switch (v.subtype()) {
    case Subtype::Null: return Bits{true, Subtype::Integer, 0};
    case Subtype::Empty: return Bits{false, Subtype::Integer, 0};
    case Subtype::Boolean: return Bits{false, Subtype::Boolean, v.as_boolean() ? -1 : 0};
    case Subtype::Byte: return Bits{false, Subtype::Byte, v.as_byte()};
    case Subtype::Integer: return Bits{false, Subtype::Integer, v.as_integer()};
    case Subtype::Long: return Bits{false, Subtype::Long, v.as_long()};
    case Subtype::Array:
    case Subtype::Error: return MakeError(err::kTypeMismatch);
    case Subtype::String:
      if (auto word = ParseBooleanWord(v.as_string_view(), locale))
        return Bits{false, Subtype::Boolean, *word ? -1 : 0};
      break;
    default: break;
  }
  VBS_TRY_ASSIGN(auto&& whole, v.to_long(locale));
  return Bits{false, Subtype::Long, whole};
}

Variant MakeBits(Subtype type, int64_t bits) {
  switch (type) {
    case Subtype::Boolean: return Variant::Boolean(bits != 0);
    case Subtype::Byte: return Variant::Byte(static_cast<uint8_t>(bits & 0xFF));
    case Subtype::Integer: return Variant::Integer(static_cast<int16_t>(bits));
    default: return Variant::Long(static_cast<int32_t>(bits));
  }
}

Subtype LogicalType(Subtype a, Subtype b) {
  if (a == b) return a;
  if (a == Subtype::Long || b == Subtype::Long) return Subtype::Long;
  return Subtype::Integer;
}

enum class Logic { And, Or, Xor, Eqv, Imp };

Result<Variant> Logical(Logic op, const Variant& left, const Variant& right, const Locale& locale) {
  VBS_TRY_ASSIGN(auto&& a, ToBits(left, locale));
  VBS_TRY_ASSIGN(auto&& b, ToBits(right, locale));
  if (a.null && b.null) return Variant::Null();
  if (a.null || b.null) {
    // Only a side that decides the result alone gives a value.
    const Bits& known = a.null ? b : a;
    switch (op) {
      case Logic::And: return known.bits == 0 ? MakeBits(known.type, 0) : Variant::Null();
      case Logic::Or: return known.AllOnes() ? MakeBits(known.type, -1) : Variant::Null();
      case Logic::Imp:
        if (a.null) return known.AllOnes() ? MakeBits(known.type, -1) : Variant::Null();
        return known.bits == 0 ? MakeBits(known.type, -1) : Variant::Null();
      default: return Variant::Null();
    }
  }
  const int64_t x = a.bits;
  const int64_t y = b.bits;
  int64_t r = 0;
  switch (op) {
    case Logic::And: r = x & y; break;
    case Logic::Or: r = x | y; break;
    case Logic::Xor: r = x ^ y; break;
    case Logic::Eqv: r = ~(x ^ y); break;
    case Logic::Imp: r = ~x | y; break;
  }
  return MakeBits(LogicalType(a.type, b.type), r);
}

int CompareStrings(std::u16string_view a, std::u16string_view b, CompareMode mode) {
  const size_t n = a.size() < b.size() ? a.size() : b.size();
  for (size_t i = 0; i < n; ++i) {
    const char16_t x = mode == CompareMode::Text ? text::FoldCase(a[i]) : a[i];
    const char16_t y = mode == CompareMode::Text ? text::FoldCase(b[i]) : b[i];
    if (x != y) return x < y ? -1 : 1;
  }
  return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

template <typename T>
int Order(T x, T y) {
  return x < y ? -1 : (y < x ? 1 : 0);
}

int CompareNumbers(const Variant& a, const Variant& b) {
  if (IsWhole(a.subtype()) && IsWhole(b.subtype())) return Order(WholeOf(a), WholeOf(b));
  const bool exact_a = IsWhole(a.subtype()) || a.is_currency();
  const bool exact_b = IsWhole(b.subtype()) || b.is_currency();
  if (exact_a && exact_b) {
    auto scaled = [](const Variant& v) {
      return v.is_currency() ? static_cast<__int128>(v.as_currency())
                             : static_cast<__int128>(WholeOf(v)) * kCurrencyScale;
    };
    return Order(scaled(a), scaled(b));
  }
  // A Single against a Double compares in single precision, as Windows does:
  // CSng(0.001 * 0.001) = 0.000001 holds there.
  if ((a.is_single() && b.is_double()) || (a.is_double() && b.is_single()))
    return Order(static_cast<float>(RealOf(a)), static_cast<float>(RealOf(b)));
  return Order(RealOf(a), RealOf(b));
}

}  // namespace

Result<Variant> Add(const Variant& a, const Variant& b, const Locale& locale) {
  return Arithmetic(Arith::Add, a, b, locale);
}

Result<Variant> Subtract(const Variant& a, const Variant& b, const Locale& locale) {
  return Arithmetic(Arith::Subtract, a, b, locale);
}

Result<Variant> Multiply(const Variant& a, const Variant& b, const Locale& locale) {
  return Arithmetic(Arith::Multiply, a, b, locale);
}

Result<Variant> Divide(const Variant& a, const Variant& b, const Locale& locale) {
  double x = 0;
  double y = 0;
  bool null = false;
  VBS_TRY(RealOperands(a, b, locale, x, y, null));
  if (null) return Variant::Null();
  if (y == 0) return MakeError(x == 0 ? err::kOverflow : err::kDivisionByZero);
  return FitDouble(x / y);
}

Result<Variant> IntDivide(const Variant& a, const Variant& b, const Locale& locale) {
  return IntegerDivision(IntegerOp::Divide, a, b, locale);
}

Result<Variant> Modulo(const Variant& a, const Variant& b, const Locale& locale) {
  return IntegerDivision(IntegerOp::Modulo, a, b, locale);
}

Result<Variant> Power(const Variant& a, const Variant& b, const Locale& locale) {
  double x = 0;
  double y = 0;
  bool null = false;
  VBS_TRY(RealOperands(a, b, locale, x, y, null));
  if (null) return Variant::Null();
  if (x == 0 && y < 0) return MakeError(err::kDivisionByZero);
  const double r = std::pow(x, y);
  if (std::isnan(r)) return MakeError(err::kInvalidCall);
  return FitDouble(r);
}

Result<Variant> Concat(const Variant& a, const Variant& b, const Locale& locale) {
  auto x = ValueOf(a);
  if (!x) return x;
  auto y = ValueOf(b);
  if (!y) return y;
  if (x->is_null() && y->is_null()) return Variant::Null();
  VbString left;
  VbString right;
  if (!x->is_null()) {
    VBS_TRY_ASSIGN(auto&& s, x->to_string(locale));
    left = std::move(s);
  }
  if (!y->is_null()) {
    VBS_TRY_ASSIGN(auto&& s, y->to_string(locale));
    right = std::move(s);
  }
  if (right.empty()) return Variant::String(std::move(left));
  if (left.empty()) return Variant::String(std::move(right));
  VBS_TRY_ASSIGN(auto&& joined, VbString::Concat(left.view(), right.view()));
  return Variant::String(std::move(joined));
}

Result<Variant> Compare(BinaryOperator op, const Variant& left, const Variant& right, CompareMode mode,
                        const Locale& locale) {
  auto a = ValueOf(left);
  if (!a) return a;
  auto b = ValueOf(right);
  if (!b) return b;
  if (a->is_null() || b->is_null()) return Variant::Null();
  for (const Variant* v : {&*a, &*b}) {
    if (v->is_array() || v->is_error()) return MakeError(err::kTypeMismatch);
  }
  int order = 0;
  if (a->is_string() && b->is_string()) {
    order = CompareStrings(a->as_string_view(), b->as_string_view(), mode);
  } else if (a->is_string() || b->is_string()) {
    const Variant& other = a->is_string() ? *b : *a;
    const std::u16string_view text = a->is_string() ? a->as_string_view() : b->as_string_view();
    // Against a string, Empty is "" and any number is smaller.
    const int string_side = other.is_empty() && text.empty() ? 0 : 1;
    order = a->is_string() ? string_side : -string_side;
  } else {
    VBS_TRY(ToArithmetic(*a, locale));
    VBS_TRY(ToArithmetic(*b, locale));
    order = CompareNumbers(*a, *b);
  }
  switch (op) {
    case BinaryOperator::Equal: return Variant::Boolean(order == 0);
    case BinaryOperator::NotEqual: return Variant::Boolean(order != 0);
    case BinaryOperator::Less: return Variant::Boolean(order < 0);
    case BinaryOperator::LessEqual: return Variant::Boolean(order <= 0);
    case BinaryOperator::Greater: return Variant::Boolean(order > 0);
    case BinaryOperator::GreaterEqual: return Variant::Boolean(order >= 0);
    default: break;
  }
  assert(false && "not a comparison");
  return MakeError(err::kInvalidCall);
}

Result<Variant> And(const Variant& a, const Variant& b, const Locale& locale) {
  return Logical(Logic::And, a, b, locale);
}

Result<Variant> Or(const Variant& a, const Variant& b, const Locale& locale) {
  return Logical(Logic::Or, a, b, locale);
}

Result<Variant> Xor(const Variant& a, const Variant& b, const Locale& locale) {
  return Logical(Logic::Xor, a, b, locale);
}

Result<Variant> Eqv(const Variant& a, const Variant& b, const Locale& locale) {
  return Logical(Logic::Eqv, a, b, locale);
}

Result<Variant> Imp(const Variant& a, const Variant& b, const Locale& locale) {
  return Logical(Logic::Imp, a, b, locale);
}

Result<Variant> ApplyBinary(BinaryOperator op, const Variant& a, const Variant& b, CompareMode mode,
                            const Locale& locale) {
  switch (op) {
    case BinaryOperator::Add: return Add(a, b, locale);
    case BinaryOperator::Subtract: return Subtract(a, b, locale);
    case BinaryOperator::Multiply: return Multiply(a, b, locale);
    case BinaryOperator::Divide: return Divide(a, b, locale);
    case BinaryOperator::IntDivide: return IntDivide(a, b, locale);
    case BinaryOperator::Modulo: return Modulo(a, b, locale);
    case BinaryOperator::Power: return Power(a, b, locale);
    case BinaryOperator::Concat: return Concat(a, b, locale);
    case BinaryOperator::And: return And(a, b, locale);
    case BinaryOperator::Or: return Or(a, b, locale);
    case BinaryOperator::Xor: return Xor(a, b, locale);
    case BinaryOperator::Eqv: return Eqv(a, b, locale);
    case BinaryOperator::Imp: return Imp(a, b, locale);
    default: return Compare(op, a, b, mode, locale);
  }
}

Result<Variant> Negate(const Variant& value, const Locale& locale) {
  auto plain = ValueOf(value);
  if (!plain) return plain;
  Variant& v = *plain;
  if (v.is_null()) return v;
  VBS_TRY(ToArithmetic(v, locale));
  switch (v.subtype()) {
    case Subtype::Empty: return Variant::Integer(0);
    case Subtype::Boolean:
    case Subtype::Byte:
    case Subtype::Integer: return FitWhole(-WholeOf(v), Subtype::Integer);
    case Subtype::Long: return FitWhole(-WholeOf(v), Subtype::Long);
    case Subtype::Single: return Variant::Single(-v.as_single());
    case Subtype::Currency:
      if (v.as_currency() == INT64_MIN) return MakeError(err::kOverflow);
      return Variant::Currency(-v.as_currency());
    case Subtype::Date: return FitDate(-v.as_date());
    default: return Variant::Double(-v.as_double());
  }
}

Result<Variant> Not(const Variant& value, const Locale& locale) {
  VBS_TRY_ASSIGN(auto&& bits, ToBits(value, locale));
  if (bits.null) return Variant::Null();
  return MakeBits(bits.type, ~bits.bits);
}

Result<bool> Is(const Variant& a, const Variant& b) {
  const Variant& x = a.Deref();
  const Variant& y = b.Deref();
  if (!x.is_object() || !y.is_object()) return MakeError(err::kObjectRequired);
  return x.as_object() == y.as_object();
}

Result<bool> IsTrue(const Variant& condition, const Locale& locale) {
  const Variant& v = condition.Deref();
  if (v.is_boolean()) return v.as_boolean();
  VBS_TRY_ASSIGN(auto&& plain, ValueOf(v));
  if (plain.is_null()) return false;
  return plain.to_boolean(locale);
}

Status ConcatAssign(Variant& target, const Variant& value, const Locale& locale) {
  Variant& t = target.Deref();
  if (!t.is_string()) {
    VBS_TRY_ASSIGN(auto&& joined, Concat(t, value, locale));
    t = std::move(joined);
    return Ok();
  }
  const Variant& v = value.Deref();
  if (v.is_string()) return t.AppendInPlace(v.as_string_view());
  VBS_TRY_ASSIGN(auto&& plain, ValueOf(v));
  if (plain.is_null()) return Ok();
  VBS_TRY_ASSIGN(auto&& text, plain.to_string(locale));
  return t.AppendInPlace(text.view());
}

}  // namespace vbs
