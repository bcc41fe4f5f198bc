#pragma once

// The statement nodes that the compiler builds. Declarations leave no node: the compiler turns them
// into slots, globals and initial values before the code runs.

#include <vector>

#include "vbscript/runtime/ExprNodes.h"

namespace vbs {

class ExprStmtNode final : public StmtNode {
 public:
  ExprStmtNode(SourcePos pos, ExprNodePtr expr) : StmtNode(pos), m_expr(std::move(expr)) {}
  Result<Flow> Exec(Frame& frame) override;

 private:
  ExprNodePtr m_expr;
};

class AssignNode final : public StmtNode {
 public:
  // `creates`: the global that global code names here undeclared, which the assignment brings into
  // being for the procedures even when the value is Empty.
  AssignNode(SourcePos pos, ExprNodePtr target, ExprNodePtr value, bool is_set, GlobalEntry* creates = nullptr)
      : StmtNode(pos),
        m_target(std::move(target)),
        m_value(std::move(value)),
        m_is_set(is_set),
        m_creates(creates),
        m_value_may_eval_into(m_value->MayEvalInto()),
        m_direct_target(m_target.get()),
        m_direct_value(m_value.get(), Elements::ReadInPlace) {}
  Result<Flow> Exec(Frame& frame) override;

 private:
  [[gnu::always_inline]] inline Result<Flow> Store(Frame& frame);

  ExprNodePtr m_target;
  ExprNodePtr m_value;
  bool m_is_set;
  GlobalEntry* m_creates;
  bool m_value_may_eval_into;
  // A plain local or global target takes a plain value with no call; from a plain variable or
  // constant (`Fib = n`), with no evaluation either.
  DirectOperand m_direct_target;
  DirectOperand m_direct_value;
};

// `s = s & x` on a variable: appends in place, so that building a string in a loop stays linear.
class AppendNode final : public StmtNode {
 public:
  AppendNode(SourcePos pos, std::unique_ptr<VariableNode> target, ExprNodePtr value)
      : StmtNode(pos), m_target(std::move(target)), m_value(std::move(value)) {}
  Result<Flow> Exec(Frame& frame) override;

 private:
  std::unique_ptr<VariableNode> m_target;
  ExprNodePtr m_value;
};

// `x = x + e`, `x = x - e`, `x = x * e` on a plain local or global variable: the counters and sums
// of loops, computed and stored with no pass through the general assignment.
template <BinaryOperator Op>
class UpdateNode final : public StmtNode {
 public:
  UpdateNode(SourcePos pos, ExprNodePtr target, ExprNodePtr value)
      : StmtNode(pos),
        m_target(std::move(target)),
        m_value(std::move(value)),
        m_direct_target(m_target.get()),
        m_direct_value(m_value.get(), Elements::ReadInPlace),
        m_value_may_eval_into(m_value->MayEvalInto()) {}
  Result<Flow> Exec(Frame& frame) override;

 private:
  // The general rules, for what the inline arithmetic leaves.
  [[gnu::noinline]] static Result<Flow> Store(Variant& target, const Variant& current, const Variant& value,
                                              Frame& frame);

  ExprNodePtr m_target;
  ExprNodePtr m_value;
  DirectOperand m_direct_target;
  DirectOperand m_direct_value;
  bool m_value_may_eval_into;
};

// `target = target op value` for a target that is a plain local or global and op one of +, -, *.
StmtNodePtr MakeUpdateNode(SourcePos pos, BinaryOperator op, ExprNodePtr target, ExprNodePtr value);

struct RedimTarget {
  ExprNodePtr target;
  ExprNodes bounds;
};

class RedimNode final : public StmtNode {
 public:
  RedimNode(SourcePos pos, bool preserve, std::vector<RedimTarget> targets)
      : StmtNode(pos), m_preserve(preserve), m_targets(std::move(targets)) {}
  Result<Flow> Exec(Frame& frame) override;

