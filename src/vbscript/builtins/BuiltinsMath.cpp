// The mathematical functions and the random numbers. Abs keeps its argument's subtype (widening
// Integer and Long where the result would not fit); Sgn is an Integer; the others are Doubles.
// Null gives Null for Abs and error 94 elsewhere; arguments outside a function's domain (Sqr(-1),
// Log(0)) are error 5 and results too large for a Double error 6.

#include <cmath>
#include <limits>
#include <string>

#include "vbscript/builtins/Builtins.h"
#include "vbscript/runtime/Interpreter.h"
#include "vbscript/runtime/RandomGenerator.h"
#include "vbscript/value/Coercion.h"

namespace vbs {

namespace {

Result<Variant> AbsFunction(Frame&, CallArgs& args) {
  auto plain = args.Value(0);
  if (!plain) return plain;
  const Variant& v = *plain;
  switch (v.subtype()) {
    case Subtype::Null:
    case Subtype::Byte: return v;
    case Subtype::Empty: return Variant::Integer(0);
    case Subtype::Boolean: return Variant::Integer(v.as_boolean() ? 1 : 0);
    case Subtype::Integer:
      if (v.as_integer() == std::numeric_limits<int16_t>::min()) return Variant::Long(32768);
      return Variant::Integer(static_cast<int16_t>(std::abs(v.as_integer())));
    case Subtype::Long:
      if (v.as_long() == std::numeric_limits<int32_t>::min()) return Variant::Double(2147483648.0);
      return Variant::Long(std::abs(v.as_long()));
    case Subtype::Single: return Variant::Single(std::fabs(v.as_single()));
    case Subtype::Currency:
      if (v.as_currency() == std::numeric_limits<int64_t>::min()) return MakeError(err::kOverflow);
      return Variant::Currency(v.as_currency() < 0 ? -v.as_currency() : v.as_currency());
    default: {
      VBS_TRY_ASSIGN(auto real, v.to_double(args.locale()));
      return Variant::Double(std::fabs(real));
    }
  }
}

Result<Variant> SgnFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto real, args.Double(0));
  return Variant::Integer(static_cast<int16_t>(real > 0 ? 1 : (real < 0 ? -1 : 0)));
}

enum class Domain { All, NotNegative, Positive };

// A function of one Double: error 5 outside its domain, 6 when the result overflows.
template <double (*F)(double), Domain domain>
Result<Variant> RealFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto x, args.Double(0));
  if ((domain == Domain::NotNegative && x < 0) || (domain == Domain::Positive && x <= 0))
    return MakeError(err::kInvalidCall);
  const double result = F(x);
  if (!std::isfinite(result)) return MakeError(err::kOverflow);
  return Variant::Double(result);
}

double Atan(double x) { return std::atan(x); }
double Cosine(double x) { return std::cos(x); }
double Sine(double x) { return std::sin(x); }
double Tangent(double x) { return std::tan(x); }
double Exponential(double x) { return std::exp(x); }
double NaturalLog(double x) { return std::log(x); }
double SquareRoot(double x) { return std::sqrt(x); }

// ---- Rnd and Randomize ----

// Rnd([number]): the next number in [0, 1); 0 repeats the last one, a negative number reseeds.
Result<Variant> RndFunction(Frame& frame, CallArgs& args) {
  float number = 1;
  if (args.Has(0)) {
    VBS_TRY_ASSIGN(auto n, args[0].to_single(args.locale()));
    number = n;
  }
  // Each engine has its own sequence, restarted by Reset.
  return Variant::Single(frame.interp.random().Rnd(number));
}

// Randomize [number]: mixes the number, or the time of day, into the seed.
Result<Variant> RandomizeFunction(Frame& frame, CallArgs& args) {
  if (args.Has(0)) {
    VBS_TRY_ASSIGN(auto n, args.Double(0));
    frame.interp.random().Randomize(n);
    return Variant();
  }
  frame.interp.random().RandomizeFromTimer(SecondsSinceMidnight());
  return Variant();
}

const Builtin kMath[] = {
    {"Abs", 1, 1, &AbsFunction, "Abs(number): the absolute value, of the same subtype"},
    {"Sgn", 1, 1, &SgnFunction, "Sgn(number): -1, 0 or 1"},
    {"Atn", 1, 1, &RealFunction<&Atan, Domain::All>, "Atn(number): the arctangent, in radians"},
    {"Cos", 1, 1, &RealFunction<&Cosine, Domain::All>, "Cos(radians): the cosine"},
    {"Sin", 1, 1, &RealFunction<&Sine, Domain::All>, "Sin(radians): the sine"},
    {"Tan", 1, 1, &RealFunction<&Tangent, Domain::All>, "Tan(radians): the tangent"},
    {"Exp", 1, 1, &RealFunction<&Exponential, Domain::All>, "Exp(number): e raised to the number"},
    {"Log", 1, 1, &RealFunction<&NaturalLog, Domain::Positive>,
     "Log(number): the natural logarithm of a positive number"},
    {"Sqr", 1, 1, &RealFunction<&SquareRoot, Domain::NotNegative>, "Sqr(number): the square root"},
    {"Rnd", 0, 1, &RndFunction, "Rnd([number]): a pseudo-random Single in [0, 1), Windows' sequence"},
    {"Randomize", 0, 1, &RandomizeFunction, "Randomize [seed]: seeds Rnd from the number or from Timer", false, true},
};

}  // namespace

std::span<const Builtin> MathBuiltins() { return kMath; }

}  // namespace vbs
