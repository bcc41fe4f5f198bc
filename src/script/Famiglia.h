#pragma once

// What every family file of the library works with: the library object and the engine's argument,
// result and value types, by their short names.

#include "ClsFunctionsGeodoScript.h"

namespace lottolab::script::famiglia {

using Libreria = ClsFunctionsGeodoScript;
using vbs::CallArgs;
using vbs::Result;
using vbs::Variant;

}  // namespace lottolab::script::famiglia
