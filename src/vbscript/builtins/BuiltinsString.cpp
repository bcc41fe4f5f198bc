// The string functions. Strings are UTF-16 code units, as on Windows; Chr and Asc go through
// Windows-1252, the code page of Western European Windows, so that Chr(128) is the euro sign.
// Most functions give Null for a Null string but check their other arguments first, as Windows
// does: Mid(Null, 0) is error 5, Left("x", Null) error 94. The "B" functions see a string as
// its UTF-16LE bytes.

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "text/Utf.h"
#include "vbscript/builtins/Builtins.h"
#include "vbscript/value/Coercion.h"
#include "vbscript/value/SafeArray.h"

namespace vbs {

namespace {

// ---- Helpers ----

// Argument i as text, or nullopt for Null (an object's default value counts).
Result<std::optional<VbString>> TextOrNull(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto plain, args.Value(i));
  if (plain.is_null()) return std::optional<VbString>();
  VBS_TRY_ASSIGN(auto text, plain.to_string(args.locale()));
  return std::optional<VbString>(std::move(text));
}

// A count argument: a Long that must not be negative (error 5).
Result<int32_t> Count(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto n, args.Long(i));
  if (n < 0) return MakeError(err::kInvalidCall);
  return n;
}

// An optional count argument (Replace, Split): -1, also when missing, means all; below -1 is error 5.
Result<int32_t> CountOrAll(const CallArgs& args, size_t i) {
  if (!args.Has(i)) return -1;
  VBS_TRY_ASSIGN(auto n, args.Long(i));
  if (n < -1) return MakeError(err::kInvalidCall);
  return n;
}

Variant Text(std::u16string_view text) { return Variant::String(text); }

std::u16string Folded(std::u16string_view text) {
  std::u16string out(text);
  for (char16_t& c : out) c = text::FoldCase(c);
  return out;
}

// Looks for a needle in a text, ignoring case for a text comparison. Folding keeps every position,
// so a match in the folded copies is a match in the original; the copies are made once.
class Search {
 public:
  Search(std::u16string_view text, std::u16string_view needle, CompareMode mode) : m_text(text), m_needle(needle) {
    if (mode == CompareMode::Text) {
      m_folded_text = Folded(text);
      m_folded_needle = Folded(needle);
      m_text = m_folded_text;
      m_needle = m_folded_needle;
    }
  }
  // The first match at or after `from`, or npos.
  size_t Next(size_t from) const { return m_text.find(m_needle, from); }
  // The last match starting at or before `last_start`, or npos.
  size_t Last(size_t last_start) const { return m_text.rfind(m_needle, last_start); }

 private:
  std::u16string m_folded_text;
  std::u16string m_folded_needle;
  std::u16string_view m_text;
  std::u16string_view m_needle;
};

int Compare(std::u16string_view a, std::u16string_view b, CompareMode mode) {
  const int order = mode == CompareMode::Binary ? a.compare(b) : Folded(a).compare(Folded(b));
  return order < 0 ? -1 : (order > 0 ? 1 : 0);
}

// The Windows-1252 character of a byte, as Chr gives it.
char16_t AnsiCharacter(int32_t code) {
  const char byte = static_cast<char>(code);
  return text::Windows1252ToUtf16(std::string_view(&byte, 1))[0];
}

// A string's UTF-16LE bytes, for the B functions.
std::string Bytes(std::u16string_view text) {
  std::string out;
  out.reserve(text.size() * 2);
  for (char16_t c : text) {
    out += static_cast<char>(c & 0xFF);
    out += static_cast<char>(c >> 8);
  }
  return out;
}

Result<Ref<SafeArray>> StringArray(const std::vector<std::u16string_view>& parts) {
  const ArrayBound bound{0, static_cast<int32_t>(parts.size()) - 1};
  auto array = SafeArray::Create({&bound, 1});
  if (!array) return array;
  for (size_t i = 0; i < parts.size(); ++i) (*array)->elements()[i] = Text(parts[i]);
  return array;
}

// An array argument of one dimension (or none, which has no elements): error 94 for Null, 13 for
// a non-array, 5 for several dimensions. The Variant returned keeps the array alive.
Result<Variant> ListArg(const CallArgs& args, size_t i) {
  auto plain = args.Value(i);
  if (!plain) return plain;
  if (plain->is_null()) return MakeError(err::kNullUse);
  if (!plain->is_array()) return MakeError(err::kTypeMismatch);
  if (plain->as_array()->DimensionCount() > 1) return MakeError(err::kInvalidCall);
  return plain;
}

