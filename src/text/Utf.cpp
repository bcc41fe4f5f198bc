#include "text/Utf.h"

#include <array>
#include <cstdint>

namespace text {
namespace {

// Windows-1252 differs from Latin-1 only in 0x80-0x9F; the five unassigned bytes map to the C1
// control of the same value, as Windows' own conversion does.
constexpr std::array<char16_t, 32> kCp1252High = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                  0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t Cp1252ToUnit(unsigned char byte) {
  if (byte >= 0x80 && byte < 0xA0) return kCp1252High[byte - 0x80];
  return byte;
}

bool IsContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// Length of the valid UTF-8 sequence starting at `i` and its code point, or 0 when the bytes there
// are not valid UTF-8. Encoded surrogates are accepted so that lone surrogates round-trip.
size_t DecodeOne(std::string_view s, size_t i, uint32_t& code_point) {
  const auto b0 = static_cast<unsigned char>(s[i]);
  if (b0 < 0x80) {
    code_point = b0;
    return 1;
  }
  size_t length = 0;
  uint32_t min = 0;
  if (b0 >= 0xC2 && b0 <= 0xDF) {
    length = 2;
    code_point = b0 & 0x1F;
    min = 0x80;
  } else if (b0 >= 0xE0 && b0 <= 0xEF) {
    length = 3;
    code_point = b0 & 0x0F;
    min = 0x800;
  } else if (b0 >= 0xF0 && b0 <= 0xF4) {
    length = 4;
    code_point = b0 & 0x07;
    min = 0x10000;
  } else {
    return 0;
  }
  if (i + length > s.size()) return 0;
  for (size_t k = 1; k < length; ++k) {
    const auto b = static_cast<unsigned char>(s[i + k]);
    if (!IsContinuation(b)) return 0;
    code_point = (code_point << 6) | (b & 0x3F);
  }
  if (code_point < min || code_point > 0x10FFFF) return 0;
  return length;
}

void AppendUtf8(std::string& out, uint32_t cp) {
  if (cp < 0x80) {
    out += static_cast<char>(cp);
  } else if (cp < 0x800) {
    out += static_cast<char>(0xC0 | (cp >> 6));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else if (cp < 0x10000) {
    out += static_cast<char>(0xE0 | (cp >> 12));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (cp >> 18));
    out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  }
}

bool IsHighSurrogate(char16_t c) { return c >= 0xD800 && c <= 0xDBFF; }
bool IsLowSurrogate(char16_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

bool IsValidUtf8(std::string_view bytes) {
  for (size_t i = 0; i < bytes.size();) {
    uint32_t cp = 0;
    const size_t n = DecodeOne(bytes, i, cp);
    if (n == 0) return false;
    i += n;
  }
  return true;
}

std::u16string Utf16BytesToUtf16(std::string_view bytes, bool big_endian) {
  std::u16string out;
  out.reserve(bytes.size() / 2);
  for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto lo = static_cast<unsigned char>(bytes[big_endian ? i + 1 : i]);
    const auto hi = static_cast<unsigned char>(bytes[big_endian ? i : i + 1]);
    out += static_cast<char16_t>(lo | (hi << 8));
  }
  return out;
}

}  // namespace

std::u16string Utf8ToUtf16(std::string_view bytes) {
  std::u16string out;
  out.reserve(bytes.size());
  for (size_t i = 0; i < bytes.size();) {
    uint32_t cp = 0;
    const size_t n = DecodeOne(bytes, i, cp);
    if (n == 0) {
      out += Cp1252ToUnit(static_cast<unsigned char>(bytes[i]));
      ++i;
      continue;
    }
    if (cp >= 0x10000) {
      cp -= 0x10000;
      out += static_cast<char16_t>(0xD800 + (cp >> 10));
      out += static_cast<char16_t>(0xDC00 + (cp & 0x3FF));
    } else {
      out += static_cast<char16_t>(cp);
    }
    i += n;
  }
  return out;
}

std::string Utf16ToUtf8(std::u16string_view text) {
  std::string out;
  out.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    const char16_t c = text[i];
    if (IsHighSurrogate(c) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
      const uint32_t cp = 0x10000 + ((c - 0xD800) << 10) + (text[i + 1] - 0xDC00);
      AppendUtf8(out, cp);
      ++i;
    } else {
      AppendUtf8(out, c);
    }
  }
  return out;
}

