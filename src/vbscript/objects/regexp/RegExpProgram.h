#pragma once

// The regular expressions of the RegExp object, in the dialect scripts were written for, which
// Windows shares with its JScript 5.5 (JavaScript's of that era). Classes \d \w \s and their
// negations, [...] with ranges, . (anything but a line feed), ^ $ (at line ends too with
// Multiline), \b \B, greedy and lazy quantifiers * + ? {n} {n,} {n,m}, capturing and (?:) groups,
// lookahead (?= (?!, backreferences \1, and the escapes \t \n \v \f \r \cX \xhh \uhhhh and
// octal; IgnoreCase folds Latin, Greek and Cyrillic letters.
// As in JScript, a group inside a repeated group keeps the text an earlier round gave it when
// the last round leaves it out: (z)((a+)?(b+)?(c))* on "zaacbbbcac" has "bbb" as group 4.
//
// Why a matcher of our own rather than std::regex: libstdc++'s std::regex cannot work on char16_t,
// and its matcher recurses once per character of the subject, so a long text overflows the stack.
// Here a pattern compiles to a short list of instructions run by a backtracking machine with an
// explicit stack, directly on the UTF-16 text, so positions are the script's own and nothing
// recurses with the subject's length. A catastrophic pattern ((a*)*b on a long run of a's) takes
// exponential time here as on Windows; the machine calls back every few thousand steps, so the
// engine's abort and time-out stop it, and its backtracking stack is capped (error 28).

#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

#include "vbscript/value/Result.h"

namespace vbs {

struct RegExpOptions {
  bool ignore_case = false;
  bool multiline = false;
};

// Start and end of the whole match, then of each group in order; -1 for a group that took no part.
using RegExpCaptures = std::vector<int32_t>;

class RegExpProgram {
 public:
  // Compiles a pattern; a malformed one gives the error Windows gives: 5017 syntax error,
  // 5018 unexpected quantifier, 5019 expected ']', 5020 expected ')', 5021 invalid range.
  static Result<RegExpProgram> Compile(std::u16string_view pattern, RegExpOptions options);

  uint32_t group_count() const { return m_groups; }

  // The first match in `text` at or after `start`, into `captures`; false when there is none.
  // `interrupt` is called every few thousand steps and its error ends the search.
  Result<bool> Search(std::u16string_view text, size_t start, RegExpCaptures& captures,
                      const std::function<Status()>& interrupt) const;

  enum class Op : uint8_t {
    Char,             // a: the code unit
    CharFold,         // a: the code unit in lower case, compared with the input's lower case
    Any,              // anything but a line feed
    Class,            // a: index of the class
    LineStart,        // ^
    LineEnd,          // $
    WordBoundary,     // \b
    NotWordBoundary,  // \B
    BackRef,          // a: the group
    Fork,             // go on at the next instruction; on failure at a
    Jump,             // a: target
    Save,             // a: register that takes the position
    LoopInit,         // a: counter register, set to 0
    LoopHead,         // a: counter, b: min, c: max (-1 unbounded), d: exit; flag: greedy
    LoopEnter,        // a: mark register, set to the position where a round starts
    LoopTail,         // a: counter, b: mark, c: min, d: the LoopHead
    RepeatOne,        // b: min, c: max (-1 unbounded); flag: greedy; the next instruction is the
                      // one-character test; goes on two instructions further
    Look,             // a: where to go on; flag: negative; the lookahead follows, ending in Succeed
    Succeed,
    Match,
  };
  struct Inst {
    Op op;
    bool flag = false;
    int32_t a = 0;
    int32_t b = 0;
    int32_t c = 0;
    int32_t d = 0;
  };
  struct CharClass {
    std::vector<std::pair<char16_t, char16_t>> ranges;  // sorted, merged
    bool negated = false;
  };

 private:
  friend class RegExpMachine;
  friend class RegExpCompiler;

  std::vector<Inst> m_code;
  std::vector<CharClass> m_classes;
  RegExpOptions m_options;
  uint32_t m_groups = 0;
  uint32_t m_registers = 0;
  bool m_anchored = false;  // starts with ^ outside Multiline: can match at 0 only
};

}  // namespace vbs