std::span<const Variant> Elements(const Variant& list) { return list.as_array()->elements(); }

Result<VbString> ElementText(const Variant& element, const Locale& locale) { return element.Deref().to_string(locale); }

// ---- Length, pieces and characters ----

Result<Variant> LenFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto text, TextOrNull(args, 0));
  if (!text) return Variant::Null();
  return Variant::Long(static_cast<int32_t>((text)->size()));
}

Result<Variant> LeftFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto n, Count(args, 1));
  VBS_TRY_ASSIGN(auto text, TextOrNull(args, 0));
  if (!text) return Variant::Null();
  return Text((text)->view().substr(0, static_cast<size_t>(n)));
}

Result<Variant> RightFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto n, Count(args, 1));
  VBS_TRY_ASSIGN(auto text, TextOrNull(args, 0));
  if (!text) return Variant::Null();
  const std::u16string_view view = (text)->view();
  return Text(view.substr(view.size() - std::min(view.size(), static_cast<size_t>(n))));
}

// Mid's start and length: the length is read first, then the start; both are checked after.
struct Span {
  size_t from;
  size_t length;
};

Result<Span> MidSpan(const CallArgs& args) {
  int32_t length = -1;
  const bool has_length = args.Has(2);
  if (has_length) {
    VBS_TRY_ASSIGN(auto n, args.Long(2));
    length = n;
  }
  VBS_TRY_ASSIGN(auto start, args.Long(1));
  if (start < 1 || (has_length && length < 0)) return MakeError(err::kInvalidCall);
  return Span{static_cast<size_t>(start) - 1, has_length ? static_cast<size_t>(length) : std::u16string_view::npos};
}

Result<Variant> MidFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto span, MidSpan(args));
  VBS_TRY_ASSIGN(auto text, TextOrNull(args, 0));
  if (!text) return Variant::Null();
  const std::u16string_view view = (text)->view();
  if (span.from >= view.size()) return Text(u"");
  return Text(view.substr(span.from, span.length));
}

// The first code unit of a non-empty string: error 94 for Null, 5 for "".
Result<char16_t> FirstUnit(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto text, args.Text(i));
  if (text.empty()) return MakeError(err::kInvalidCall);
  return text.view()[0];
}

Result<Variant> AscFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto c, FirstUnit(args, 0));
  const std::string ansi = text::Utf16ToWindows1252(std::u16string_view(&c, 1));
  return Variant::Integer(static_cast<unsigned char>(ansi[0]));
}

Result<Variant> AscWFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto c, FirstUnit(args, 0));
  return Variant::Integer(static_cast<int16_t>(c));
}

Result<Variant> AscBFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto c, FirstUnit(args, 0));
  return Variant::Integer(static_cast<int16_t>(c & 0xFF));
}

Result<Variant> ChrFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto code, args.Long(0));
  if (code < 0 || code > 255) return MakeError(err::kInvalidCall);
  return Variant::String(std::u16string(1, AnsiCharacter(code)));
}

Result<Variant> ChrWFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto code, args.Long(0));
  if (code < -32768 || code > 65535) return MakeError(err::kInvalidCall);
  return Variant::String(std::u16string(1, static_cast<char16_t>(code & 0xFFFF)));
}

// A string holds whole code units, so the one byte of ChrB becomes the code unit of that value.
Result<Variant> ChrBFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto code, args.Long(0));
  if (code < 0 || code > 255) return MakeError(err::kInvalidCall);
  return Variant::String(std::u16string(1, static_cast<char16_t>(code)));
}

// ---- Bytes: LenB, LeftB, RightB, MidB, InStrB. Byte counts that split a code unit round down. ----

Result<Variant> LenBFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto text, TextOrNull(args, 0));
  if (!text) return Variant::Null();
  return Variant::Long(static_cast<int32_t>((text)->size() * 2));
}

Result<Variant> LeftBFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto n, Count(args, 1));
  VBS_TRY_ASSIGN(auto text, TextOrNull(args, 0));
  if (!text) return Variant::Null();
  return Text((text)->view().substr(0, static_cast<size_t>(n) / 2));
}

Result<Variant> RightBFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto n, Count(args, 1));
  VBS_TRY_ASSIGN(auto text, TextOrNull(args, 0));
  if (!text) return Variant::Null();
  const std::u16string_view view = (text)->view();
  return Text(view.substr(view.size() - std::min(view.size(), static_cast<size_t>(n) / 2)));
}

