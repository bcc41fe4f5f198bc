#pragma once

// The one reader of a call's arguments, for the built-in functions, the objects a host adds and the
// library's functions alike. Its getters convert with the language's rules (Coercion.h) and look
// through references and objects' default members, so that every caller reads `Mid(s, "2")` or
// `EstrattoRitardo(ruota, n)` the same way.
//
// A failing conversion keeps the language's error number; what differs is its description. A host
// member's names the argument's position ("Type mismatch (argument 2)"), which the script's author
// needs to find it among a library function's many arguments. A built-in keeps the table's plain
// text, as Windows gives it, so the naming is chosen when the reader is made.
//
// The reader is a span, a locale and a flag: the interpreter makes one per built-in call on the
// stack, and whole numbers and Doubles, nearly every argument, are read inline with no conversion.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "vbscript/value/Locale.h"
#include "vbscript/value/Operators.h"
#include "vbscript/value/Result.h"
#include "vbscript/value/Variant.h"
#include "vbscript/value/VbString.h"

namespace vbs {

// How a failing conversion's description reads: with the argument's position, or the plain text.
enum class ArgumentNaming : uint8_t { ByPosition, Plain };

// The arguments of one call. Each may be a reference to the caller's variable: Out() writes back
// through it, so a member can fill an array the script passed.
class CallArgs {
 public:
  CallArgs(std::span<Variant> args, const Locale& locale, ArgumentNaming naming = ArgumentNaming::ByPosition)
      : m_args(args), m_locale(locale), m_naming(naming) {}

  size_t size() const { return m_args.size(); }
  const Locale& locale() const { return m_locale; }
  // Whether argument i was given: `f(a, , c)` and fewer arguments than the position leave it out.
  bool Has(size_t i) const {
    if (i >= m_args.size()) return false;
    const Variant& v = m_args[i].Deref();
    return !(v.is_error() && v.as_error() == err::kParamNotFound);
  }
  // Argument i as passed, a reference looked through (an object stays an object).
  const Variant& operator[](size_t i) const { return m_args[i].Deref(); }
  // The caller's variable behind argument i (or the argument's own value when none was passed).
  Variant& Out(size_t i) { return m_args[i].Deref(); }

  Result<int32_t> Long(size_t i) const {
    if (const Variant& v = (*this)[i]; v.is_whole()) return v.as_whole();
    return ConvertLong(i);
  }
  Result<int32_t> Long(size_t i, int32_t if_missing) const { return Has(i) ? Long(i) : Result<int32_t>(if_missing); }
  Result<int16_t> Integer(size_t i) const;
  Result<double> Double(size_t i) const {
    const Variant& v = (*this)[i];
    if (v.is_double()) return v.as_double();
    if (v.is_whole()) return v.as_whole();
    return ConvertDouble(i);
  }
  Result<double> Double(size_t i, double if_missing) const { return Has(i) ? Double(i) : Result<double>(if_missing); }
  Result<bool> Boolean(size_t i) const;
  Result<bool> Boolean(size_t i, bool if_missing) const { return Has(i) ? Boolean(i) : Result<bool>(if_missing); }
  // The text of argument i, sharing the string the script passed.
  Result<VbString> Text(size_t i) const;
  Result<std::u16string> String(size_t i) const;
  Result<std::u16string> String(size_t i, std::u16string_view if_missing) const;
  // The compare argument of the string functions: binary when omitted, 0 binary, 1 text, anything
  // else error 5.
  Result<CompareMode> Compare(size_t i) const;
  // The plain value of argument i: references and objects' default members resolved.
  Result<Variant> Value(size_t i) const;

 private:
  Result<int32_t> ConvertLong(size_t i) const;
  Result<double> ConvertDouble(size_t i) const;
  // The error of a failed conversion of argument i, described as the naming asks.
  Failure Named(Failure error, size_t i) const;

  std::span<Variant> m_args;
  const Locale& m_locale;
  ArgumentNaming m_naming;
};

}  // namespace vbs
