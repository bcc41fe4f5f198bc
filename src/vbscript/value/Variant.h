#pragma once

// The script's one value type. A Variant is 16 bytes: a subtype tag, a flag byte and an 8-byte
// union. Numbers, dates and Booleans live in the union, so copying them is a plain copy with no
// allocation and no branch beyond the tag test. Strings, arrays and objects live on the heap with
// a reference count: a copy increments it, and arrays are copied on write, so that assigning or
// passing an array ByVal is cheap while keeping the language's value semantics.
//
// A Reference is the engine's own form for ByRef arguments: it points at the caller's variable
// and owns nothing. Queries (`is_*`, `as_*`) look at the Variant itself; VarType, TypeName, the
// coercions (`to_*`, defined with every other conversion rule in Coercion.cpp) and the operators
// see through a reference.

#include <bit>
#include <cassert>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "vbscript/value/RefCounted.h"
#include "vbscript/value/Result.h"
#include "vbscript/value/VbString.h"

namespace vbs {

class Object;
class SafeArray;
struct Locale;

// VarType() codes, as the script sees them.
inline constexpr int32_t kVbEmpty = 0;
inline constexpr int32_t kVbNull = 1;
inline constexpr int32_t kVbInteger = 2;
inline constexpr int32_t kVbLong = 3;
inline constexpr int32_t kVbSingle = 4;
inline constexpr int32_t kVbDouble = 5;
inline constexpr int32_t kVbCurrency = 6;
inline constexpr int32_t kVbDate = 7;
inline constexpr int32_t kVbString = 8;
inline constexpr int32_t kVbObject = 9;
inline constexpr int32_t kVbError = 10;
inline constexpr int32_t kVbBoolean = 11;
inline constexpr int32_t kVbVariant = 12;
inline constexpr int32_t kVbByte = 17;
inline constexpr int32_t kVbArray = 8192;

// Currency is a 64-bit integer of ten-thousandths.
inline constexpr int64_t kCurrencyScale = 10000;

// The tag. Everything from String on owns a heap payload.
enum class Subtype : uint8_t {
  Empty,
  Null,
  Integer,
  Long,
  Single,
  Double,
  Currency,
  Date,
  Boolean,
  Byte,
  Error,
  Reference,
  String,
  Array,
  Object,
};

class Variant {
 public:
  Variant() noexcept { m_u.i64 = 0; }
  Variant(const Variant& other) noexcept : m_subtype(other.m_subtype), m_u(other.m_u) {
    if (other.IsHeap()) AddRefHeap();
  }
  Variant(Variant&& other) noexcept : m_subtype(other.m_subtype), m_u(other.m_u) {
    other.m_subtype = Subtype::Empty;
    other.m_u.i64 = 0;
  }
  Variant& operator=(const Variant& other) noexcept {
    Variant copy(other);
    return *this = std::move(copy);
  }
  [[gnu::always_inline]] Variant& operator=(Variant&& other) noexcept {
    if (this != &other) {
      // Taken before the old value goes: `other` may live inside it (x = x(0) on an array).
      const Subtype subtype = other.m_subtype;
      const Payload payload = other.m_u;
      other.m_subtype = Subtype::Empty;
      other.m_u.i64 = 0;
      if (IsHeap()) ReleaseHeap();
      m_subtype = subtype;
      m_flags = 0;
      m_u = payload;
    }
    return *this;
  }
  // Assignment between values that own nothing (numbers, dates, Booleans, Empty): a plain copy.
  void AssignPlain(const Variant& plain) {
    assert(!IsHeap() && !plain.IsHeap());
    m_subtype = plain.m_subtype;
    m_flags = 0;
    m_u = plain.m_u;
  }
  // Integer(v) and Long(v) written in place of a value that owns nothing: a loop's counter.
  void SetInteger(int16_t v) { SetPlainBits(Subtype::Integer, v); }
  void SetLong(int32_t v) { SetPlainBits(Subtype::Long, v); }
  ~Variant() {
    if (IsHeap()) ReleaseHeap();
  }