Result<Variant> MidBFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto span, MidSpan(args));
  VBS_TRY_ASSIGN(auto text, TextOrNull(args, 0));
  if (!text) return Variant::Null();
  const std::u16string_view view = (text)->view();
  const size_t from = span.from / 2;
  if (from >= view.size()) return Text(u"");
  const size_t length = span.length == std::u16string_view::npos ? span.length : span.length / 2;
  return Text(view.substr(from, length));
}

// ---- Searching ----

// InStr's and InStrB's arguments: [start,] string1, string2 [, compare]. The start and compare
// arguments are checked before a Null string makes the result Null.
struct SearchArgs {
  int32_t start = 1;
  CompareMode mode = CompareMode::Binary;
  std::optional<VbString> text;
  std::optional<VbString> needle;
};

Result<SearchArgs> ReadSearchArgs(const CallArgs& args) {
  SearchArgs search;
  size_t first_text = 0;
  if (args.size() > 2) {
    VBS_TRY_ASSIGN(auto start, args.Long(0));
    if (start < 1) return MakeError(err::kInvalidCall);
    search.start = start;
    first_text = 1;
    VBS_TRY_ASSIGN(auto mode, args.Compare(3));
    search.mode = mode;
  }
  VBS_TRY_ASSIGN(auto text, TextOrNull(args, first_text));
  VBS_TRY_ASSIGN(auto needle, TextOrNull(args, first_text + 1));
  search.text = std::move(text);
  search.needle = std::move(needle);
  return search;
}

Result<Variant> InStrFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto search, ReadSearchArgs(args));
  if (!search.text || !search.needle) return Variant::Null();
  const std::u16string_view text = search.text->view();
  const auto from = static_cast<size_t>(search.start) - 1;
  if (from >= text.size()) return Variant::Long(0);
  if (search.needle->empty()) return Variant::Long(search.start);
  const size_t found = Search(text, search.needle->view(), search.mode).Next(from);
  return Variant::Long(found == std::u16string_view::npos ? 0 : static_cast<int32_t>(found) + 1);
}

Result<Variant> InStrBFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto search, ReadSearchArgs(args));
  if (!search.text || !search.needle) return Variant::Null();
  std::string text = Bytes(search.text->view());
  std::string needle = Bytes(search.needle->view());
  if (search.mode == CompareMode::Text) {
    for (std::string* bytes : {&text, &needle})
      for (char& b : *bytes) b = static_cast<char>(text::FoldCase(static_cast<unsigned char>(b)));
  }
  const auto from = static_cast<size_t>(search.start) - 1;
  if (from >= text.size()) return Variant::Long(0);
  if (needle.empty()) return Variant::Long(search.start);
  const size_t found = text.find(needle, from);
  return Variant::Long(found == std::string::npos ? 0 : static_cast<int32_t>(found) + 1);
}

// InStrRev(string1, string2 [, start [, compare]]): unlike InStr, a Null string is error 94.
Result<Variant> InStrRevFunction(Frame&, CallArgs& args) {
  int32_t start = -1;
  if (args.Has(2)) {
    VBS_TRY_ASSIGN(auto n, args.Long(2));
    if (n == 0 || n < -1) return MakeError(err::kInvalidCall);
    start = n;
  }
  VBS_TRY_ASSIGN(auto mode, args.Compare(3));
  VBS_TRY_ASSIGN(auto text, args.Text(0));
  VBS_TRY_ASSIGN(auto needle, args.Text(1));
  const auto length = static_cast<int32_t>(text.size());
  if (start == -1) start = length;
  if (length == 0 || start > length) return Variant::Long(0);
  if (needle.empty()) return Variant::Long(start);
  const auto needle_length = static_cast<int32_t>(needle.size());
  if (needle_length > start) return Variant::Long(0);
  const size_t found = Search(text.view(), needle.view(), mode).Last(static_cast<size_t>(start - needle_length));
  return Variant::Long(found == std::u16string_view::npos ? 0 : static_cast<int32_t>(found) + 1);
}

Result<Variant> StrCompFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto mode, args.Compare(2));
  VBS_TRY_ASSIGN(auto a, TextOrNull(args, 0));
  VBS_TRY_ASSIGN(auto b, TextOrNull(args, 1));
  if (!a || !b) return Variant::Null();
  return Variant::Integer(static_cast<int16_t>(Compare((a)->view(), (b)->view(), mode)));
}

// ---- Changing case, trimming, building ----

