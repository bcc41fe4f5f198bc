#include "vbscript/objects/regexp/RegExpParser.h"

#include <algorithm>
#include <optional>

namespace vbs::regexp {

namespace {

// Nesting deeper than this is refused rather than risking the parser's own stack.
constexpr int kMaxNesting = 500;
constexpr int32_t kMaxCount = INT32_MAX / 2;

using CharClass = RegExpProgram::CharClass;
using Ranges = std::vector<std::pair<char16_t, char16_t>>;

// ---- Classes ----

Ranges Normalised(Ranges ranges) {
  std::sort(ranges.begin(), ranges.end());
  Ranges merged;
  for (const auto& range : ranges) {
    if (!merged.empty() && range.first <= merged.back().second + 1)
      merged.back().second = std::max(merged.back().second, range.second);
    else
      merged.push_back(range);
  }
  return merged;
}

Ranges Complement(const Ranges& ranges) {
  Ranges out;
  uint32_t next = 0;
  for (const auto& [lo, hi] : Normalised(ranges)) {
    if (lo > next) out.emplace_back(static_cast<char16_t>(next), static_cast<char16_t>(lo - 1));
    next = uint32_t{hi} + 1;
  }
  if (next <= 0xFFFF) out.emplace_back(static_cast<char16_t>(next), char16_t{0xFFFF});
  return out;
}

// \d \w \s and their capitals; \s is [ \f\n\r\t\v], as the language's documentation has it.
Ranges Predefined(char16_t letter) {
  Ranges ranges;
  switch (letter) {
    case u'd':
    case u'D': ranges = {{u'0', u'9'}}; break;
    case u'w':
    case u'W': ranges = {{u'0', u'9'}, {u'A', u'Z'}, {u'_', u'_'}, {u'a', u'z'}}; break;
    default: ranges = {{u'\t', u'\r'}, {u' ', u' '}}; break;
  }
  return letter >= u'A' && letter <= u'Z' ? Complement(ranges) : ranges;
}

int HexValue(char16_t c) {
  if (c >= u'0' && c <= u'9') return c - u'0';
  if (c >= u'a' && c <= u'f') return c - u'a' + 10;
  if (c >= u'A' && c <= u'F') return c - u'A' + 10;
  return -1;
}

bool IsOctal(char16_t c) { return c >= u'0' && c <= u'7'; }
bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

NodePtr Leaf(Kind kind) { return std::make_unique<Node>(kind); }

NodePtr CharNode(char16_t c) {
  auto node = Leaf(Kind::Char);
  node->ch = c;
  return node;
}

// A character of a class: one code unit, or a set such as \d.
struct ClassAtom {
  bool is_set = false;
  char16_t ch = 0;
  Ranges set;
};

// ---- Parser ----

class PatternParser {
 public:
  PatternParser(std::u16string_view pattern, std::vector<CharClass>& classes)
      : m_pattern(pattern), m_classes(classes) {}

  Result<NodePtr> Parse() {
    m_total_groups = CountGroups();
    auto node = Disjunction(0);
    if (!node) return node;
    if (!AtEnd()) return MakeError(err::kRegExpSyntax);  // a ')' without its '('
    return node;
  }
  uint32_t groups() const { return m_next_group - 1; }

 private:
  bool AtEnd() const { return m_pos >= m_pattern.size(); }
  bool Has(size_t ahead) const { return m_pos + ahead < m_pattern.size(); }
  char16_t Peek(size_t ahead = 0) const { return Has(ahead) ? m_pattern[m_pos + ahead] : 0; }

  // Capturing groups of the whole pattern: whether \n is a backreference depends on it.
  uint32_t CountGroups() const {
    uint32_t count = 0;
    bool in_class = false;
    for (size_t i = 0; i < m_pattern.size(); ++i) {
      const char16_t c = m_pattern[i];
      if (c == u'\\') {
        ++i;
      } else if (in_class) {
        in_class = c != u']';
      } else if (c == u'[') {
        in_class = true;
      } else if (c == u'(' && (i + 1 >= m_pattern.size() || m_pattern[i + 1] != u'?')) {
        ++count;
      }
    }
    return count;
  }

