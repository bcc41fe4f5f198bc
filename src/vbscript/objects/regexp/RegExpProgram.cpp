#include "vbscript/objects/regexp/RegExpProgram.h"

#include <algorithm>

#include "text/Utf.h"
#include "vbscript/objects/regexp/RegExpParser.h"

namespace vbs {

namespace {

using regexp::Kind;
using regexp::Node;
using regexp::NodePtr;
using Ranges = std::vector<std::pair<char16_t, char16_t>>;

bool IsWordChar(char16_t c) {
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u'_';
}

bool IsLineTerminator(char16_t c) { return c == u'\n' || c == u'\r'; }

bool InRanges(const Ranges& ranges, char16_t c) {
  auto it = std::upper_bound(ranges.begin(), ranges.end(), c,
                             [](char16_t value, const auto& range) { return value < range.first; });
  return it != ranges.begin() && c <= std::prev(it)->second;
}

bool IsSingleCharacter(const Node& node) {
  return node.kind == Kind::Char || node.kind == Kind::Any || node.kind == Kind::Class;
}

}  // namespace

// ---- Compiler ----

class RegExpCompiler {
 public:
  using Op = RegExpProgram::Op;
  using Inst = RegExpProgram::Inst;

  explicit RegExpCompiler(RegExpProgram& program) : m_program(program), m_code(program.m_code) {}

  void Emit(const Node& node) {
    switch (node.kind) {
      case Kind::Empty: break;
      case Kind::Char:
      case Kind::Any:
      case Kind::Class: EmitSingle(node); break;
      case Kind::LineStart: Push({Op::LineStart}); break;
      case Kind::LineEnd: Push({Op::LineEnd}); break;
      case Kind::WordBoundary: Push({Op::WordBoundary}); break;
      case Kind::NotWordBoundary: Push({Op::NotWordBoundary}); break;
      case Kind::BackRef: Push({Op::BackRef, false, node.index}); break;
      case Kind::Group:
        if (node.index >= 0) Push({Op::Save, false, 2 * node.index});
        Emit(*node.children[0]);
        if (node.index >= 0) Push({Op::Save, false, 2 * node.index + 1});
        break;
      case Kind::Look: {
        const size_t look = Push({Op::Look, node.flag});
        Emit(*node.children[0]);
        Push({Op::Succeed});
        m_code[look].a = Here();
        break;
      }
      case Kind::Concat:
        for (const NodePtr& child : node.children) Emit(*child);
        break;
      case Kind::Alt: EmitAlternatives(node); break;
      case Kind::Repeat: EmitRepeat(node); break;
    }
  }

 private:
  size_t Push(Inst inst) {
    m_code.push_back(inst);
    return m_code.size() - 1;
  }
  int32_t Here() const { return static_cast<int32_t>(m_code.size()); }

  void EmitSingle(const Node& node) {
    if (node.kind == Kind::Any) {
      Push({Op::Any});
    } else if (node.kind == Kind::Class) {
      Push({Op::Class, false, node.index});
    } else if (m_program.m_options.ignore_case && text::LowerCase(node.ch) != text::UpperCase(node.ch)) {
      Push({Op::CharFold, false, text::LowerCase(node.ch)});
    } else {
      Push({Op::Char, false, node.ch});
    }
  }

  void EmitAlternatives(const Node& node) {
    std::vector<size_t> jumps;
    for (size_t i = 0; i < node.children.size(); ++i) {
      if (i + 1 == node.children.size()) {
        Emit(*node.children[i]);
        break;
      }
      const size_t fork = Push({Op::Fork});
      Emit(*node.children[i]);
      jumps.push_back(Push({Op::Jump}));
      m_code[fork].a = Here();
    }
    for (size_t jump : jumps) m_code[jump].a = Here();
  }