template <char16_t (*Map)(char16_t)>
Result<Variant> MapCase(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto text, TextOrNull(args, 0));
  if (!text) return Variant::Null();
  std::u16string out((text)->view());
  for (char16_t& c : out) c = Map(c);
  return Variant::String(out);
}

enum class TrimSide { Left, Right, Both };

// Only spaces are trimmed, not tabs or line breaks.
template <TrimSide side>
Result<Variant> TrimFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto text, TextOrNull(args, 0));
  if (!text) return Variant::Null();
  std::u16string_view view = (text)->view();
  if (side != TrimSide::Right)
    while (!view.empty() && view.front() == u' ') view.remove_prefix(1);
  if (side != TrimSide::Left)
    while (!view.empty() && view.back() == u' ') view.remove_suffix(1);
  return Text(view);
}

Result<Variant> SpaceFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto n, Count(args, 0));
  VBS_TRY_ASSIGN(auto text, VbString::TryCreate(static_cast<size_t>(n), u' '));
  return Variant::String(std::move(text));
}

// String(n, character): the character is the first of a string, or a character code taken
// modulo 256 in Windows-1252. A Null count or character gives Null; "" is error 5.
Result<Variant> StringFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto count, args.Value(0));
  if (count.is_null()) return Variant::Null();
  VBS_TRY_ASSIGN(auto n, Count(args, 0));
  VBS_TRY_ASSIGN(auto plain, args.Value(1));
  if (plain.is_null()) return Variant::Null();
  char16_t fill = 0;
  if (plain.is_string()) {
    if (plain.as_string_view().empty()) return MakeError(err::kInvalidCall);
    fill = plain.as_string_view()[0];
  } else {
    VBS_TRY_ASSIGN(auto code, plain.to_long(args.locale()));
    fill = AnsiCharacter((code % 256 + 256) % 256);
  }
  VBS_TRY_ASSIGN(auto text, VbString::TryCreate(static_cast<size_t>(n), fill));
  return Variant::String(std::move(text));
}

Result<Variant> StrReverseFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto text, args.Text(0));
  std::u16string out(text.view());
  std::reverse(out.begin(), out.end());
  return Variant::String(out);
}

// Replace(expression, find, replacement [, start [, count [, compare]]]): the result begins at
// `start`, the text before it dropped. Unlike most string functions, a Null string is error 94.
Result<Variant> ReplaceFunction(Frame&, CallArgs& args) {
  std::optional<VbString> parts[3];
  for (size_t i = 0; i < 3; ++i) {
    VBS_TRY_ASSIGN(auto text, args.Text(i));
    parts[i] = std::move(text);
  }
  int32_t start = 1;
  if (args.Has(3)) {
    VBS_TRY_ASSIGN(auto n, args.Long(3));
    if (n < 1) return MakeError(err::kInvalidCall);
    start = n;
  }
  VBS_TRY_ASSIGN(auto count, CountOrAll(args, 4));
  VBS_TRY_ASSIGN(auto mode, args.Compare(5));

  const std::u16string_view whole = parts[0]->view();
  const std::u16string_view text = static_cast<size_t>(start) > whole.size() ? u"" : whole.substr(start - 1);
  const std::u16string_view find = parts[1]->view();
  const std::u16string_view replacement = parts[2]->view();
  if (find.empty() || count == 0) return Text(text);
  // The matches first, so that a result too long to hold fails before anything is built.
  const Search search(text, find, mode);
  std::vector<size_t> matches;
  for (size_t at = 0; count == -1 || matches.size() < static_cast<size_t>(count);) {
    const size_t found = search.Next(at);
    if (found == std::u16string_view::npos) break;
    matches.push_back(found);
    at = found + find.size();
  }
  const size_t kept = text.size() - matches.size() * find.size();
  if (!matches.empty() && replacement.size() > (VbString::kMaxLength - kept) / matches.size())
    return MakeError(err::kOutOfMemory);
  VbString out;
  VBS_TRY(out.Reserve(kept + matches.size() * replacement.size()));
  size_t at = 0;
  for (size_t found : matches) {
    VBS_TRY(out.Append(text.substr(at, found - at)));
    VBS_TRY(out.Append(replacement));
    at = found + find.size();
  }
  VBS_TRY(out.Append(text.substr(at)));
  return Variant::String(std::move(out));
}

// ---- Arrays of strings ----