std::u16string Windows1252ToUtf16(std::string_view bytes) {
  std::u16string out;
  out.reserve(bytes.size());
  for (char b : bytes) out += Cp1252ToUnit(static_cast<unsigned char>(b));
  return out;
}

std::string Utf16ToWindows1252(std::u16string_view text, char replacement) {
  std::string out;
  out.reserve(text.size());
  for (char16_t c : text) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
      out += static_cast<char>(c);
      continue;
    }
    char byte = replacement;
    for (size_t k = 0; k < kCp1252High.size(); ++k) {
      if (kCp1252High[k] == c) {
        byte = static_cast<char>(0x80 + k);
        break;
      }
    }
    out += byte;
  }
  return out;
}

TextEncoding DetectEncoding(std::string_view bytes) {
  if (bytes.starts_with("\xEF\xBB\xBF")) return TextEncoding::Utf8Bom;
  if (bytes.starts_with("\xFF\xFE")) return TextEncoding::Utf16LeBom;
  if (bytes.starts_with("\xFE\xFF")) return TextEncoding::Utf16BeBom;
  return IsValidUtf8(bytes) ? TextEncoding::Utf8 : TextEncoding::Windows1252;
}

std::u16string DecodeScriptFile(std::string_view bytes) {
  switch (DetectEncoding(bytes)) {
    case TextEncoding::Utf8Bom: return Utf8ToUtf16(bytes.substr(3));
    case TextEncoding::Utf16LeBom: return Utf16BytesToUtf16(bytes.substr(2), false);
    case TextEncoding::Utf16BeBom: return Utf16BytesToUtf16(bytes.substr(2), true);
    case TextEncoding::Utf8: return Utf8ToUtf16(bytes);
    case TextEncoding::Windows1252: break;
  }
  return Windows1252ToUtf16(bytes);
}

char16_t FoldCase(char16_t c) {
  if (c >= u'A' && c <= u'Z') return static_cast<char16_t>(c + 32);
  if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return static_cast<char16_t>(c + 32);
  if (c == 0x178) return 0xFF;  // Ÿ, whose small letter is in Latin-1
  if (c >= 0x100 && c <= 0x17F && c != 0x130 && c != 0x131 && c != 0x138 && c != 0x149) {
    // Latin Extended-A pairs each capital with the next code point, shifting parity at 0x139-0x148
    // and 0x179-0x17E.
    const bool odd_capitals = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
    if ((c % 2 == 1) == odd_capitals) return static_cast<char16_t>(c + 1);
  }
  return c;
}

bool EqualsIgnoringCase(std::u16string_view a, std::u16string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    if (FoldCase(a[i]) != FoldCase(b[i])) return false;
  }
  return true;
}

char16_t UpperCase(char16_t c) {
  if (c >= u'a' && c <= u'z') return static_cast<char16_t>(c - 32);
  if (c < 0xE0) return c;
  if (c <= 0xFE) return c == 0xF7 ? c : static_cast<char16_t>(c - 32);
  if (c == 0xFF) return 0x178;
  if (c > 0x100 && c <= 0x17F) return FoldCase(static_cast<char16_t>(c - 1)) == c ? static_cast<char16_t>(c - 1) : c;
  if (c >= 0x3B1 && c <= 0x3C9) return c == 0x3C2 ? char16_t{0x3A3} : static_cast<char16_t>(c - 32);  // Greek
  if (c >= 0x430 && c <= 0x44F) return static_cast<char16_t>(c - 32);                                 // Cyrillic
  if (c >= 0x450 && c <= 0x45F) return static_cast<char16_t>(c - 80);
  return c;
}

char16_t LowerCase(char16_t c) {
  if ((c >= 0x391 && c <= 0x3A9 && c != 0x3A2) || (c >= 0x410 && c <= 0x42F)) return static_cast<char16_t>(c + 32);
  if (c >= 0x400 && c <= 0x40F) return static_cast<char16_t>(c + 80);
  return FoldCase(c);
}

}  // namespace text
