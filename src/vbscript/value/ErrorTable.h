#pragma once

// The one table of error numbers and their texts, in the two languages the engine speaks. Texts are
// the ones Windows shows for the same numbers, so that messages users know from their scripts, and
// scripts that compare Err.Description, keep working.

#include <cstdint>
#include <string_view>

namespace vbs {

enum class Language { Italian, English };

// The text of a runtime (5-32812) or compile (1001-1058) error; a generic "unknown runtime error"
// text for numbers the table lacks.
std::u16string_view ErrorText(int32_t number, Language language);
// Whether the table holds the number.
bool IsKnownError(int32_t number);
// Whether the number is a compile (syntax) error rather than a runtime error.
bool IsCompileError(int32_t number);

}  // namespace vbs