// Split(expression [, delimiter [, count [, compare]]]): "" splits into no elements; a count of
// -1 means all, and the last element keeps the rest of the text.
Result<Variant> SplitFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto text, args.Text(0));
  VbString delimiter(u" ");
  if (args.Has(1)) {
    VBS_TRY_ASSIGN(auto d, args.Text(1));
    delimiter = std::move(d);
  }
  VBS_TRY_ASSIGN(auto count, CountOrAll(args, 2));
  VBS_TRY_ASSIGN(auto mode, args.Compare(3));

  std::vector<std::u16string_view> parts;
  const std::u16string_view view = text.view();
  if (!view.empty() && count != 0) {
    const Search search(view, delimiter.view(), mode);
    size_t at = 0;
    while (delimiter.size() != 0 && (count == -1 || static_cast<int32_t>(parts.size()) < count - 1)) {
      const size_t found = search.Next(at);
      if (found == std::u16string_view::npos) break;
      parts.push_back(view.substr(at, found - at));
      at = found + delimiter.size();
    }
    parts.push_back(view.substr(at));
  }
  VBS_TRY_ASSIGN(auto array, StringArray(parts));
  return Variant::Array(array);
}

Result<Variant> JoinFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto list, ListArg(args, 0));
  VbString delimiter(u" ");
  if (args.Has(1)) {
    VBS_TRY_ASSIGN(auto d, args.Text(1));
    delimiter = std::move(d);
  }
  VbString out;
  const std::span<const Variant> items = Elements(list);
  for (size_t i = 0; i < items.size(); ++i) {
    VBS_TRY_ASSIGN(auto item, ElementText(items[i], args.locale()));
    if (i > 0) VBS_TRY(out.Append(delimiter.view()));
    VBS_TRY(out.Append(item.view()));
  }
  return Variant::String(std::move(out));
}

// Filter(strings, value [, include [, compare]]): the elements that contain the value (or, with
// include False, that do not), in a new 0-based array.
Result<Variant> FilterFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto list, ListArg(args, 0));
  VBS_TRY_ASSIGN(auto value, args.Text(1));
  bool include = true;
  if (args.Has(2)) {
    VBS_TRY_ASSIGN(auto b, args.Boolean(2));
    include = b;
  }
  VBS_TRY_ASSIGN(auto mode, args.Compare(3));
  std::vector<VbString> kept;
  for (const Variant& element : Elements(list)) {
    VBS_TRY_ASSIGN(auto item, ElementText(element, args.locale()));
    if ((Search(item.view(), value.view(), mode).Next(0) != std::u16string_view::npos) == include)
      kept.push_back(std::move(item));
  }
  std::vector<std::u16string_view> parts;
  for (const VbString& s : kept) parts.push_back(s.view());
  VBS_TRY_ASSIGN(auto array, StringArray(parts));
  return Variant::Array(array);
}

// ---- Escape and Unescape: the %XX and %uXXXX forms of URLs ----

bool KeptByEscape(char16_t c) {
  return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9') ||
         std::u16string_view(u"@*_+-./").find(c) != std::u16string_view::npos;
}

void AppendHex(std::u16string& out, unsigned value, int digits) {
  static constexpr char16_t kDigits[] = u"0123456789ABCDEF";
  for (int shift = (digits - 1) * 4; shift >= 0; shift -= 4) out += kDigits[(value >> shift) & 0xF];
}

Result<Variant> EscapeFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto text, TextOrNull(args, 0));
  if (!text) return Variant::Null();
  std::u16string out;
  for (char16_t c : (text)->view()) {
    if (KeptByEscape(c)) {
      out += c;
    } else if (c < 0x100) {
      out += u'%';
      AppendHex(out, c, 2);
    } else {
      out += u"%u";
      AppendHex(out, c, 4);
    }
  }
  return Variant::String(out);
}

// The value of `digits` hexadecimal digits at `at`, or nullopt when they are not all there.
std::optional<char16_t> HexAt(std::u16string_view text, size_t at, size_t digits) {
  if (at + digits > text.size()) return std::nullopt;
  unsigned value = 0;
  for (char16_t c : text.substr(at, digits)) {
    const char16_t folded = text::FoldCase(c);
    if (c >= u'0' && c <= u'9') {
      value = value * 16 + (c - u'0');
    } else if (folded >= u'a' && folded <= u'f') {
      value = value * 16 + (folded - u'a' + 10);
    } else {
      return std::nullopt;
    }
  }
  return static_cast<char16_t>(value);
}