  Result<NodePtr> Disjunction(int depth) {
    if (depth > kMaxNesting) return MakeError(err::kOutOfStack);
    auto first = Alternative(depth);
    if (!first || Peek() != u'|' || AtEnd()) return first;
    auto alt = Leaf(Kind::Alt);
    alt->children.push_back(std::move(*first));
    while (!AtEnd() && Peek() == u'|') {
      ++m_pos;
      auto next = Alternative(depth);
      if (!next) return next;
      alt->children.push_back(std::move(*next));
    }
    return alt;
  }

  Result<NodePtr> Alternative(int depth) {
    auto concat = Leaf(Kind::Concat);
    while (!AtEnd() && Peek() != u'|' && Peek() != u')') {
      auto term = Term(depth);
      if (!term) return term;
      concat->children.push_back(std::move(*term));
    }
    if (concat->children.empty()) return Leaf(Kind::Empty);
    if (concat->children.size() == 1) return std::move(concat->children[0]);
    return concat;
  }

  Result<NodePtr> Term(int depth) {
    NodePtr atom;
    bool quantifiable = true;
    const char16_t c = Peek();
    if (c == u'^' || c == u'$') {
      ++m_pos;
      atom = Leaf(c == u'^' ? Kind::LineStart : Kind::LineEnd);
      quantifiable = false;
    } else if (c == u'\\' && (Peek(1) == u'b' || Peek(1) == u'B')) {
      atom = Leaf(Peek(1) == u'b' ? Kind::WordBoundary : Kind::NotWordBoundary);
      m_pos += 2;
      quantifiable = false;
    } else if (c == u'(') {
      auto group = Group(depth);
      if (!group) return group;
      atom = std::move(*group);
    } else if (c == u'*' || c == u'+' || c == u'?' || (c == u'{' && QuantifierAhead())) {
      return MakeError(err::kRegExpUnexpectedQuantifier);
    } else if (c == u'\\') {
      auto escape = Escape();
      if (!escape) return escape;
      atom = std::move(*escape);
    } else if (c == u'.') {
      ++m_pos;
      atom = Leaf(Kind::Any);
    } else if (c == u'[') {
      auto cls = ClassNode();
      if (!cls) return cls;
      atom = std::move(*cls);
    } else {
      ++m_pos;
      atom = CharNode(c);
    }
    int32_t min = 0;
    int32_t max = 0;
    VBS_TRY_ASSIGN(auto quantified, Quantifier(min, max));
    if (!quantified) return atom;
    if (!quantifiable) return MakeError(err::kRegExpUnexpectedQuantifier);
    auto repeat = Leaf(Kind::Repeat);
    repeat->min = min;
    repeat->max = max;
    repeat->flag = true;
    if (Peek() == u'?' && !AtEnd()) {
      ++m_pos;
      repeat->flag = false;
    }
    repeat->children.push_back(std::move(atom));
    if (!AtEnd() && (Peek() == u'*' || Peek() == u'+' || Peek() == u'?' || (Peek() == u'{' && QuantifierAhead())))
      return MakeError(err::kRegExpUnexpectedQuantifier);
    return repeat;
  }

  // Whether a '{' at the current position starts {n}, {n,} or {n,m}; otherwise it is a literal.
  bool QuantifierAhead() const {
    size_t i = m_pos + 1;
    auto digits = [&] {
      const size_t start = i;
      while (i < m_pattern.size() && IsDigit(m_pattern[i])) ++i;
      return i > start;
    };
    if (!digits()) return false;
    if (i < m_pattern.size() && m_pattern[i] == u',') {
      ++i;
      digits();
    }
    return i < m_pattern.size() && m_pattern[i] == u'}';
  }

  int32_t Number() {
    int64_t value = 0;
    while (!AtEnd() && IsDigit(Peek())) {
      value = std::min<int64_t>(value * 10 + (Peek() - u'0'), kMaxCount);
      ++m_pos;
    }
    return static_cast<int32_t>(value);
  }

