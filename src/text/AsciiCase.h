#pragma once

// Case without a locale: only 'A'-'Z' and 'a'-'z' change, every other byte or code unit (UTF-8
// sequences, Windows-1252 letters, digits) is left as it is. Names of wheels, functions, members,
// INI keys and file extensions are ASCII, and their lookups must not depend on the C library's
// locale, which Qt sets from the environment.

#include <string>
#include <string_view>

namespace text {

constexpr char LowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
constexpr char UpperAscii(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
constexpr char16_t LowerAscii(char16_t c) {
  return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c - u'A' + u'a') : c;
}
constexpr char16_t UpperAscii(char16_t c) {
  return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - u'a' + u'A') : c;
}

// A copy of `s` with its ASCII letters in lower (upper) case.
std::string LowerAscii(std::string_view s);
std::string UpperAscii(std::string_view s);

// Whether the two texts are the same once their ASCII letters are folded.
bool EqualsIgnoringAsciiCase(std::string_view a, std::string_view b);
bool EqualsIgnoringAsciiCase(std::u16string_view a, std::u16string_view b);

}  // namespace text