  static Variant Null() { return Variant(Subtype::Null); }
  // Integer is held widened, so that as_whole reads Integer and Long alike.
  static Variant Integer(int16_t v) { return Variant(Subtype::Integer, v); }
  static Variant Long(int32_t v) { return Variant(Subtype::Long, v); }
  static Variant Single(float v) { return Variant(Subtype::Single, std::bit_cast<uint32_t>(v)); }
  static Variant Double(double v) { return Variant(Subtype::Double, std::bit_cast<int64_t>(v)); }
  // `scaled` is the amount times 10000.
  static Variant Currency(int64_t scaled) { return Variant(Subtype::Currency, scaled); }
  // `serial` is an OLE date: days since 30 December 1899, the time as the fraction.
  static Variant Date(double serial) { return Variant(Subtype::Date, std::bit_cast<int64_t>(serial)); }
  static Variant Boolean(bool v) { return Variant(Subtype::Boolean, v ? 1 : 0); }
  static Variant Byte(uint8_t v) { return Variant(Subtype::Byte, v); }
  static Variant Error(int32_t scode) { return Variant(Subtype::Error, scode); }
  static Variant String(VbString s) {
    Variant r(Subtype::String);
    r.m_u.str = s.Detach();
    return r;
  }
  static Variant String(std::u16string_view s) { return String(VbString(s)); }
  // A null Ref is Nothing.
  static Variant Object(Ref<vbs::Object> object);
  static Variant Nothing() { return Variant(Subtype::Object); }
  static Variant Array(Ref<SafeArray> array);
  // A reference to `target`, which must outlive it; a reference to a reference points at the end.
  static Variant Reference(Variant* target) {
    Variant r(Subtype::Reference);
    r.m_u.ref = target->IsRef() ? target->m_u.ref : target;
    return r;
  }

  Subtype subtype() const { return m_subtype; }
  // The VarType() code: kVbArray + kVbVariant for arrays.
  int32_t VarType() const;
  // What TypeName() gives: "Integer", "Variant()", "Nothing", an object's class name...
  std::u16string TypeName() const;

  bool IsRef() const { return m_subtype == Subtype::Reference; }
  const Variant& Deref() const { return IsRef() ? *m_u.ref : *this; }
  Variant& Deref() { return IsRef() ? *m_u.ref : *this; }

  bool is_empty() const { return m_subtype == Subtype::Empty; }
  bool is_null() const { return m_subtype == Subtype::Null; }
  bool is_integer() const { return m_subtype == Subtype::Integer; }
  bool is_long() const { return m_subtype == Subtype::Long; }
  bool is_single() const { return m_subtype == Subtype::Single; }
  bool is_double() const { return m_subtype == Subtype::Double; }
  bool is_currency() const { return m_subtype == Subtype::Currency; }
  bool is_date() const { return m_subtype == Subtype::Date; }
  bool is_boolean() const { return m_subtype == Subtype::Boolean; }
  bool is_byte() const { return m_subtype == Subtype::Byte; }
  bool is_error() const { return m_subtype == Subtype::Error; }
  bool is_string() const { return m_subtype == Subtype::String; }
  bool is_array() const { return m_subtype == Subtype::Array; }
  // True for Nothing too.
  bool is_object() const { return m_subtype == Subtype::Object; }
  bool is_nothing() const { return is_object() && m_u.obj == nullptr; }
  // Integer, Long, Single, Double, Currency or Byte: what IsNumeric accepts without parsing.
  // Integer or Long: the whole numbers that counters and most arithmetic in loops hold.
  bool is_whole() const { return m_subtype == Subtype::Integer || m_subtype == Subtype::Long; }
  bool is_number() const {
    return (m_subtype >= Subtype::Integer && m_subtype <= Subtype::Currency) || m_subtype == Subtype::Byte;
  }

