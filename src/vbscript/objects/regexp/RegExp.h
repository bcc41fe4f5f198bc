#pragma once

// VBScript.RegExp and the collections its Execute returns. The pattern compiles once, on first
// use after Pattern, IgnoreCase or Multiline changed (RegExpProgram.h describes the dialect and the
// matcher); a malformed pattern fails there, with 5017-5021, not when it is assigned. Positions
// and lengths count UTF-16 code units, as Windows does. A search can run long: it asks the engine
// for its abort and time-out every few thousand steps, so the objects hold their engine and must
// not outlive it.

#include <functional>
#include <optional>
#include <vector>

#include "vbscript/HostObject.h"
#include "vbscript/objects/regexp/RegExpProgram.h"

namespace vbs {

class Interpreter;

// The groups of one match: Item(i) (the default member, 0-based) is the text a group took, Empty
// when it took no part; For Each gives them in order.
class RegExpSubMatches final : public HostObject<RegExpSubMatches> {
 public:
  RegExpSubMatches(const Locale& locale, std::vector<Variant> groups);
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"ISubMatches"; }
  Result<Ref<Enumerator>> Enumerate() override;

 private:
  Result<Variant> Item(CallArgs& args);
  Result<Variant> Count(CallArgs& args);

  std::vector<Variant> m_groups;
};

// One match: Value (the default member), FirstIndex (0-based), Length and SubMatches.
class RegExpMatch final : public HostObject<RegExpMatch> {
 public:
  RegExpMatch(const Locale& locale, std::u16string_view subject, const RegExpCaptures& captures);
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"IMatch2"; }

 private:
  Result<Variant> Value(CallArgs& args);
  Result<Variant> FirstIndex(CallArgs& args);
  Result<Variant> Length(CallArgs& args);
  Result<Variant> SubMatches(CallArgs& args);

  std::u16string m_value;
  int32_t m_first_index;
  Ref<RegExpSubMatches> m_submatches;
};

// What Execute returns: Item(i) (the default member, 0-based), Count, For Each.
class RegExpMatches final : public HostObject<RegExpMatches> {
 public:
  RegExpMatches(const Locale& locale, std::vector<Variant> matches);
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"IMatchCollection2"; }
  Result<Ref<Enumerator>> Enumerate() override;

 private:
  Result<Variant> Item(CallArgs& args);
  Result<Variant> Count(CallArgs& args);

  std::vector<Variant> m_matches;
};

class RegExp final : public HostObject<RegExp> {
 public:
  explicit RegExp(Interpreter& interp);
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"IRegExp2"; }

 private:
  Result<Variant> GetPattern(CallArgs& args);
  Result<Variant> PutPattern(CallArgs& args, Variant value);
  Result<Variant> GetGlobal(CallArgs& args);
  Result<Variant> PutGlobal(CallArgs& args, Variant value);
  Result<Variant> GetIgnoreCase(CallArgs& args);
  Result<Variant> PutIgnoreCase(CallArgs& args, Variant value);
  Result<Variant> GetMultiline(CallArgs& args);
  Result<Variant> PutMultiline(CallArgs& args, Variant value);
  Result<Variant> Test(CallArgs& args);
  Result<Variant> Execute(CallArgs& args);
  Result<Variant> Replace(CallArgs& args);

  // The compiled pattern, compiling it first when a setting changed.
  Result<const RegExpProgram*> Program();
  Status PutFlag(bool& flag, const Variant& value);
  // The text that replaces one match: the template with $-references expanded, or what the
  // function given instead of a template returns.
  Result<std::u16string> Replacement(const Variant& with, std::u16string_view subject, const RegExpCaptures& captures);

  std::function<Status()> m_interrupt;
  std::u16string m_pattern;
  bool m_global = false;
  bool m_ignore_case = false;
  bool m_multiline = false;
  std::optional<RegExpProgram> m_program;
};

}  // namespace vbs
