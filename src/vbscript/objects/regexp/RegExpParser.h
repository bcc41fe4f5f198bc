#pragma once

// The tree a regular expression parses into: RegExpParser.cpp builds it, RegExpProgram.cpp
// compiles it to the matcher's instructions. Nothing outside the RegExp object uses it.

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "vbscript/objects/regexp/RegExpProgram.h"

namespace vbs::regexp {

enum class Kind : uint8_t {
  Empty,
  Char,
  Any,
  Class,
  LineStart,
  LineEnd,
  WordBoundary,
  NotWordBoundary,
  BackRef,
  Group,  // index: the capture's number, -1 for (?:)
  Look,   // flag: negative
  Concat,
  Alt,
  Repeat,  // flag: greedy; min, max (-1 unbounded)
};

struct Node;
using NodePtr = std::unique_ptr<Node>;

struct Node {
  explicit Node(Kind k) : kind(k) {}
  Kind kind;
  bool flag = false;
  char16_t ch = 0;
  int32_t index = -1;  // Class: into the classes; Group, BackRef: the group's number
  int32_t min = 0;
  int32_t max = 0;
  std::vector<NodePtr> children;
};

// The tree of `pattern`, its character classes appended to `classes` and its number of capturing
// groups in `groups`; errors as RegExpProgram::Compile gives them.
Result<NodePtr> ParsePattern(std::u16string_view pattern, std::vector<RegExpProgram::CharClass>& classes,
                             uint32_t& groups);

}  // namespace vbs::regexp