  // Reads a quantifier if one follows; max -1 for no upper bound.
  Result<bool> Quantifier(int32_t& min, int32_t& max) {
    if (AtEnd()) return false;
    switch (Peek()) {
      case u'*':
        min = 0;
        max = -1;
        break;
      case u'+':
        min = 1;
        max = -1;
        break;
      case u'?':
        min = 0;
        max = 1;
        break;
      case u'{':
        if (!QuantifierAhead()) return false;
        ++m_pos;
        min = max = Number();
        if (Peek() == u',') {
          ++m_pos;
          max = IsDigit(Peek()) ? Number() : -1;
        }
        if (max >= 0 && max < min) return MakeError(err::kRegExpSyntax);
        break;  // the '}' is consumed below
      default: return false;
    }
    ++m_pos;
    return true;
  }

  Result<NodePtr> Group(int depth) {
    ++m_pos;
    NodePtr node;
    if (Peek() == u'?') {
      const char16_t kind = Peek(1);
      if (kind == u':') {
        node = Leaf(Kind::Group);
      } else if (kind == u'=' || kind == u'!') {
        node = Leaf(Kind::Look);
        node->flag = kind == u'!';
      } else {
        return MakeError(err::kRegExpSyntax);
      }
      m_pos += 2;
    } else {
      node = Leaf(Kind::Group);
      node->index = static_cast<int32_t>(m_next_group++);
    }
    auto body = Disjunction(depth + 1);
    if (!body) return body;
    if (AtEnd() || Peek() != u')') return MakeError(err::kRegExpExpectedParen);
    ++m_pos;
    node->children.push_back(std::move(*body));
    return node;
  }

  NodePtr SetNode(Ranges ranges, bool negated) {
    m_classes.push_back(CharClass{Normalised(std::move(ranges)), negated});
    auto node = Leaf(Kind::Class);
    node->index = static_cast<int32_t>(m_classes.size() - 1);
    return node;
  }

  // \xhh or \uhhhh after the letter; nullopt (reading nothing) when the digits are not there.
  std::optional<char16_t> HexEscape(size_t digits) {
    if (!Has(digits - 1)) return std::nullopt;
    uint32_t value = 0;
    for (size_t k = 0; k < digits; ++k) {
      const int digit = HexValue(Peek(k));
      if (digit < 0) return std::nullopt;
      value = value * 16 + static_cast<uint32_t>(digit);
    }
    m_pos += digits;
    return static_cast<char16_t>(value);
  }

  // Up to three octal digits, the first already read, keeping the value within a byte.
  char16_t Octal(char16_t first) {
    uint32_t value = first - u'0';
    for (int k = 0; k < 2 && !AtEnd() && IsOctal(Peek()) && value * 8 + (Peek() - u'0') <= 0377; ++k) {
      value = value * 8 + (Peek() - u'0');
      ++m_pos;
    }
    return static_cast<char16_t>(value);
  }

  // The escapes that mean one character, the same inside and outside classes; nullopt when the
  // letter has another meaning there. m_pos is past the letter.
  std::optional<char16_t> CharacterEscape(char16_t letter) {
    switch (letter) {
      case u't': return u'\t';
      case u'n': return u'\n';
      case u'v': return u'\v';
      case u'f': return u'\f';
      case u'r': return u'\r';
      case u'c': {
        const char16_t next = Peek();
        if (!AtEnd() && ((next >= u'a' && next <= u'z') || (next >= u'A' && next <= u'Z'))) {
          ++m_pos;
          return static_cast<char16_t>(next % 32);
        }
        // A lone \c is a backslash followed by a literal c.
        --m_pos;
        return u'\\';
      }
      case u'x': return HexEscape(2).value_or(u'x');
      case u'u': return HexEscape(4).value_or(u'u');
      default: return std::nullopt;
    }
  }

