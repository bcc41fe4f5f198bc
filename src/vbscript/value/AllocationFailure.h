#pragma once

// The C++ library reports a string or vector that cannot grow by throwing (std::bad_alloc,
// std::length_error). Scripts choose those sizes, so the engine turns the throw into error 7 at the
// places where script-sized data is built: the built-in functions and the members of objects. The
// error then travels as any other, and On Error Resume Next traps it.

#include <new>
#include <stdexcept>

#include "vbscript/value/Result.h"

namespace vbs {

template <typename Call>
auto TrapAllocationFailure(Call&& call) -> decltype(call()) {
  try {
    return call();
  } catch (const std::bad_alloc&) {
    return MakeError(err::kOutOfMemory);
  } catch (const std::length_error&) {
    return MakeError(err::kOutOfMemory);
  }
}

}  // namespace vbs