  void EmitRepeat(const Node& node) {
    const Node& body = *node.children[0];
    if (node.max == 0) return;
    if (node.min == 1 && node.max == 1) {
      Emit(body);
      return;
    }
    if (IsSingleCharacter(body)) {
      Push({Op::RepeatOne, node.flag, 0, node.min, node.max});
      EmitSingle(body);
      return;
    }
    const auto counter = static_cast<int32_t>(m_program.m_registers++);
    const auto mark = static_cast<int32_t>(m_program.m_registers++);
    Push({Op::LoopInit, false, counter});
    const size_t head = Push({Op::LoopHead, node.flag, counter, node.min, node.max});
    Push({Op::LoopEnter, false, mark});
    Emit(body);
    Push({Op::LoopTail, false, counter, mark, node.min, static_cast<int32_t>(head)});
    m_code[head].d = Here();
  }

  RegExpProgram& m_program;
  std::vector<Inst>& m_code;
};

Result<RegExpProgram> RegExpProgram::Compile(std::u16string_view pattern, RegExpOptions options) {
  RegExpProgram program;
  program.m_options = options;
  VBS_TRY_ASSIGN(auto tree, regexp::ParsePattern(pattern, program.m_classes, program.m_groups));
  program.m_registers = 2 * (program.m_groups + 1);
  RegExpCompiler(program).Emit(*tree);
  program.m_code.push_back({Op::Match});
  program.m_anchored = !options.multiline && program.m_code[0].op == Op::LineStart;
  return program;
}

// ---- Machine ----

class RegExpMachine {
 public:
  using Op = RegExpProgram::Op;
  using Inst = RegExpProgram::Inst;

  RegExpMachine(const RegExpProgram& program, std::u16string_view text, const std::function<Status()>& interrupt)
      : m_program(program),
        m_code(program.m_code),
        m_text(text),
        m_size(static_cast<int32_t>(text.size())),
        m_interrupt(interrupt) {}

  void Reset() {
    m_registers.assign(m_program.m_registers, -1);
    m_stack.clear();
  }
  const std::vector<int32_t>& registers() const { return m_registers; }

  // Runs from `pc` at `pos` until Match or Succeed (true, `end` set) or until every alternative
  // has failed (false, registers as they were).
  Result<bool> Run(int32_t pc, int32_t pos, int32_t& end);

 private:
  // The backtracking stack holds alternatives to resume and register values to restore.
  enum class Kind : uint8_t {
    Branch,    // resume at pc, position a
    Undo,      // register a held b
    GiveBack,  // greedy RepeatOne: resume at pc with one character fewer, down to a; now at b
    TakeMore,  // lazy RepeatOne at pc: try one more character at a, b taken so far
  };
  struct Entry {
    Kind kind;
    int32_t pc;
    int32_t a;
    int32_t b;
  };
  static constexpr size_t kMaxStack = size_t{1} << 23;
  static constexpr uint64_t kInterruptEvery = 4096;

  void Set(int32_t reg, int32_t value) {
    if (m_registers[reg] == value) return;
    m_stack.push_back({Kind::Undo, 0, reg, m_registers[reg]});
    m_registers[reg] = value;
  }

  bool InClass(const RegExpProgram::CharClass& cls, char16_t c) const {
    bool found = InRanges(cls.ranges, c);
    if (!found && m_program.m_options.ignore_case)
      found = InRanges(cls.ranges, text::LowerCase(c)) || InRanges(cls.ranges, text::UpperCase(c));
    return found != cls.negated;
  }

  bool Test(const Inst& inst, char16_t c) const {
    switch (inst.op) {
      case Op::Char: return c == inst.a;
      case Op::CharFold: return text::LowerCase(c) == inst.a;
      case Op::Any: return c != u'\n';
      case Op::Class: return InClass(m_program.m_classes[inst.a], c);
      default: return false;
    }
  }

  bool WordAt(int32_t pos) const { return pos >= 0 && pos < m_size && IsWordChar(m_text[pos]); }