  Result<NodePtr> Escape() {
    ++m_pos;
    if (AtEnd()) return MakeError(err::kRegExpSyntax);
    const char16_t letter = m_pattern[m_pos++];
    switch (letter) {
      case u'd':
      case u'D':
      case u'w':
      case u'W':
      case u's':
      case u'S': return SetNode(Predefined(letter), false);
      default: break;
    }
    if (auto c = CharacterEscape(letter)) return CharNode(*c);
    if (!IsDigit(letter)) return CharNode(letter);
    if (letter == u'0') return CharNode(Octal(letter));
    // \n is a backreference when the pattern has that many groups; otherwise octal, or the digit.
    const size_t digits_start = m_pos - 1;
    int64_t number = letter - u'0';
    size_t end = m_pos;
    while (end < m_pattern.size() && IsDigit(m_pattern[end]))
      number = std::min<int64_t>(number * 10 + (m_pattern[end++] - u'0'), kMaxCount);
    if (number <= m_total_groups) {
      m_pos = end;
      auto node = Leaf(Kind::BackRef);
      node->index = static_cast<int32_t>(number);
      return node;
    }
    m_pos = digits_start + 1;
    return CharNode(IsOctal(letter) ? Octal(letter) : letter);
  }

  Result<ClassAtom> ReadClassAtom() {
    ClassAtom atom;
    const char16_t c = m_pattern[m_pos++];
    if (c != u'\\') {
      atom.ch = c;
      return atom;
    }
    if (AtEnd()) return MakeError(err::kRegExpExpectedBracket);
    const char16_t letter = m_pattern[m_pos++];
    switch (letter) {
      case u'd':
      case u'D':
      case u'w':
      case u'W':
      case u's':
      case u'S':
        atom.is_set = true;
        atom.set = Predefined(letter);
        return atom;
      case u'b': atom.ch = u'\b'; return atom;
      default: break;
    }
    if (auto escaped = CharacterEscape(letter)) {
      atom.ch = *escaped;
    } else {
      atom.ch = IsOctal(letter) ? Octal(letter) : letter;
    }
    return atom;
  }

  static void AddAtom(Ranges& ranges, const ClassAtom& atom) {
    if (atom.is_set)
      ranges.insert(ranges.end(), atom.set.begin(), atom.set.end());
    else
      ranges.emplace_back(atom.ch, atom.ch);
  }

  Result<NodePtr> ClassNode() {
    ++m_pos;
    bool negated = false;
    if (!AtEnd() && Peek() == u'^') {
      negated = true;
      ++m_pos;
    }
    Ranges ranges;
    for (;;) {
      if (AtEnd()) return MakeError(err::kRegExpExpectedBracket);
      if (Peek() == u']') {
        ++m_pos;
        break;
      }
      VBS_TRY_ASSIGN(auto first, ReadClassAtom());
      if (Has(1) && Peek() == u'-' && Peek(1) != u']') {
        ++m_pos;
        VBS_TRY_ASSIGN(auto last, ReadClassAtom());
        if (first.is_set || last.is_set) {
          // [\d-z]: the hyphen cannot make a range with a set, so it stands for itself.
          AddAtom(ranges, first);
          ranges.emplace_back(u'-', u'-');
          AddAtom(ranges, last);
        } else if (first.ch > last.ch) {
          return MakeError(err::kRegExpInvalidRange);
        } else {
          ranges.emplace_back(first.ch, last.ch);
        }
      } else {
        AddAtom(ranges, first);
      }
    }
    return SetNode(std::move(ranges), negated);
  }

  std::u16string_view m_pattern;
  std::vector<CharClass>& m_classes;
  size_t m_pos = 0;
  uint32_t m_total_groups = 0;
  uint32_t m_next_group = 1;
};

}  // namespace

Result<NodePtr> ParsePattern(std::u16string_view pattern, std::vector<CharClass>& classes, uint32_t& groups) {
  PatternParser parser(pattern, classes);
  auto tree = parser.Parse();
  groups = parser.groups();
  return tree;
}

}  // namespace vbs::regexp