  int16_t as_integer() const { return assert(is_integer()), static_cast<int16_t>(m_u.i32); }
  int32_t as_long() const { return assert(is_long()), m_u.i32; }
  int32_t as_whole() const { return assert(is_whole()), m_u.i32; }
  float as_single() const { return assert(is_single()), m_u.f32; }
  double as_double() const { return assert(is_double()), m_u.f64; }
  int64_t as_currency() const { return assert(is_currency()), m_u.i64; }
  double as_date() const { return assert(is_date()), m_u.f64; }
  bool as_boolean() const { return assert(is_boolean()), m_u.b; }
  uint8_t as_byte() const { return assert(is_byte()), m_u.u8; }
  int32_t as_error() const { return assert(is_error()), m_u.i32; }
  std::u16string_view as_string_view() const { return assert(is_string()), VbString::View(m_u.str); }
  VbString as_string() const;
  // Null for Nothing.
  vbs::Object* as_object() const { return assert(is_object()), m_u.obj; }
  Ref<vbs::Object> object_ref() const;
  SafeArray* as_array() const { return assert(is_array()), m_u.arr; }

  // The language's conversions (CBool, CByte, ...), with their error numbers: 6 overflow,
  // 13 type mismatch, 94 Null; objects give their default value first. Defined in Coercion.cpp.
  Result<bool> to_boolean(const Locale& locale) const;
  Result<uint8_t> to_byte(const Locale& locale) const;
  Result<int16_t> to_integer(const Locale& locale) const;
  Result<int32_t> to_long(const Locale& locale) const;
  Result<float> to_single(const Locale& locale) const;
  Result<double> to_double(const Locale& locale) const;
  Result<int64_t> to_currency(const Locale& locale) const;  // scaled by 10000
  Result<double> to_date(const Locale& locale) const;       // an OLE date serial
  Result<VbString> to_string(const Locale& locale) const;

  // Appends to the string this Variant holds, in place when it owns the text alone and has room:
  // what the interpreter runs for `s = s & x`. Error 7 when the string would grow too long.
  [[nodiscard]] Status AppendInPlace(std::u16string_view text);

  // A variable declared with its bounds (`Dim a(3)`) holds a fixed array: ReDim fails with error
  // 10 and Erase only clears the elements. The mark belongs to the variable: copies do not carry it.
  bool IsFixedArray() const { return is_array() && (m_flags & kFixedFlag) != 0; }
  void MarkFixedArray() { m_flags |= kFixedFlag; }
  // Replaces the array payload, keeping the fixed mark; for the array operations of SafeArray.h.
  void ReplaceArray(Ref<SafeArray> array);

 private:
  static constexpr uint8_t kFixedFlag = 1;

  explicit Variant(Subtype subtype) noexcept : m_subtype(subtype) { m_u.i64 = 0; }
  // The whole payload written at once: a number made here and read back at once (the result of
  // an operator) then costs no partial-store stall.
  Variant(Subtype subtype, int64_t bits) noexcept : m_subtype(subtype) { m_u.i64 = bits; }
  bool IsHeap() const { return m_subtype >= Subtype::String; }
  void SetPlainBits(Subtype subtype, int64_t bits) {
    assert(!IsHeap());
    m_subtype = subtype;
    m_flags = 0;
    m_u.i64 = bits;
  }
  void AddRefHeap() const;
  void ReleaseHeap();

  Subtype m_subtype = Subtype::Empty;
  uint8_t m_flags = 0;
  union Payload {
    int32_t i32;
    int64_t i64;
    float f32;
    double f64;
    bool b;
    uint8_t u8;
    VbString::Rep* str;
    SafeArray* arr;
    vbs::Object* obj;
    Variant* ref;
  } m_u;
};

static_assert(sizeof(Variant) == 16);

}  // namespace vbs