  bool BackReference(int32_t group, int32_t& pos) const {
    const int32_t start = m_registers[2 * group];
    const int32_t stop = m_registers[2 * group + 1];
    if (start < 0 || stop < 0) return true;
    const int32_t length = stop - start;
    if (length > m_size - pos) return false;
    for (int32_t k = 0; k < length; ++k) {
      const char16_t a = m_text[start + k];
      const char16_t b = m_text[pos + k];
      if (a != b && !(m_program.m_options.ignore_case && text::LowerCase(a) == text::LowerCase(b))) return false;
    }
    pos += length;
    return true;
  }

  // Pops the stack down to `base`, restoring registers, or up to an alternative to resume.
  bool Backtrack(size_t base, int32_t& pc, int32_t& pos);
  void UndoTo(size_t base) {
    while (m_stack.size() > base) {
      const Entry entry = m_stack.back();
      m_stack.pop_back();
      if (entry.kind == Kind::Undo) m_registers[entry.a] = entry.b;
    }
  }

  const RegExpProgram& m_program;
  const std::vector<Inst>& m_code;
  std::u16string_view m_text;
  int32_t m_size;
  const std::function<Status()>& m_interrupt;
  std::vector<int32_t> m_registers;
  std::vector<Entry> m_stack;
  uint64_t m_steps = 0;
};

bool RegExpMachine::Backtrack(size_t base, int32_t& pc, int32_t& pos) {
  while (m_stack.size() > base) {
    const Entry entry = m_stack.back();
    m_stack.pop_back();
    switch (entry.kind) {
      case Kind::Undo: m_registers[entry.a] = entry.b; break;
      case Kind::Branch:
        pc = entry.pc;
        pos = entry.a;
        return true;
      case Kind::GiveBack:
        pos = entry.b - 1;
        if (pos > entry.a) m_stack.push_back({Kind::GiveBack, entry.pc, entry.a, pos});
        pc = entry.pc;
        return true;
      case Kind::TakeMore: {
        const Inst& repeat = m_code[entry.pc];
        if (entry.a >= m_size || !Test(m_code[entry.pc + 1], m_text[entry.a])) break;
        pos = entry.a + 1;
        const int32_t taken = entry.b + 1;
        if (repeat.c < 0 || taken < repeat.c) m_stack.push_back({Kind::TakeMore, entry.pc, pos, taken});
        pc = entry.pc + 2;
        return true;
      }
    }
  }
  return false;
}

Result<bool> RegExpMachine::Run(int32_t pc, int32_t pos, int32_t& end) {
  const size_t base = m_stack.size();
  for (;;) {
    if (++m_steps % kInterruptEvery == 0) VBS_TRY(m_interrupt());
    if (m_stack.size() > kMaxStack) return MakeError(err::kOutOfStack);
    const Inst& inst = m_code[pc];
    bool ok = true;
    switch (inst.op) {
      case Op::Char:
      case Op::CharFold:
      case Op::Any:
      case Op::Class:
        ok = pos < m_size && Test(inst, m_text[pos]);
        ++pos;
        ++pc;
        break;
      case Op::LineStart:
        ok = pos == 0 || (m_program.m_options.multiline && IsLineTerminator(m_text[pos - 1]));
        ++pc;
        break;
      case Op::LineEnd:
        ok = pos == m_size || (m_program.m_options.multiline && IsLineTerminator(m_text[pos]));
        ++pc;
        break;
      case Op::WordBoundary:
      case Op::NotWordBoundary:
        ok = (WordAt(pos - 1) != WordAt(pos)) == (inst.op == Op::WordBoundary);
        ++pc;
        break;
      case Op::BackRef:
        ok = BackReference(inst.a, pos);
        ++pc;
        break;
      case Op::Fork:
        m_stack.push_back({Kind::Branch, inst.a, pos, 0});
        ++pc;
        break;
      case Op::Jump: pc = inst.a; break;
      case Op::Save:
        Set(inst.a, pos);
        ++pc;
        break;
      case Op::LoopInit:
        Set(inst.a, 0);
        ++pc;
        break;
      case Op::LoopHead: {
        const int32_t count = m_registers[inst.a];
        if (count < inst.b) {
          ++pc;
        } else if (inst.c >= 0 && count >= inst.c) {
          pc = inst.d;
        } else if (inst.flag) {
          m_stack.push_back({Kind::Branch, inst.d, pos, 0});
          ++pc;
        } else {
          m_stack.push_back({Kind::Branch, pc + 1, pos, 0});
          pc = inst.d;
        }
        break;
      }
      case Op::LoopEnter:
        // Groups inside keep what an earlier round matched until they match again, as in
        // JScript, rather than starting each round unset.
        Set(inst.a, pos);
        ++pc;
        break;
      case Op::LoopTail: {
        // An optional round that consumed nothing would loop for ever: it fails instead.
        const int32_t count = m_registers[inst.a];
        ok = !(count >= inst.c && pos == m_registers[inst.b]);
        if (ok) Set(inst.a, count + 1);
        pc = inst.d;
        break;
      }
      case Op::RepeatOne: {
        const Inst& test = m_code[pc + 1];
        const int64_t limit = inst.c < 0 ? m_size : std::min<int64_t>(m_size, int64_t{pos} + inst.c);
        int32_t at = pos;
        if (inst.flag) {
          while (at < limit && Test(test, m_text[at])) ++at;
          ok = at - pos >= inst.b;
          if (ok && at - pos > inst.b) m_stack.push_back({Kind::GiveBack, pc + 2, pos + inst.b, at});
        } else {
          while (ok && at - pos < inst.b) ok = at < m_size && Test(test, m_text[at++]);
          if (ok && (inst.c < 0 || at - pos < inst.c)) m_stack.push_back({Kind::TakeMore, pc, at, at - pos});
        }
        pos = at;
        pc += 2;
        break;
      }
      case Op::Look: {
        const size_t mark = m_stack.size();
        int32_t look_end = 0;
        auto matched = Run(pc + 1, pos, look_end);
        if (!matched) return matched;
        if (*matched && inst.flag) {
          UndoTo(mark);
          ok = false;
        } else if (*matched) {
          // Groups set inside stay set, but the lookahead is not re-entered on backtracking: only
          // its register records survive.
          auto kept = std::remove_if(m_stack.begin() + static_cast<std::ptrdiff_t>(mark), m_stack.end(),
                                     [](const Entry& entry) { return entry.kind != Kind::Undo; });
          m_stack.erase(kept, m_stack.end());
        } else {
          ok = inst.flag;
        }
        pc = inst.a;
        break;
      }
      case Op::Succeed:
      case Op::Match: end = pos; return true;
    }
    if (!ok && !Backtrack(base, pc, pos)) return false;
  }
}

Result<bool> RegExpProgram::Search(std::u16string_view text, size_t start, RegExpCaptures& captures,
                                   const std::function<Status()>& interrupt) const {
  RegExpMachine machine(*this, text, interrupt);
  for (size_t at = start; at <= text.size(); ++at) {
    if (m_anchored && at > 0) break;
    if (m_code[0].op == Op::Char) {
      at = text.find(static_cast<char16_t>(m_code[0].a), at);
      if (at == std::u16string_view::npos) break;
    }
    machine.Reset();
    int32_t end = 0;
    auto matched = machine.Run(0, static_cast<int32_t>(at), end);
    if (!matched) return matched;
    if (*matched) {
      captures.assign(machine.registers().begin(), machine.registers().begin() + 2 * (m_groups + 1));
      captures[0] = static_cast<int32_t>(at);
      captures[1] = end;
      return true;
    }
  }
  return false;
}

}  // namespace vbs