Result<Variant> UnescapeFunction(Frame&, CallArgs& args) {
  VBS_TRY_ASSIGN(auto text, TextOrNull(args, 0));
  if (!text) return Variant::Null();
  const std::u16string_view in = (text)->view();
  std::u16string out;
  for (size_t i = 0; i < in.size(); ++i) {
    if (in[i] == u'%') {
      if (i + 1 < in.size() && in[i + 1] == u'u') {
        if (auto c = HexAt(in, i + 2, 4)) {
          out += *c;
          i += 5;
          continue;
        }
      } else if (auto c = HexAt(in, i + 1, 2)) {
        out += *c;
        i += 2;
        continue;
      }
    }
    out += in[i];
  }
  return Variant::String(out);
}

const Builtin kString[] = {
    {"Len", 1, 1, &LenFunction, "Len(string): length in characters; Null for Null"},
    {"LenB", 1, 1, &LenBFunction, "LenB(string): length in bytes"},
    {"Left", 2, 2, &LeftFunction, "Left(string, length): the first characters"},
    {"LeftB", 2, 2, &LeftBFunction, "LeftB(string, bytes): the first bytes"},
    {"Right", 2, 2, &RightFunction, "Right(string, length): the last characters"},
    {"RightB", 2, 2, &RightBFunction, "RightB(string, bytes): the last bytes"},
    {"Mid", 2, 3, &MidFunction, "Mid(string, start [, length]): characters from a 1-based position"},
    {"MidB", 2, 3, &MidBFunction, "MidB(string, start [, length]): bytes from a 1-based byte position"},
    {"Asc", 1, 1, &AscFunction, "Asc(string): the Windows-1252 code of the first character"},
    {"AscB", 1, 1, &AscBFunction, "AscB(string): the first byte"},
    {"AscW", 1, 1, &AscWFunction, "AscW(string): the UTF-16 code of the first character"},
    {"Chr", 1, 1, &ChrFunction, "Chr(code): the character of a Windows-1252 code, 0-255"},
    {"ChrB", 1, 1, &ChrBFunction, "ChrB(code): the character of a byte value"},
    {"ChrW", 1, 1, &ChrWFunction, "ChrW(code): the character of a UTF-16 code"},
    {"InStr", 2, 4, &InStrFunction, "InStr([start,] string, find [, compare]): position of the first match, 0 if none"},
    {"InStrB", 2, 4, &InStrBFunction, "InStrB([start,] string, find [, compare]): byte position of the first match"},
    {"InStrRev", 2, 4, &InStrRevFunction, "InStrRev(string, find [, start [, compare]]): position of the last match"},
    {"StrComp", 2, 3, &StrCompFunction, "StrComp(a, b [, compare]): -1, 0 or 1"},
    {"LCase", 1, 1, &MapCase<&text::LowerCase>, "LCase(string): in lower case"},
    {"UCase", 1, 1, &MapCase<&text::UpperCase>, "UCase(string): in upper case"},
    {"LTrim", 1, 1, &TrimFunction<TrimSide::Left>, "LTrim(string): without leading spaces"},
    {"RTrim", 1, 1, &TrimFunction<TrimSide::Right>, "RTrim(string): without trailing spaces"},
    {"Trim", 1, 1, &TrimFunction<TrimSide::Both>, "Trim(string): without leading and trailing spaces"},
    {"Space", 1, 1, &SpaceFunction, "Space(n): n spaces"},
    {"String", 2, 2, &StringFunction, "String(n, character): a character repeated n times"},
    {"StrReverse", 1, 1, &StrReverseFunction, "StrReverse(string): the characters in reverse order"},
    {"Replace", 3, 6, &ReplaceFunction, "Replace(string, find, with [, start [, count [, compare]]]): replaced text"},
    {"Split", 1, 4, &SplitFunction, "Split(string [, delimiter [, count [, compare]]]): an array of the pieces"},
    {"Join", 1, 2, &JoinFunction, "Join(array [, delimiter]): the elements joined into one string"},
    {"Filter", 2, 4, &FilterFunction, "Filter(array, value [, include [, compare]]): the elements containing a value"},
    {"Escape", 1, 1, &EscapeFunction, "Escape(string): %XX and %uXXXX for characters outside A-Z a-z 0-9 @*_+-./"},
    {"Unescape", 1, 1, &UnescapeFunction, "Unescape(string): the text with %XX and %uXXXX decoded"},
};

}  // namespace

std::span<const Builtin> StringBuiltins() { return kString; }

}  // namespace vbs
