#pragma once

// The language's built-in functions, registered by tables: one family per file, each row a name,
// its arity, the function and a one-line description. The compiler resolves a name to its row
// once; a call checks the arity and hands over the argument values in a CallArgs, whose
// conversions keep Windows' plain error texts.

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "vbscript/value/CallArgs.h"
#include "vbscript/value/Result.h"
#include "vbscript/value/Variant.h"

namespace vbs {

struct Frame;

struct Builtin {
  std::string_view name;
  uint8_t min_args;
  uint8_t max_args;
  Result<Variant> (*function)(Frame& frame, CallArgs& args);
  std::string_view description;
  // Eval, Execute and ExecuteGlobal: what fails inside them is the error of the code they ran.
  bool runs_code = false;
  // Statements in function form (Randomize): used for a value they are a type mismatch.
  bool gives_no_value = false;
  // Conversions to a number or a date: called as a statement, their value thrown away, they fail
  // with error 458 once the conversion itself has succeeded, as in Windows.
  bool needs_a_use = false;
};

// Every built-in, for lookup by folded name.
const Builtin* FindBuiltinFunction(std::string_view folded_name);

// The value of a named constant (vbCrLf, vbLong, vbYes, ...), by folded name.
std::optional<Variant> NamedConstantValue(std::string_view folded_name);

// The families.
std::span<const Builtin> CoreBuiltins();
std::span<const Builtin> CodeBuiltins();
std::span<const Builtin> StringBuiltins();
std::span<const Builtin> MathBuiltins();
std::span<const Builtin> DateBuiltins();
std::span<const Builtin> FormatBuiltins();
std::span<const Builtin> ConversionBuiltins();
std::span<const Builtin> InteractionBuiltins();

}  // namespace vbs
