#pragma once

// The script's operators over Variants, with the result subtypes Windows gives:
//  - + - * keep the wider operand type (Byte < Integer < Long < Single < Double; Boolean counts
//    as Integer) and widen on overflow (Integer to Long, Long to Double, Byte to Integer), so
//    32767 + 1 is a Long. Single with Long is Double. Currency wins over the others (but a
//    product with Single or Double is Double); Date + or - a number is a Date, Date - Date a
//    Double. A string operand is read as a Double, and + of two strings concatenates. Empty is 0
//    (Empty + Empty is Integer 0); Null gives Null.
//  - / is always a Double (x / 0 is error 11, 0 / 0 error 6); \ and Mod round both operands half
//    to even first and give Byte, Integer or Long; ^ is a Double.
//  - & converts both sides to strings, Null as ""; Null & Null is Null.
//  - Comparisons give a Boolean, or Null when a side is Null. Numbers compare by value, strings
//    by code unit (or ignoring case, CompareMode::Text); a number is less than any string; Empty
//    is 0 against a number and "" against a string.
//  - Not And Or Xor Eqv Imp are bitwise on Byte, Integer or Long and give a Boolean when both
//    sides are Booleans. Null propagates except where the other side decides the result alone:
//    Null And False is False, Null Or True is True, False Imp Null is True, Null Imp True is True.
// Objects take part through their default member.

#include "vbscript/value/Locale.h"
#include "vbscript/value/Result.h"
#include "vbscript/value/Variant.h"

namespace vbs {

enum class CompareMode { Binary, Text };

enum class BinaryOperator {
  Add,
  Subtract,
  Multiply,
  Divide,
  IntDivide,
  Modulo,
  Power,
  Concat,
  Equal,
  NotEqual,
  Less,
  LessEqual,
  Greater,
  GreaterEqual,
  And,
  Or,
  Xor,
  Eqv,
  Imp,
};

Result<Variant> Add(const Variant& a, const Variant& b, const Locale& locale);
Result<Variant> Subtract(const Variant& a, const Variant& b, const Locale& locale);
Result<Variant> Multiply(const Variant& a, const Variant& b, const Locale& locale);
Result<Variant> Divide(const Variant& a, const Variant& b, const Locale& locale);
Result<Variant> IntDivide(const Variant& a, const Variant& b, const Locale& locale);
Result<Variant> Modulo(const Variant& a, const Variant& b, const Locale& locale);
Result<Variant> Power(const Variant& a, const Variant& b, const Locale& locale);
Result<Variant> Concat(const Variant& a, const Variant& b, const Locale& locale);
// One of the six comparisons (op from Equal to GreaterEqual): a Boolean, or Null.
Result<Variant> Compare(BinaryOperator op, const Variant& a, const Variant& b, CompareMode mode, const Locale& locale);
Result<Variant> And(const Variant& a, const Variant& b, const Locale& locale);
Result<Variant> Or(const Variant& a, const Variant& b, const Locale& locale);
Result<Variant> Xor(const Variant& a, const Variant& b, const Locale& locale);
Result<Variant> Eqv(const Variant& a, const Variant& b, const Locale& locale);
Result<Variant> Imp(const Variant& a, const Variant& b, const Locale& locale);
// Any binary operator, for an interpreter that dispatches on the operator.
Result<Variant> ApplyBinary(BinaryOperator op, const Variant& a, const Variant& b, CompareMode mode,
                            const Locale& locale);

// Unary minus: -Empty is Integer 0, -True is Integer 1, -(-32768) is Long 32768.
Result<Variant> Negate(const Variant& value, const Locale& locale);
Result<Variant> Not(const Variant& value, const Locale& locale);

// `a Is b`: whether both name the same object (Nothing Is Nothing); error 424 unless both are
// objects.
Result<bool> Is(const Variant& a, const Variant& b);

// Whether a condition (If, While, Until) holds. Null and Empty do not hold, as on Windows, where
// `If Null Then` runs the Else branch; a string must read as a Boolean or a number (else 13).
Result<bool> IsTrue(const Variant& condition, const Locale& locale);

// `target = target & value`, appending in place when target holds a string it owns alone: what
// keeps a loop of appends linear.
[[nodiscard]] Status ConcatAssign(Variant& target, const Variant& value, const Locale& locale);

}  // namespace vbs
