#pragma once

// Script errors travel as return values, never as C++ exceptions: "On Error Resume Next" then costs
// a test of a flag, and an error can cross the host boundary without unwinding anything.

#include <cassert>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "vbscript/value/ErrorCodes.h"
#include "vbscript/value/Source.h"

namespace vbs {

// A runtime or syntax error as the script sees it through the Err object and the host through the
// engine's error: the VBScript error number, and a description only when it differs from the
// standard text for that number (raised by a script, or coming from a host object).
struct ScriptError {
  int32_t number = 0;
  std::u16string description;  // empty: the standard text of `number` in the engine's language
  std::u16string source;       // empty: the engine's own name for runtime/compile errors
  SourcePos pos;
  bool has_pos = false;
  // What the error is about, as Windows names it after the text in the message a host shows
  // ("Variabile non definita: 'x'"); Err.Description leaves it out.
  std::u16string identifier;
  // What Err.Raise was told beyond number, source and description; a runtime error has none.
  std::u16string help_file;
  int32_t help_context = 0;
};

// Frees an error; out of line, so that the success path, which only tests the pointer, stays small.
struct ErrorDeleter {
  void operator()(ScriptError* error) const;
};
using ErrorPtr = std::unique_ptr<ScriptError, ErrorDeleter>;

// A failed Result's error on its way to another Result: passing a failure up the call chain moves
// one pointer, with no new allocation. It turns into the ScriptError itself where one is wanted.
class [[nodiscard]] Failure {
 public:
  explicit Failure(ErrorPtr error) : m_error(std::move(error)) {}
  operator ScriptError() && { return std::move(*m_error); }
  ScriptError* operator->() { return m_error.get(); }
  ErrorPtr Release() && { return std::move(m_error); }

 private:
  ErrorPtr m_error;
};

// The value and, only when something failed, the error on the heap: the success path, which is
// nearly every evaluation of every expression, moves a plain value and tests one pointer.
template <typename T>
class [[nodiscard]] Result {
 public:
  Result(T value) : m_value(std::move(value)) {}
  Result(ScriptError error) : m_error(new ScriptError(std::move(error))) {}
  Result(Failure failure) : m_error(std::move(failure).Release()) {}

  bool ok() const { return m_error == nullptr; }
  explicit operator bool() const { return ok(); }

  T& value() & {
    assert(ok());
    return m_value;
  }
  const T& value() const& {
    assert(ok());
    return m_value;
  }
  T&& value() && {
    assert(ok());
    return std::move(m_value);
  }
  T& operator*() & { return value(); }
  const T& operator*() const& { return value(); }
  T* operator->() { return &value(); }
  const T* operator->() const { return &value(); }

  ScriptError& error() & {
    assert(!ok());
    return *m_error;
  }
  const ScriptError& error() const& {
    assert(!ok());
    return *m_error;
  }
  Failure error() && {
    assert(!ok());
    return Failure(std::move(m_error));
  }

 private:
  T m_value{};
  ErrorPtr m_error;
};

struct Unit {};
using Status = Result<Unit>;
inline Status Ok() { return Unit{}; }

// `number` is one of the err:: names.
inline ScriptError MakeError(int32_t number) {
  ScriptError error;
  error.number = number;
  return error;
}
inline ScriptError MakeError(int32_t number, SourcePos pos) {
  ScriptError error = MakeError(number);
  error.pos = pos;
  error.has_pos = true;
  return error;
}
// An error whose text says more than the standard one for its number.
inline ScriptError MakeError(int32_t number, std::u16string description) {
  ScriptError error = MakeError(number);
  error.description = std::move(description);
  return error;
}

// Propagates a failed Result out of the calling function.
#define VBS_TRY(...)                                                 \
  do {                                                               \
    auto&& vbs_try_result_ = (__VA_ARGS__);                          \
    if (!vbs_try_result_) return std::move(vbs_try_result_).error(); \
  } while (0)

// Declares or assigns `lhs` from the value of a Result, or propagates its failure out of the calling
// function: `VBS_TRY_ASSIGN(auto count, args.Long(0));` leaves `count` an int32_t.
// `VBS_TRY_ASSIGN(auto&& value, ...)` binds the value where the Result holds it, with no move: the
// interpreter's hot paths use it, as procedure calls measurably slow down otherwise.
#define VBS_TRY_ASSIGN(lhs, ...) VBS_TRY_ASSIGN_IMPL(lhs, (__VA_ARGS__), VBS_TRY_JOIN(vbs_try_value_, __LINE__))
#define VBS_TRY_ASSIGN_IMPL(lhs, expr, result)   \
  auto result = expr;                            \
  if (!result) return std::move(result).error(); \
  lhs = std::move(result).value()
#define VBS_TRY_JOIN(a, b) VBS_TRY_JOIN_IMPL(a, b)
#define VBS_TRY_JOIN_IMPL(a, b) a##b

}  // namespace vbs
