#include "vbscript/objects/regexp/RegExp.h"

#include "vbscript/runtime/Interpreter.h"

namespace vbs {

namespace {

// For Each over a list of values that belongs to `owner`, which the enumerator keeps alive.
class ListEnumerator final : public Enumerator {
 public:
  ListEnumerator(Ref<Object> owner, const std::vector<Variant>& values) : m_owner(std::move(owner)), m_values(values) {}
  Result<bool> Next(Variant& out) override {
    if (m_next >= m_values.size()) return false;
    out = m_values[m_next++];
    return true;
  }

 private:
  Ref<Object> m_owner;
  const std::vector<Variant>& m_values;
  size_t m_next = 0;
};

Result<Variant> ItemAt(const std::vector<Variant>& values, CallArgs& args) {
  VBS_TRY_ASSIGN(auto index, args.Long(0));
  if (index < 0 || static_cast<size_t>(index) >= values.size()) return MakeError(err::kInvalidCall);
  return values[static_cast<size_t>(index)];
}

std::u16string_view Slice(std::u16string_view text, int32_t from, int32_t to) {
  return text.substr(static_cast<size_t>(from), static_cast<size_t>(to - from));
}

// Where the next search of a global Execute or Replace starts: after the match, or one further
// after an empty match, which would otherwise be found again.
size_t NextStart(const RegExpCaptures& captures) {
  return static_cast<size_t>(captures[1] > captures[0] ? captures[1] : captures[1] + 1);
}

bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

// The template with $$, $&, $`, $' and $n or $nn expanded; a reference to a group the pattern
// lacks stays as written.
std::u16string Expand(std::u16string_view with, std::u16string_view subject, const RegExpCaptures& captures) {
  const auto groups = static_cast<int>(captures.size() / 2 - 1);
  std::u16string out;
  for (size_t i = 0; i < with.size(); ++i) {
    const char16_t c = with[i];
    if (c != u'$' || i + 1 == with.size()) {
      out += c;
      continue;
    }
    const char16_t next = with[i + 1];
    int group = 0;
    size_t length = 0;
    if (IsDigit(next)) {
      if (i + 2 < with.size() && IsDigit(with[i + 2])) {
        const int two = (next - u'0') * 10 + (with[i + 2] - u'0');
        if (two >= 1 && two <= groups) {
          group = two;
          length = 2;
        }
      }
      if (length == 0 && next != u'0' && next - u'0' <= groups) {
        group = next - u'0';
        length = 1;
      }
    }
    if (length != 0) {
      const int32_t from = captures[2 * group];
      if (from >= 0) out += Slice(subject, from, captures[2 * group + 1]);
      i += length;
    } else if (next == u'$') {
      out += u'$';
      ++i;
    } else if (next == u'&') {
      out += Slice(subject, captures[0], captures[1]);
      ++i;
    } else if (next == u'`') {
      out += subject.substr(0, static_cast<size_t>(captures[0]));
      ++i;
    } else if (next == u'\'') {
      out += subject.substr(static_cast<size_t>(captures[1]));
      ++i;
    } else {
      out += c;
    }
  }
  return out;
}

}  // namespace

// ---- SubMatches ----

RegExpSubMatches::RegExpSubMatches(const Locale& locale, std::vector<Variant> groups)
    : HostObject(locale), m_groups(std::move(groups)) {}

std::span<const RegExpSubMatches::Member> RegExpSubMatches::Members() {
  static const Member kMembers[] = {
      {"Item", 1, 1, &RegExpSubMatches::Item, nullptr, "Index: the text of group Index + 1; Empty when it took no part",
       true},
      {"Count", 0, 0, &RegExpSubMatches::Count, nullptr, "the number of groups of the pattern"},
  };
  return kMembers;
}

Result<Ref<Enumerator>> RegExpSubMatches::Enumerate() {
  return Ref<Enumerator>(MakeRef<ListEnumerator>(Ref<Object>(this), m_groups));
}

Result<Variant> RegExpSubMatches::Item(CallArgs& args) { return ItemAt(m_groups, args); }

Result<Variant> RegExpSubMatches::Count(CallArgs&) { return Variant::Long(static_cast<int32_t>(m_groups.size())); }

// ---- Match ----

RegExpMatch::RegExpMatch(const Locale& locale, std::u16string_view subject, const RegExpCaptures& captures)
    : HostObject(locale), m_value(Slice(subject, captures[0], captures[1])), m_first_index(captures[0]) {
  std::vector<Variant> groups;
  for (size_t g = 2; g + 1 < captures.size(); g += 2)
    groups.push_back(captures[g] < 0 ? Variant() : Variant::String(Slice(subject, captures[g], captures[g + 1])));
  m_submatches = MakeRef<RegExpSubMatches>(locale, std::move(groups));
}

std::span<const RegExpMatch::Member> RegExpMatch::Members() {
  static const Member kMembers[] = {
      {"Value", 0, 0, &RegExpMatch::Value, nullptr, "the text matched", true},
      {"FirstIndex", 0, 0, &RegExpMatch::FirstIndex, nullptr, "where the match starts, 0-based"},
      {"Length", 0, 0, &RegExpMatch::Length, nullptr, "the length of the text matched"},
      {"SubMatches", 0, 0, &RegExpMatch::SubMatches, nullptr, "the texts of the groups"},
  };
  return kMembers;
}

Result<Variant> RegExpMatch::Value(CallArgs&) { return Variant::String(m_value); }

Result<Variant> RegExpMatch::FirstIndex(CallArgs&) { return Variant::Long(m_first_index); }

Result<Variant> RegExpMatch::Length(CallArgs&) { return Variant::Long(static_cast<int32_t>(m_value.size())); }

Result<Variant> RegExpMatch::SubMatches(CallArgs&) { return Variant::Object(m_submatches); }

// ---- Matches ----

RegExpMatches::RegExpMatches(const Locale& locale, std::vector<Variant> matches)
    : HostObject(locale), m_matches(std::move(matches)) {}

std::span<const RegExpMatches::Member> RegExpMatches::Members() {
  static const Member kMembers[] = {
      {"Item", 1, 1, &RegExpMatches::Item, nullptr, "Index: match Index, 0-based", true},
      {"Count", 0, 0, &RegExpMatches::Count, nullptr, "the number of matches"},
  };
  return kMembers;
}

Result<Ref<Enumerator>> RegExpMatches::Enumerate() {
  return Ref<Enumerator>(MakeRef<ListEnumerator>(Ref<Object>(this), m_matches));
}

Result<Variant> RegExpMatches::Item(CallArgs& args) { return ItemAt(m_matches, args); }

Result<Variant> RegExpMatches::Count(CallArgs&) { return Variant::Long(static_cast<int32_t>(m_matches.size())); }

// ---- RegExp ----

RegExp::RegExp(Interpreter& interp)
    : HostObject(interp.locale()), m_interrupt([&interp] { return interp.CheckInterrupt(); }) {}

std::span<const RegExp::Member> RegExp::Members() {
  static const Member kMembers[] = {
      {"Pattern", 0, 0, &RegExp::GetPattern, &RegExp::PutPattern, "the regular expression"},
      {"Global", 0, 0, &RegExp::GetGlobal, &RegExp::PutGlobal, "whether Execute and Replace take every match"},
      {"IgnoreCase", 0, 0, &RegExp::GetIgnoreCase, &RegExp::PutIgnoreCase, "whether letters match either case"},
      {"Multiline", 0, 0, &RegExp::GetMultiline, &RegExp::PutMultiline, "whether ^ and $ match at line ends"},
      {"Test", 1, 1, &RegExp::Test, nullptr, "Text: whether the pattern matches somewhere in the text"},
      {"Execute", 1, 1, &RegExp::Execute, nullptr, "Text: the matches, as a collection"},
      {"Replace", 2, 2, &RegExp::Replace, nullptr,
       "Text, With: the text with the matches replaced ($1-$99, $&, $`, $', $$), or by what the function With returns"},
  };
  return kMembers;
}

Result<const RegExpProgram*> RegExp::Program() {
  if (!m_program) {
    VBS_TRY_ASSIGN(auto program, RegExpProgram::Compile(m_pattern, RegExpOptions{m_ignore_case, m_multiline}));
    m_program = std::move(program);
  }
  return &*m_program;
}

Status RegExp::PutFlag(bool& flag, const Variant& value) {
  VBS_TRY_ASSIGN(auto on, value.to_boolean(locale()));
  if (flag != on) m_program.reset();
  flag = on;
  return Ok();
}

Result<Variant> RegExp::GetPattern(CallArgs&) { return Variant::String(m_pattern); }

Result<Variant> RegExp::PutPattern(CallArgs&, Variant value) {
  VBS_TRY_ASSIGN(auto text, value.to_string(locale()));
  m_pattern = text.ToU16String();
  m_program.reset();
  return Variant();
}

Result<Variant> RegExp::GetGlobal(CallArgs&) { return Variant::Boolean(m_global); }

Result<Variant> RegExp::PutGlobal(CallArgs&, Variant value) {
  VBS_TRY_ASSIGN(auto on, value.to_boolean(locale()));
  m_global = on;
  return Variant();
}

Result<Variant> RegExp::GetIgnoreCase(CallArgs&) { return Variant::Boolean(m_ignore_case); }

Result<Variant> RegExp::PutIgnoreCase(CallArgs&, Variant value) {
  VBS_TRY(PutFlag(m_ignore_case, value));
  return Variant();
}

Result<Variant> RegExp::GetMultiline(CallArgs&) { return Variant::Boolean(m_multiline); }

Result<Variant> RegExp::PutMultiline(CallArgs&, Variant value) {
  VBS_TRY(PutFlag(m_multiline, value));
  return Variant();
}

Result<Variant> RegExp::Test(CallArgs& args) {
  VBS_TRY_ASSIGN(auto text, args.String(0));
  VBS_TRY_ASSIGN(auto program, Program());
  RegExpCaptures captures;
  VBS_TRY_ASSIGN(auto found, (program)->Search(text, 0, captures, m_interrupt));
  return Variant::Boolean(found);
}

Result<Variant> RegExp::Execute(CallArgs& args) {
  VBS_TRY_ASSIGN(auto text, args.String(0));
  VBS_TRY_ASSIGN(auto program, Program());
  std::vector<Variant> matches;
  RegExpCaptures captures;
  for (size_t at = 0; at <= text.size();) {
    VBS_TRY_ASSIGN(auto found, (program)->Search(text, at, captures, m_interrupt));
    if (!found) break;
    matches.push_back(Variant::Object(MakeRef<RegExpMatch>(locale(), text, captures)));
    if (!m_global) break;
    at = NextStart(captures);
  }
  return Variant::Object(MakeRef<RegExpMatches>(locale(), std::move(matches)));
}

Result<std::u16string> RegExp::Replacement(const Variant& with, std::u16string_view subject,
                                           const RegExpCaptures& captures) {
  if (with.is_object() && !with.is_nothing()) {
    // A function reference (GetRef) gets the match, each group, the position and the whole text.
    std::vector<Variant> call_args;
    call_args.push_back(Variant::String(Slice(subject, captures[0], captures[1])));
    for (size_t g = 2; g + 1 < captures.size(); g += 2)
      call_args.push_back(Variant::String(captures[g] < 0 ? u"" : Slice(subject, captures[g], captures[g + 1])));
    call_args.push_back(Variant::Long(captures[0]));
    call_args.push_back(Variant::String(subject));
    VBS_TRY_ASSIGN(auto result, with.as_object()->Invoke(kDefaultMember, InvokeKind::Method, call_args));
    VBS_TRY_ASSIGN(auto text, result.Deref().to_string(locale()));
    return text.ToU16String();
  }
  // The template converts without the locale's words: True becomes "-1", as on Windows.
  if (with.is_boolean()) return Expand(with.as_boolean() ? u"-1" : u"0", subject, captures);
  VBS_TRY_ASSIGN(auto text, with.to_string(locale()));
  return Expand(text.view(), subject, captures);
}

Result<Variant> RegExp::Replace(CallArgs& args) {
  VBS_TRY_ASSIGN(auto text, args.String(0));
  VBS_TRY_ASSIGN(auto program, Program());
  const Variant with = args[1];
  std::u16string out;
  size_t copied = 0;
  RegExpCaptures captures;
  for (size_t at = 0; at <= text.size();) {
    VBS_TRY_ASSIGN(auto found, (program)->Search(text, at, captures, m_interrupt));
    if (!found) break;
    VBS_TRY_ASSIGN(auto replacement, Replacement(with, text, captures));
    out.append(text, copied, static_cast<size_t>(captures[0]) - copied);
    out += replacement;
    copied = static_cast<size_t>(captures[1]);
    if (!m_global) break;
    at = NextStart(captures);
  }
  out.append(text, copied);
  return Variant::String(out);
}

}  // namespace vbs
