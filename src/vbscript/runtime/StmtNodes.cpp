#include "vbscript/runtime/StmtNodes.h"

#include "vbscript/runtime/FastArithmetic.h"
#include "vbscript/value/Coercion.h"
#include "vbscript/value/SafeArray.h"

namespace vbs {

namespace {

bool IsInterruption(const ScriptError& error) { return error.number == err::kAborted; }

Result<bool> Condition(Frame& frame, ExprNode& condition) {
  VBS_TRY_ASSIGN(auto&& value, condition.Eval(frame));
  if (value.is_boolean()) return value.as_boolean();
  return IsTrue(value, frame.interp.locale());
}

// Under "On Error Resume Next" an error in the header of a compound statement resumes with the next
// statement, which is the first of its body: Windows runs the If branch, the loop body, the With
// body whose header failed. True when the error was absorbed that way.
bool ResumeIntoBody(Frame& frame, const ScriptError& error) {
  if (!frame.resume_next || IsInterruption(error)) return false;
  frame.interp.SetErr(error);
  return true;
}

// What a loop does with the way its body ended: whether to leave, and what to report upwards.
bool LeavesLoop(Flow flow, Flow own_exit, Flow& report) {
  if (flow == Flow::Normal) return false;
  report = flow == own_exit ? Flow::Normal : flow;
  return true;
}

}  // namespace

ScriptError BlockNode::Interrupted(Frame& frame, const StmtNode& statement) {
  ScriptError error = frame.interp.InterruptError();
  error.pos = statement.pos();
  error.has_pos = true;
  return error;
}

bool BlockNode::Absorbed(Frame& frame, const StmtNode& statement, ScriptError& error) {
  if (!error.has_pos) {
    error.pos = statement.pos();
    error.has_pos = true;
  }
  if (!frame.resume_next || IsInterruption(error)) return false;
  frame.interp.SetErr(error);
  return true;
}

Result<Flow> ExprStmtNode::Exec(Frame& frame) {
  VBS_TRY(m_expr->Invoke(frame));
  return Flow::Normal;
}

Result<Flow> AssignNode::Exec(Frame& frame) {
  if (!m_creates) [[likely]]
    return Store(frame);
  auto stored = Store(frame);
  if (stored) m_creates->reserved = false;
  return stored;
}

inline Result<Flow> AssignNode::Store(Frame& frame) {
  if (const Variant* source = m_direct_value.Get(frame);
      source && !m_is_set && !source->is_object() && !source->IsRef()) {
    if (Variant* target = m_direct_target.Storage(frame)) {
      *target = *source;
      return Flow::Normal;
    }
  }
  if (m_value_may_eval_into) {
    if (Variant* target = m_direct_target.Storage(frame); target && !m_is_set && m_value->TryEvalInto(frame, *target))
      return Flow::Normal;
  }
  VBS_TRY_ASSIGN(auto&& value, m_value->Eval(frame));
  if (!m_is_set && !value.is_object() && !value.IsRef()) {
    if (Variant* target = m_direct_target.Storage(frame)) {
      *target = std::move(value);
      return Flow::Normal;
    }
  }
  VBS_TRY(m_target->Assign(frame, std::move(value), m_is_set));
  return Flow::Normal;
}

Result<Flow> AppendNode::Exec(Frame& frame) {
  VBS_TRY_ASSIGN(auto&& value, m_value->Eval(frame));
  VBS_TRY(ConcatAssign(m_target->Storage(frame).Deref(), value, frame.interp.locale()));
  return Flow::Normal;
}

template <BinaryOperator Op>
Result<Flow> UpdateNode<Op>::Exec(Frame& frame) {
  Variant& target = *m_direct_target.Storage(frame);
  if (const Variant* value = m_direct_value.Get(frame)) {
    if (TryFastApply<Op>(target, *value, target)) [[likely]]
      return Flow::Normal;
    return Store(target, target, *value, frame);
  }
  if (Variant computed; m_value_may_eval_into && m_value->TryEvalInto(frame, computed)) {
    if (TryFastApply<Op>(target, computed, target)) [[likely]]
      return Flow::Normal;
    return Store(target, target, computed, frame);
  }
  const Variant current = target;  // taken first: evaluating the right side may change the variable
  VBS_TRY_ASSIGN(auto&& value, m_value->Eval(frame));
  if (TryFastApply<Op>(current, value, target)) [[likely]]
    return Flow::Normal;
  return Store(target, current, value, frame);
}

template <BinaryOperator Op>
Result<Flow> UpdateNode<Op>::Store(Variant& target, const Variant& current, const Variant& value, Frame& frame) {
  VBS_TRY_ASSIGN(auto&& result, ApplyBinary(Op, current, value, frame.interp.compare_mode(), frame.interp.locale()));
  target = std::move(result);
  return Flow::Normal;
}

StmtNodePtr MakeUpdateNode(SourcePos pos, BinaryOperator op, ExprNodePtr target, ExprNodePtr value) {
  assert(DirectOperand(target.get()).IsVariable());
  switch (op) {
    case BinaryOperator::Add:
      return std::make_unique<UpdateNode<BinaryOperator::Add>>(pos, std::move(target), std::move(value));
    case BinaryOperator::Subtract:
      return std::make_unique<UpdateNode<BinaryOperator::Subtract>>(pos, std::move(target), std::move(value));
    default:
      assert(op == BinaryOperator::Multiply);
      return std::make_unique<UpdateNode<BinaryOperator::Multiply>>(pos, std::move(target), std::move(value));
  }
}

Result<Flow> RedimNode::Exec(Frame& frame) {
  for (RedimTarget& item : m_targets) {
    VBS_TRY_ASSIGN(auto&& address, item.target->Address(frame));
    if (!address) return MakeError(err::kTypeMismatch);
    // Without Preserve a fixed array refuses before its new bounds are even looked at; with
    // Preserve the bounds are read first, as Windows does.
    if (!m_preserve && (address)->IsFixedArray()) return MakeError(err::kFixedArray);
    std::vector<ArrayBound> bounds;
    for (ExprNodePtr& bound : item.bounds) {
      VBS_TRY_ASSIGN(auto&& value, bound->Eval(frame));
      VBS_TRY_ASSIGN(auto&& upper, value.to_long(frame.interp.locale()));
      bounds.push_back({0, upper});
    }
    VBS_TRY(Redim(*address, bounds, m_preserve ? RedimMode::Preserve : RedimMode::Discard));
  }
  return Flow::Normal;
}

Result<Flow> EraseNode::Exec(Frame& frame) {
  for (ExprNodePtr& target : m_targets) {
    VBS_TRY_ASSIGN(auto&& address, target->Address(frame));
    if (!address) return MakeError(err::kTypeMismatch);
    VBS_TRY(Erase(*address));
  }
  return Flow::Normal;
}

namespace {

template <BinaryOperator Op>
bool MatchComparison(const ExprNode* condition, BinaryOperator& op, DirectOperand& left, DirectOperand& right) {
  const auto* comparison = dynamic_cast<const ArithmeticNode<Op>*>(condition);
  if (!comparison || !comparison->left_direct().IsDirect() || !comparison->right_direct().IsDirect()) return false;
  op = Op;
  left = comparison->left_direct();
  right = comparison->right_direct();
  return true;
}

}  // namespace

InlineComparison::InlineComparison(const ExprNode* condition) {
  using enum BinaryOperator;
  for (auto match : {&MatchComparison<Equal>, &MatchComparison<NotEqual>, &MatchComparison<Less>,
                     &MatchComparison<LessEqual>, &MatchComparison<Greater>, &MatchComparison<GreaterEqual>}) {
    if (match(condition, m_op, m_left, m_right)) return;
  }
}

IfNode::IfNode(SourcePos pos, std::vector<ConditionalBlock> branches, BlockNode otherwise)
    : StmtNode(pos), m_branches(std::move(branches)), m_else(std::move(otherwise)) {
  for (const ConditionalBlock& branch : m_branches) m_comparisons.emplace_back(branch.condition.get());
}

Result<Flow> IfNode::Exec(Frame& frame) {
  for (size_t i = 0; i < m_branches.size(); ++i) {
    ConditionalBlock& branch = m_branches[i];
    const InlineComparison::Outcome outcome = m_comparisons[i].Decide(frame);
    if (outcome == InlineComparison::Outcome::True) return branch.body.Exec(frame);
    if (outcome == InlineComparison::Outcome::False) continue;
    auto holds = Condition(frame, *branch.condition);
    if (!holds && !ResumeIntoBody(frame, holds.error())) return std::move(holds).error();
    if (!holds || *holds) return branch.body.Exec(frame);
  }
  return m_else.Exec(frame);
}

Result<Flow> SelectNode::Exec(Frame& frame) {
  VBS_TRY_ASSIGN(auto&& subject, m_subject->Eval(frame));
  for (CaseBlock& block : m_cases) {
    for (ExprNodePtr& candidate : block.values) {
      auto value = candidate->Eval(frame);
      if (!value) {
        if (ResumeIntoBody(frame, value.error())) return block.body.Exec(frame);
        return std::move(value).error();
      }
      VBS_TRY_ASSIGN(auto&& equal, Compare(BinaryOperator::Equal, subject, *value, frame.interp.compare_mode(),
                                           frame.interp.locale()));
      if (equal.is_boolean() && equal.as_boolean()) return block.body.Exec(frame);
    }
  }
  return m_else.Exec(frame);
}

namespace {

// Whole-number loops on a plain variable, the common case, count in a machine integer.
bool CountsWhole(const Variant& v) { return v.is_integer() || v.is_long(); }

// The step of a For without one; at namespace scope, so that no header asks whether it is made yet.
const Variant kStepOfOne = Variant::Integer(1);

}  // namespace

Result<Flow> ForNode::Exec(Frame& frame) {
  Variant& limit = frame.slots[m_temp];
  Variant& increment = frame.slots[m_temp + 1];
  const Variant* from = m_variable ? m_from_direct.Get(frame) : nullptr;
  const Variant* to = from ? m_to_direct.Get(frame) : nullptr;
  const Variant* step = !to ? nullptr : m_step ? m_step_direct.Get(frame) : &kStepOfOne;
  if (step && CountsWhole(*from) && CountsWhole(*to) && CountsWhole(*step)) {
    limit = *to;
    increment = *step;
    VBS_TRY(m_counter->Assign(frame, *from, false));
    return Count(frame, increment.as_whole() >= 0);
  }

  // A header that fails under "On Error Resume Next" runs the body once; its Next then finds the
  // loop uninitialised (error 92) and resumes after it.
  auto header_failed = [&](const ScriptError& error) -> Result<Flow> {
    if (!ResumeIntoBody(frame, error)) return error;
    auto flow = m_body.Exec(frame);
    if (!flow) return flow;
    frame.interp.SetErr(MakeError(err::kForNotInitialised));
    return *flow == Flow::ExitFor ? Flow::Normal : *flow;
  };
  auto from_value = m_from->Eval(frame);
  if (!from_value) return header_failed(from_value.error());
  auto to_value = m_to->Eval(frame);
  if (!to_value) return header_failed(to_value.error());
  Variant step_value = Variant::Integer(1);
  if (m_step) {
    auto value = m_step->Eval(frame);
    if (!value) return header_failed(value.error());
    step_value = std::move(*value);
  }
  VBS_TRY_ASSIGN(auto&& plain_from, LetValue(std::move(*from_value)));
  VBS_TRY_ASSIGN(auto&& plain_to, LetValue(std::move(*to_value)));
  VBS_TRY_ASSIGN(auto&& plain_step, LetValue(std::move(step_value)));
  limit = std::move(plain_to);
  increment = std::move(plain_step);
  VBS_TRY_ASSIGN(auto&& step_number, increment.to_double(frame.interp.locale()));
  VBS_TRY(m_counter->Assign(frame, std::move(plain_from), false));
  return Count(frame, step_number >= 0);
}

Result<Flow> ForNode::Count(Frame& frame, bool ascending) {
  const Locale& locale = frame.interp.locale();
  const Variant& limit = frame.slots[m_temp];
  const Variant& increment = frame.slots[m_temp + 1];
  Flow report = Flow::Normal;
  auto step_counter = [&]() -> Status {
    VBS_TRY_ASSIGN(auto&& current, m_counter->Eval(frame));
    VBS_TRY_ASSIGN(auto&& next, Add(current, increment, locale));
    return m_counter->Assign(frame, std::move(next), false);
  };
  bool body_ran = false;  // set when the fast loop hands over right after a run of the body

  // The counter keeps the subtype that adding the step would give it (Integer, widening to Long).
  if (m_variable && CountsWhole(limit) && CountsWhole(increment)) {
    const int64_t last = limit.as_whole();
    const int64_t by = increment.as_whole();
    const bool integer_step = increment.is_integer();
    // The variable's storage stays where it is for the whole loop (a slot, a global, the target of
    // a ByRef parameter).
    Variant& counter = m_variable->Storage(frame).Deref();
    // The body looks for a stop before each statement; an empty one has no statement to look.
    const bool check_here = m_body.statements.empty();
    for (;;) {
      if (!CountsWhole(counter)) break;
      const int64_t current = counter.as_whole();
      if (by >= 0 ? current > last : current < last) return Flow::Normal;
      if (check_here) VBS_TRY(frame.interp.CheckInterrupt());
      auto flow = m_body.Exec(frame);
      if (!flow) return flow;
      if (LeavesLoop(*flow, Flow::ExitFor, report)) return report;
      if (!CountsWhole(counter)) {
        body_ran = true;
        break;
      }
      const int64_t next = counter.as_whole() + by;
      if (counter.is_integer() && integer_step && next >= INT16_MIN && next <= INT16_MAX)
        counter.SetInteger(static_cast<int16_t>(next));
      else if (next >= INT32_MIN && next <= INT32_MAX)
        counter.SetLong(static_cast<int32_t>(next));
      else
        counter.AssignPlain(Variant::Double(static_cast<double>(next)));
    }
  }
  if (body_ran) VBS_TRY(step_counter());
  const BinaryOperator keep_going = ascending ? BinaryOperator::LessEqual : BinaryOperator::GreaterEqual;
  for (;;) {
    VBS_TRY_ASSIGN(auto&& counter, m_counter->Eval(frame));
    VBS_TRY_ASSIGN(auto&& within, Compare(keep_going, counter, limit, CompareMode::Binary, locale));
    if (!within.is_boolean() || !within.as_boolean()) break;
    VBS_TRY(frame.interp.CheckInterrupt());
    auto flow = m_body.Exec(frame);
    if (!flow) return flow;
    if (LeavesLoop(*flow, Flow::ExitFor, report)) return report;
    VBS_TRY(step_counter());
  }
  return Flow::Normal;
}

namespace {

// Keeps an array from being resized while For Each walks it.
class ArrayLock {
 public:
  explicit ArrayLock(Ref<SafeArray> array) : m_array(std::move(array)) { m_array->Lock(); }
  ~ArrayLock() { m_array->Unlock(); }
  ArrayLock(const ArrayLock&) = delete;
  ArrayLock& operator=(const ArrayLock&) = delete;

