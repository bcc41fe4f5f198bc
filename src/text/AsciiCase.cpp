#include "text/AsciiCase.h"

#include <algorithm>

namespace text {

namespace {

template <typename Char>
std::basic_string<Char> Mapped(std::basic_string_view<Char> s, Char (*map)(Char)) {
  std::basic_string<Char> out(s);
  for (Char& c : out) c = map(c);
  return out;
}

template <typename Char>
bool EqualFolded(std::basic_string_view<Char> a, std::basic_string_view<Char> b) {
  return std::ranges::equal(a, b, [](Char x, Char y) { return LowerAscii(x) == LowerAscii(y); });
}

}  // namespace

std::string LowerAscii(std::string_view s) { return Mapped<char>(s, LowerAscii); }
std::string UpperAscii(std::string_view s) { return Mapped<char>(s, UpperAscii); }

bool EqualsIgnoringAsciiCase(std::string_view a, std::string_view b) { return EqualFolded(a, b); }
bool EqualsIgnoringAsciiCase(std::u16string_view a, std::u16string_view b) { return EqualFolded(a, b); }

}  // namespace text
