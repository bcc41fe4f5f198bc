#pragma once

// The one table of error numbers and their texts, in the two languages the engine speaks. Texts are
// the ones Windows shows for the same numbers, so that messages users know from their scripts, and
// scripts that compare Err.Description, keep working.

#include <cstdint>
#include <string_view>

#include "vbscript/value/Result.h"

namespace vbs {

enum class Language { Italian, English };

// The text of a runtime (5-32812) or compile (1001-1058) error; a generic "unknown runtime error"
// text for numbers the table lacks.
std::u16string_view ErrorText(int32_t number, Language language);
// Whether the table holds the number.
bool IsKnownError(int32_t number);
// Whether the number is a compile (syntax) error rather than a runtime error.
bool IsCompileError(int32_t number);

// The error naming what it is about, as Windows does for a name that names nothing or a built-in
// function that failed: the host's message reads "Tipo non corrispondente: 'ImpostaGiocata'".
ScriptError NamedError(int32_t number, std::string_view name);
// Names what an error is about when nothing has named it yet.
ScriptError WithName(ScriptError error, std::string_view name);
// The text a host shows for an error: its description, or the standard text of its number, and
// the name it is about.
std::u16string ErrorMessage(const ScriptError& error, Language language);

}  // namespace vbs