 private:
  bool m_preserve;
  std::vector<RedimTarget> m_targets;
};

class EraseNode final : public StmtNode {
 public:
  EraseNode(SourcePos pos, ExprNodes targets) : StmtNode(pos), m_targets(std::move(targets)) {}
  Result<Flow> Exec(Frame& frame) override;

 private:
  ExprNodes m_targets;
};

struct ConditionalBlock {
  ExprNodePtr condition;
  BlockNode body;
};

// A condition that compares two plain variables or constants (`n < 2`), decided inline while both
// hold whole numbers, with no call and no value built.
class InlineComparison {
 public:
  // One that never decides unless `condition` is such a comparison.
  explicit InlineComparison(const ExprNode* condition);
  enum class Outcome : uint8_t { False, True, Undecided };
  Outcome Decide(Frame& frame) const {
    const Variant* a = m_left.GetPlain(frame);
    const Variant* b = m_right.GetPlain(frame);
    if (!a || !b || !a->is_whole() || !b->is_whole()) return Outcome::Undecided;
    return Holds(a->as_whole(), b->as_whole()) ? Outcome::True : Outcome::False;
  }

 private:
  bool Holds(int32_t x, int32_t y) const {
    switch (m_op) {
      case BinaryOperator::Equal: return x == y;
      case BinaryOperator::NotEqual: return x != y;
      case BinaryOperator::Less: return x < y;
      case BinaryOperator::LessEqual: return x <= y;
      case BinaryOperator::Greater: return x > y;
      default: return x >= y;
    }
  }

  BinaryOperator m_op = BinaryOperator::Equal;
  DirectOperand m_left{nullptr};
  DirectOperand m_right{nullptr};
};

class IfNode final : public StmtNode {
 public:
  IfNode(SourcePos pos, std::vector<ConditionalBlock> branches, BlockNode otherwise);
  Result<Flow> Exec(Frame& frame) override;

 private:
  std::vector<ConditionalBlock> m_branches;
  std::vector<InlineComparison> m_comparisons;  // one for each branch
  BlockNode m_else;
};

struct CaseBlock {
  ExprNodes values;
  BlockNode body;
};

class SelectNode final : public StmtNode {
 public:
  SelectNode(SourcePos pos, ExprNodePtr subject, std::vector<CaseBlock> cases, BlockNode otherwise)
      : StmtNode(pos), m_subject(std::move(subject)), m_cases(std::move(cases)), m_else(std::move(otherwise)) {}
  Result<Flow> Exec(Frame& frame) override;

 private:
  ExprNodePtr m_subject;
  std::vector<CaseBlock> m_cases;
  BlockNode m_else;
};

// For counter = from To to Step step: limit and step are evaluated once, into hidden slots.
class ForNode final : public StmtNode {
 public:
  ForNode(SourcePos pos, ExprNodePtr counter, ExprNodePtr from, ExprNodePtr to, ExprNodePtr step, uint32_t temp,
          BlockNode body)
      : StmtNode(pos),
        m_counter(std::move(counter)),
        m_from(std::move(from)),
        m_to(std::move(to)),
        m_step(std::move(step)),
        m_temp(temp),
        m_body(std::move(body)),
        m_variable(dynamic_cast<VariableNode*>(m_counter.get())),
        m_from_direct(m_from.get(), Elements::ReadInPlace),
        m_to_direct(m_to.get(), Elements::ReadInPlace),
        m_step_direct(m_step.get(), Elements::ReadInPlace) {}
  Result<Flow> Exec(Frame& frame) override;

 private:
  // The loop once its header is done: the counter assigned, the limit and step in their slots.
  Result<Flow> Count(Frame& frame, bool ascending);

