#pragma once

// What every family file of the library works with: the library object and the engine's argument,
// result and value types, by their short names.

#include <string_view>

#include "ClsFunctionsGeodoScript.h"
#include "text/Utf.h"

namespace lottolab::script::famiglia {

using Libreria = ClsFunctionsGeodoScript;
using vbs::CallArgs;
using vbs::Result;
using vbs::Variant;

}  // namespace lottolab::script::famiglia

namespace lottolab::script {

// Error 5, "invalid procedure call", with the reason an argument is refused.
inline vbs::ScriptError ArgomentoNonValido(std::string_view descrizione) {
  return vbs::MakeError(vbs::err::kInvalidCall, text::Utf8ToUtf16(descrizione));
}

}  // namespace lottolab::script
