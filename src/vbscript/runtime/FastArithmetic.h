#pragma once

// The arithmetic of loops and counters, computed inline: +, - and * and the comparisons on whole
// numbers and Doubles, Mod and \ on Integers and Longs. Anything else (other subtypes, overflow) takes the general
// rules of Operators.h, so the result is always the one those rules give.

#include <cmath>
#include <cstdint>

#include "vbscript/runtime/Interpreter.h"
#include "vbscript/value/Operators.h"
#include "vbscript/value/Variant.h"

namespace vbs {

namespace fast {

inline constexpr bool IsComparison(BinaryOperator op) {
  return op == BinaryOperator::Equal || op == BinaryOperator::NotEqual || op == BinaryOperator::Less ||
         op == BinaryOperator::LessEqual || op == BinaryOperator::Greater || op == BinaryOperator::GreaterEqual;
}

template <BinaryOperator Op, typename T>
inline T Compute(T x, T y) {
  if constexpr (Op == BinaryOperator::Add) return x + y;
  if constexpr (Op == BinaryOperator::Subtract) return x - y;
  if constexpr (Op == BinaryOperator::Multiply) return x * y;
}

template <BinaryOperator Op, typename T>
inline bool Holds(T x, T y) {
  if constexpr (Op == BinaryOperator::Equal) return x == y;
  if constexpr (Op == BinaryOperator::NotEqual) return x != y;
  if constexpr (Op == BinaryOperator::Less) return x < y;
  if constexpr (Op == BinaryOperator::LessEqual) return x <= y;
  if constexpr (Op == BinaryOperator::Greater) return x > y;
  if constexpr (Op == BinaryOperator::GreaterEqual) return x >= y;
}

inline bool WholeOrDouble(const Variant& v) { return v.is_whole() || v.is_double(); }
inline double AsDouble(const Variant& v) { return v.is_double() ? v.as_double() : v.as_whole(); }

}  // namespace fast

// Whole numbers keep their subtype while the result fits (Integer widening to Long); a Double
// joins as a Double. False, with `out` untouched, for overflow and every other subtype: those take
// the general rules. `out` may be one of the operands.
template <BinaryOperator Op>
[[gnu::always_inline]] inline bool TryFastApply(const Variant& a, const Variant& b, Variant& out) {
  if constexpr (Op == BinaryOperator::Modulo || Op == BinaryOperator::IntDivide) {
    // Two Integers give an Integer, an Integer and a Long a Long; C++ truncates as VBScript does.
    // A zero divisor, a result too large and every other subtype take the general rules.
    if (!(a.is_integer() || a.is_long()) || !(b.is_integer() || b.is_long()) || b.as_whole() == 0) return false;
    const int64_t x = a.as_whole();
    const int64_t y = b.as_whole();
    const int64_t r = Op == BinaryOperator::Modulo ? x % y : x / y;
    if (a.is_integer() && b.is_integer()) {
      if (r < INT16_MIN || r > INT16_MAX) return false;
      out = Variant::Integer(static_cast<int16_t>(r));
      return true;
    }
    if (r < INT32_MIN || r > INT32_MAX) return false;
    out = Variant::Long(static_cast<int32_t>(r));
    return true;
  } else {
    if (a.is_whole() && b.is_whole()) {
      const int64_t x = a.as_whole();
      const int64_t y = b.as_whole();
      if constexpr (fast::IsComparison(Op)) {
        out = Variant::Boolean(fast::Holds<Op>(x, y));
        return true;
      } else {
        const int64_t r = fast::Compute<Op>(x, y);
        if (a.is_integer() && b.is_integer() && r >= INT16_MIN && r <= INT16_MAX) {
          out = Variant::Integer(static_cast<int16_t>(r));
          return true;
        }
        if (r < INT32_MIN || r > INT32_MAX) return false;
        out = Variant::Long(static_cast<int32_t>(r));
        return true;
      }
    }
    if (!fast::WholeOrDouble(a) || !fast::WholeOrDouble(b)) return false;
    const double x = fast::AsDouble(a);
    const double y = fast::AsDouble(b);
    if constexpr (fast::IsComparison(Op)) {
      out = Variant::Boolean(fast::Holds<Op>(x, y));
      return true;
    } else {
      const double r = fast::Compute<Op>(x, y);
      if (!std::isfinite(r)) return false;
      out = Variant::Double(r);
      return true;
    }
  }
}

template <BinaryOperator Op>
[[gnu::always_inline]] inline Result<Variant> FastApply(const Variant& a, const Variant& b, Frame& frame) {
  Variant out;
  if (TryFastApply<Op>(a, b, out)) [[likely]]
    return out;
  return ApplyBinary(Op, a, b, frame.interp.compare_mode(), frame.interp.locale());
}

}  // namespace vbs