 private:
  Ref<SafeArray> m_array;
};

}  // namespace

Result<Flow> ForEachNode::Exec(Frame& frame) {
  Flow report = Flow::Normal;
  // What is no collection is error 451; under "On Error Resume Next" the body runs once, as the
  // statement after the failed For Each, and Next fails again with 451 and leaves the loop.
  auto once_without_collection = [&](const ScriptError& error) -> Result<Flow> {
    if (!ResumeIntoBody(frame, error)) return ScriptError(error);
    VBS_TRY_ASSIGN(auto&& flow, m_body.Exec(frame));
    if (LeavesLoop(flow, Flow::ExitFor, report)) return report;
    if (!ResumeIntoBody(frame, MakeError(err::kNotCollection))) return MakeError(err::kNotCollection);
    return Flow::Normal;
  };
  auto collection = m_collection->Eval(frame);
  if (!collection) return once_without_collection(collection.error());
  auto visit = [&](Variant element) -> Result<bool> {
    VBS_TRY(frame.interp.CheckInterrupt());
    bool is_object = element.is_object();
    VBS_TRY(m_element->Assign(frame, std::move(element), is_object));
    VBS_TRY_ASSIGN(auto&& flow, m_body.Exec(frame));
    return LeavesLoop(flow, Flow::ExitFor, report);
  };

  if (collection->is_array()) {
    Ref<SafeArray> array(collection->as_array());
    ArrayLock lock(array);
    for (size_t i = 0; i < array->size(); ++i) {
      VBS_TRY_ASSIGN(auto&& leave, visit(array->elements()[i]));
      if (leave) return report;
    }
    return Flow::Normal;
  }
  if (!collection->is_object() || !collection->as_object())
    return once_without_collection(MakeError(err::kNotCollection));
  auto enumerator = collection->as_object()->Enumerate();
  if (!enumerator) return once_without_collection(enumerator.error());
  for (;;) {
    Variant element;
    VBS_TRY_ASSIGN(auto&& more, (*enumerator)->Next(element));
    if (!more) break;
    VBS_TRY_ASSIGN(auto&& leave, visit(std::move(element)));
    if (leave) return report;
  }
  // A collection walked to its end leaves the loop variable Empty, as Windows does.
  VBS_TRY(m_element->Assign(frame, Variant(), false));
  return Flow::Normal;
}

Result<Flow> LoopNode::Exec(Frame& frame) {
  const bool check_before = m_kind == ast::LoopCondition::WhileBefore || m_kind == ast::LoopCondition::UntilBefore;
  const bool until = m_kind == ast::LoopCondition::UntilBefore || m_kind == ast::LoopCondition::UntilAfter;
  Flow report = Flow::Normal;
  for (;;) {
    // An empty body has no statement at which to notice a stop: the loop itself looks.
    VBS_TRY(frame.interp.CheckInterrupt());
    if (check_before) {
      auto holds = Condition(frame, *m_condition);
      if (!holds && !ResumeIntoBody(frame, holds.error())) return std::move(holds).error();
      if (holds && *holds == until) break;
    }
    auto flow = m_body.Exec(frame);
    if (!flow) return flow;
    if (m_while_wend ? *flow != Flow::Normal : LeavesLoop(*flow, Flow::ExitDo, report))
      return m_while_wend ? *flow : report;
    if (m_condition && !check_before) {
      VBS_TRY_ASSIGN(auto&& holds, Condition(frame, *m_condition));
      if (holds == until) break;
    }
  }
  return Flow::Normal;
}

Result<Flow> WithNode::Exec(Frame& frame) {
  auto object = m_object->Eval(frame);
  if (!object && !ResumeIntoBody(frame, object.error())) return std::move(object).error();
  frame.slots[m_slot] = object ? std::move(*object) : Variant();
  auto flow = m_body.Exec(frame);
  frame.slots[m_slot] = Variant();
  return flow;
}

namespace {

// Puts in a variable what `Dim a(2, 3)` or `Dim a()` makes: the fixed mark belongs to the variable.
Status DimArray(Variant& variable, const std::vector<int32_t>& uppers, bool fixed) {
  if (!fixed) {
    variable = Variant::Array(SafeArray::CreateUndimensioned());
    return Ok();
  }
  std::vector<ArrayBound> bounds;
  for (int32_t upper : uppers) bounds.push_back({0, upper});
  VBS_TRY_ASSIGN(auto&& array, SafeArray::Create(bounds));
  variable = Variant::Array(array);
  variable.MarkFixedArray();
  return Ok();
}

}  // namespace

Result<Flow> DimArrayNode::Exec(Frame&) {
  for (Item& item : m_items) VBS_TRY(DimArray(*item.storage, item.uppers, item.fixed));
  return Flow::Normal;
}

Result<Flow> DimInCallNode::Exec(Frame& frame) {
  Frame& call = *frame.outer;
  for (Item& item : m_items) {
    Variant* variable;
    if (item.slot >= 0) {
      variable = &call.slots[item.slot];
      *variable = Variant();
    } else {
      if (!call.dynamic) call.dynamic = std::make_unique<std::unordered_map<std::string, Variant>>();
      variable = &(*call.dynamic)[item.folded];
    }
    if (item.is_array) VBS_TRY(DimArray(*variable, item.uppers, !item.uppers.empty()));
  }
  return Flow::Normal;
}

Result<Flow> OnErrorNode::Exec(Frame& frame) {
  frame.resume_next = m_resume_next;
  frame.interp.err() = ErrState{};
  return Flow::Normal;
}

}  // namespace vbs
