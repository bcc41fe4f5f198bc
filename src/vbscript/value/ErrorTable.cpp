#include "vbscript/value/ErrorTable.h"

#include <algorithm>
#include <array>

#include "text/Utf.h"
#include "vbscript/value/ErrorCodes.h"

namespace vbs {
namespace {

struct ErrorRow {
  int32_t number;
  std::u16string_view english;
  std::u16string_view italian;
};

constexpr std::array kErrors = {
#define VBS_ERROR(name, number, english, italian) ErrorRow{number, english, italian},
#include "vbscript/value/ErrorCodes.def"
#undef VBS_ERROR
};

// Find searches by halving, which needs the rows in order and each number once.
static_assert(std::adjacent_find(kErrors.begin(), kErrors.end(), [](const ErrorRow& a, const ErrorRow& b) {
                return a.number >= b.number;
              }) == kErrors.end());

const ErrorRow* Find(int32_t number) {
  const auto* it = std::lower_bound(kErrors.begin(), kErrors.end(), number,
                                    [](const ErrorRow& row, int32_t n) { return row.number < n; });
  return it != kErrors.end() && it->number == number ? it : nullptr;
}

}  // namespace

std::u16string_view ErrorText(int32_t number, Language language) {
  if (const ErrorRow* row = Find(number)) return language == Language::Italian ? row->italian : row->english;
  return language == Language::Italian ? u"Errore di run-time sconosciuto" : u"Unknown runtime error";
}

bool IsKnownError(int32_t number) { return Find(number) != nullptr; }

bool IsCompileError(int32_t number) { return number >= err::kFirstCompileError && number <= err::kLastCompileError; }

ScriptError NamedError(int32_t number, std::string_view name) {
  ScriptError error = MakeError(number);
  error.identifier = text::Utf8ToUtf16(name);
  return error;
}

ScriptError WithName(ScriptError error, std::string_view name) {
  if (error.identifier.empty()) error.identifier = text::Utf8ToUtf16(name);
  return error;
}

std::u16string ErrorMessage(const ScriptError& error, Language language) {
  std::u16string message =
      error.description.empty() ? std::u16string(ErrorText(error.number, language)) : error.description;
  if (!error.identifier.empty()) message += u": '" + error.identifier + u"'";
  return message;
}

}  // namespace vbs
