#pragma once

// Text conversions at the engine's edges. Inside, every string is UTF-16 as on Windows; files and
// the host speak UTF-8, and scripts written on Italian Windows are often Windows-1252. The
// conversions never fail: a malformed byte is read as the Windows-1252 character it would be, and
// a lone surrogate survives a round trip through UTF-8 (encoded as its three-byte form), so that
// any script string can go out and come back unchanged.

#include <string>
#include <string_view>

namespace text {

enum class TextEncoding {
  Utf8Bom,      // EF BB BF
  Utf16LeBom,   // FF FE
  Utf16BeBom,   // FE FF
  Utf8,         // no BOM, every byte sequence valid UTF-8
  Windows1252,  // no BOM, not valid UTF-8
};

// UTF-8 to UTF-16; bytes that do not form valid UTF-8 each become their Windows-1252 character.
std::u16string Utf8ToUtf16(std::string_view bytes);
// UTF-16 to UTF-8; a lone surrogate is written as its three-byte form.
std::string Utf16ToUtf8(std::u16string_view text);
std::u16string Windows1252ToUtf16(std::string_view bytes);
// Characters that Windows-1252 lacks become `replacement`.
std::string Utf16ToWindows1252(std::u16string_view text, char replacement = '?');

// How a script file's bytes are encoded, from its BOM or, without one, from whether they are UTF-8.
TextEncoding DetectEncoding(std::string_view bytes);
// A script file's text, BOM removed.
std::u16string DecodeScriptFile(std::string_view bytes);

// The lower-case form used where the language ignores case (Option Compare Text, InStr with
// vbTextCompare, keywords and month names): ASCII, Latin-1 and Latin Extended-A letters.
char16_t FoldCase(char16_t c);
bool EqualsIgnoringCase(std::u16string_view a, std::u16string_view b);

// The case mapping of UCase, LCase and a regular expression that ignores case: the letters FoldCase
// knows, plus basic Greek and Cyrillic. A character without the other case comes back unchanged.
char16_t UpperCase(char16_t c);
char16_t LowerCase(char16_t c);

}  // namespace text
