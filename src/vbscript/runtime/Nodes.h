#pragma once

// The executable form of a script. The compiler turns the syntax tree into a tree of nodes whose
// names are already resolved: a local variable is a slot number, a global a pointer to its storage,
// a procedure a pointer to its compiled body. Running a script is a walk over these nodes; nothing
// is looked up by name while it runs, except names that did not exist yet when the code was
// compiled (they resolve on first use and remember the answer).

#include <memory>
#include <span>
#include <vector>

#include "vbscript/value/Result.h"
#include "vbscript/value/Variant.h"

namespace vbs {

struct Frame;
class ArgValues;

// How a statement ends: normally, or by one of the Exit statements that unwinds to its construct.
enum class Flow : uint8_t { Normal, ExitDo, ExitFor, ExitProcedure };

class ExprNode {
 public:
  explicit ExprNode(SourcePos pos) : m_pos(pos) {}
  virtual ~ExprNode() = default;
  ExprNode(const ExprNode&) = delete;
  ExprNode& operator=(const ExprNode&) = delete;

  SourcePos pos() const { return m_pos; }

  // The expression's value. An object stays an object: whether its default value is wanted is the
  // caller's decision (Set, Is and argument passing keep the object).
  virtual Result<Variant> Eval(Frame& frame) = 0;

  // The storage the expression names (a variable, an array element), so that a ByRef argument can
  // share it; null when the expression is a plain value.
  virtual Result<Variant*> Address(Frame& frame);

  // The storage to pass to a ByRef parameter. An array element is passed by reference too; its
  // array stays locked for the call (a ReDim in the callee fails with error 10, as on Windows).
  virtual Result<Variant*> AddressForArgument(Frame& frame, ArgValues& args) {
    (void)args;
    return Address(frame);
  }

  // `expr = value` (Let) or `Set expr = value`. Error 424/13 family by default: most expressions
  // cannot be assigned to.
  virtual Status Assign(Frame& frame, Variant value, bool is_set);

  // Runs the expression as a statement, discarding any value: `f a, b`, `obj.m`, `Call f(a)`.
  virtual Status Invoke(Frame& frame);

  // A parenthesised expression is passed by value even to a ByRef parameter.
  virtual bool ForcesByVal() const { return false; }

  // Writes the value straight into `out` when it is computed from plain operands by a path that
  // cannot fail (inline arithmetic, a host member's whole-number form): `k = i Mod 90` then builds
  // no Result. False, with `out` untouched and nothing changed, when Eval must decide.
  virtual bool TryEvalInto(Frame& /*frame*/, Variant& /*out*/) { return false; }
  // False when TryEvalInto can never succeed, so that a statement need not ask it at each run.
  virtual bool MayEvalInto() const { return false; }

 private:
  SourcePos m_pos;
};
using ExprNodePtr = std::unique_ptr<ExprNode>;
using ExprNodes = std::vector<ExprNodePtr>;

class StmtNode {
 public:
  explicit StmtNode(SourcePos pos) : m_pos(pos) {}
  virtual ~StmtNode() = default;
  StmtNode(const StmtNode&) = delete;
  StmtNode& operator=(const StmtNode&) = delete;

  SourcePos pos() const { return m_pos; }
  virtual Result<Flow> Exec(Frame& frame) = 0;

 private:
  SourcePos m_pos;
};
using StmtNodePtr = std::unique_ptr<StmtNode>;

// A sequence of statements: the unit at which "On Error Resume Next" resumes, time-outs and abort
// requests are noticed, and an error learns the position of the statement that raised it.
class BlockNode {
 public:
  std::vector<StmtNodePtr> statements;

  // Inline: the body of every loop runs through here at each iteration.
  [[gnu::always_inline]] Result<Flow> Exec(Frame& frame) const {
    for (const StmtNodePtr& statement : statements) {
      if (InterruptDue(frame)) [[unlikely]]
        return Interrupted(frame, *statement);
      auto flow = statement->Exec(frame);
      if (!flow) [[unlikely]] {
        if (Absorbed(frame, *statement, flow.error())) continue;
        return flow;
      }
      if (*flow != Flow::Normal) return flow;
    }
    return Flow::Normal;
  }

 private:
  [[gnu::always_inline]] static inline bool InterruptDue(Frame& frame);  // defined with the interpreter
  // The error paths, out of line so that the loop above stays small.
  [[gnu::noinline]] static ScriptError Interrupted(Frame& frame, const StmtNode& statement);
  // Gives the error the statement's position; true when "On Error Resume Next" absorbs it.
  [[gnu::noinline]] static bool Absorbed(Frame& frame, const StmtNode& statement, ScriptError& error);
};

}  // namespace vbs