  ExprNodePtr m_counter;
  ExprNodePtr m_from;
  ExprNodePtr m_to;
  ExprNodePtr m_step;
  uint32_t m_temp;  // two slots: the limit, then the step
  BlockNode m_body;
  VariableNode* m_variable;  // the counter when it is a plain variable: whole-number loops count fast
  // Bounds and step that are constants or variables: a short inner loop's header then costs no
  // evaluation.
  DirectOperand m_from_direct;
  DirectOperand m_to_direct;
  DirectOperand m_step_direct;
};

class ForEachNode final : public StmtNode {
 public:
  ForEachNode(SourcePos pos, ExprNodePtr element, ExprNodePtr collection, BlockNode body)
      : StmtNode(pos), m_element(std::move(element)), m_collection(std::move(collection)), m_body(std::move(body)) {}
  Result<Flow> Exec(Frame& frame) override;

 private:
  ExprNodePtr m_element;
  ExprNodePtr m_collection;
  BlockNode m_body;
};

class LoopNode final : public StmtNode {
 public:
  LoopNode(SourcePos pos, ast::LoopCondition kind, ExprNodePtr condition, BlockNode body, bool is_while_wend)
      : StmtNode(pos),
        m_kind(kind),
        m_condition(std::move(condition)),
        m_body(std::move(body)),
        m_while_wend(is_while_wend) {}
  Result<Flow> Exec(Frame& frame) override;

 private:
  ast::LoopCondition m_kind;
  ExprNodePtr m_condition;
  BlockNode m_body;
  bool m_while_wend;  // While ... Wend: Exit Do does not leave it
};

class ExitNode final : public StmtNode {
 public:
  ExitNode(SourcePos pos, Flow flow) : StmtNode(pos), m_flow(flow) {}
  Result<Flow> Exec(Frame&) override { return m_flow; }

 private:
  Flow m_flow;
};

class WithNode final : public StmtNode {
 public:
  WithNode(SourcePos pos, ExprNodePtr object, uint32_t slot, BlockNode body)
      : StmtNode(pos), m_object(std::move(object)), m_slot(slot), m_body(std::move(body)) {}
  Result<Flow> Exec(Frame& frame) override;

 private:
  ExprNodePtr m_object;
  uint32_t m_slot;
  BlockNode m_body;
};

class OnErrorNode final : public StmtNode {
 public:
  OnErrorNode(SourcePos pos, bool resume_next) : StmtNode(pos), m_resume_next(resume_next) {}
  Result<Flow> Exec(Frame& frame) override;

 private:
  bool m_resume_next;
};

// `Dim a(3)` or `Dim a()` in global code: the array is made when the statement runs.
class DimArrayNode final : public StmtNode {
 public:
  struct Item {
    Variant* storage;
    std::vector<int32_t> uppers;
    bool fixed;
  };
  DimArrayNode(SourcePos pos, std::vector<Item> items) : StmtNode(pos), m_items(std::move(items)) {}
  Result<Flow> Exec(Frame& frame) override;

 private:
  std::vector<Item> m_items;
};

// Dim in code that Execute runs inside a procedure: each name becomes a variable of that call of
// the procedure, in the slot the procedure has for it or among the call's own variables.
class DimInCallNode final : public StmtNode {
 public:
  struct Item {
    std::string folded;
    int32_t slot;  // the procedure's slot for the name, or -1
    std::vector<int32_t> uppers;
    bool is_array;
  };
  DimInCallNode(SourcePos pos, std::vector<Item> items) : StmtNode(pos), m_items(std::move(items)) {}
  Result<Flow> Exec(Frame& frame) override;

 private:
  std::vector<Item> m_items;
};

// A statement that fails when run: a compile-time finding that VBScript reports only at run time,
// such as an assignment to a constant.
class FailNode final : public StmtNode {
 public:
  FailNode(SourcePos pos, int32_t number) : StmtNode(pos), m_number(number) {}
  Result<Flow> Exec(Frame&) override { return MakeError(m_number); }

 private:
  int32_t m_number;
};

}  // namespace vbs
