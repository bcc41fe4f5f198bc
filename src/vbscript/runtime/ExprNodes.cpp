#include "vbscript/runtime/ExprNodes.h"

#include "vbscript/runtime/ClassInstance.h"
#include "vbscript/runtime/FastArithmetic.h"
#include "vbscript/value/AllocationFailure.h"
#include "vbscript/value/Coercion.h"
#include "vbscript/value/ErrorTable.h"
#include "vbscript/value/SafeArray.h"

namespace vbs {

// ---- Defaults of ExprNode ----

Result<Variant*> ExprNode::Address(Frame&) { return static_cast<Variant*>(nullptr); }

Status ExprNode::Assign(Frame&, Variant, bool) { return MakeError(err::kIllegalAssignment); }

Status ExprNode::Invoke(Frame& frame) {
  VBS_TRY(Eval(frame));
  return Ok();
}

// ---- Arguments ----

ArgValues::Rare& ArgValues::RareParts() {
  if (!m_rare) m_rare = std::make_unique<Rare>();
  return *m_rare;
}

void ArgValues::Release() {
  for (Ref<SafeArray>& array : m_rare->locked) array->Unlock();
}

void ArgValues::Lock(Ref<SafeArray> array) {
  array->Lock();
  RareParts().locked.push_back(std::move(array));
}

void ArgValues::Spill(Variant value) {
  std::vector<Variant>& more = RareParts().more;
  if (m_count == kInline) {
    more.reserve(kInline * 2);
    for (size_t i = 0; i < kInline; ++i) more.push_back(std::move(Inline(i)));
  }
  more.push_back(std::move(value));
  ++m_count;
}

Status EvalArgs(Frame& frame, std::span<const ExprNodePtr> args, ArgValues& out, bool by_reference) {
  for (const ExprNodePtr& arg : args) {
    if (!arg) {
      out.Add(Variant::Error(err::kParamNotFound));
      continue;
    }
    if (by_reference && !arg->ForcesByVal()) {
      VBS_TRY_ASSIGN(auto&& address, arg->AddressForArgument(frame, out));
      if (address) {
        out.Add(Variant::Reference(address));
        continue;
      }
    }
    VBS_TRY_ASSIGN(auto&& value, arg->Eval(frame));
    out.Add(std::move(value));
  }
  return Ok();
}

Result<Variant> LetValue(Variant value) {
  if (value.IsRef()) value = Variant(value.Deref());
  if (!value.is_object()) return value;
  return ValueOf(value);
}

namespace {

Status StoreInto(Variant& target, Variant value, bool is_set) {
  if (is_set) {
    if (value.IsRef()) value = Variant(value.Deref());
    if (!value.is_object()) return MakeError(err::kObjectRequired);
    target = std::move(value);
    return Ok();
  }
  VBS_TRY_ASSIGN(auto&& plain, LetValue(std::move(value)));
  target = std::move(plain);
  return Ok();
}

// The value a property assignment hands over: for Let the plain value, for Set an object.
Result<Variant> AssignedValue(Variant value, bool is_set) {
  if (!is_set) return LetValue(std::move(value));
  if (!value.Deref().is_object()) return MakeError(err::kObjectRequired);
  return value;
}

Status Discard(Result<Variant> result) {
  if (!result) return std::move(result).error();
  return Ok();
}

Result<Object*> RequireObject(const Variant& value) {
  const Variant& v = value.Deref();
  if (!v.is_object()) return MakeError(err::kObjectRequired);
  if (!v.as_object()) return MakeError(err::kObjectNotSet);
  return v.as_object();
}

// A built-in's own failure names the built-in.
[[gnu::noinline]] ScriptError BuiltinFailure(ScriptError error, const Builtin& builtin) {
  if (builtin.runs_code) return error;
  return WithName(std::move(error), builtin.name);
}

}  // namespace

// ---- Variables ----

Status VariableNode::Assign(Frame& frame, Variant value, bool is_set) {
  if (!is_set && !value.is_object() && !value.IsRef()) {
    Storage(frame).Deref() = std::move(value);
    return Ok();
  }
  return StoreInto(Storage(frame).Deref(), std::move(value), is_set);
}

Status VariableNode::Invoke(Frame& frame) {
  // A variable named alone as a statement calls the default member of the object it holds.
  Variant& value = Storage(frame).Deref();
  if (!value.is_object()) return Ok();
  VBS_TRY_ASSIGN(auto&& object, RequireObject(value));
  VBS_TRY((object)->Invoke(kDefaultMember, InvokeKind::Method, {}));
  return Ok();
}

Variant& FieldNode::Storage(Frame& frame) { return frame.me->field(m_index); }

// ---- Late-bound names ----

Variant* LateNameNode::OwnVariable(Frame& frame) {
  if (m_slot >= 0) {
    Variant& slot = frame.slots[m_slot];
    if (slot.IsRef() || !slot.is_empty()) return &slot.Deref();
  } else if (m_fallback == Fallback::CallVariable && frame.outer && frame.outer->dynamic) {
    auto it = frame.outer->dynamic->find(m_name);
    if (it != frame.outer->dynamic->end()) return &it->second;
  }
  return nullptr;
}

const GlobalEntry* LateNameNode::Resolve(Frame& frame) {
  if (m_generation != frame.interp.generation()) {
    m_entry = frame.interp.ResolveGlobal(m_name, true);
    m_generation = frame.interp.generation();
  }
  return m_entry && m_entry->Visible() ? m_entry : nullptr;
}

Result<Variant*> LateNameNode::NewStorage(Frame& frame) {
  switch (m_fallback) {
    case Fallback::Global: return frame.interp.DeclareGlobal(m_name);
    case Fallback::Slot: return &frame.slots[m_slot].Deref();
    case Fallback::CallVariable: {
      Frame& owner = *frame.outer;
      if (!owner.dynamic) owner.dynamic = std::make_unique<std::unordered_map<std::string, Variant>>();
      return &(*owner.dynamic)[m_name];
    }
    case Fallback::Undefined: break;
  }
  return Unknown(err::kUndefined);
}

ScriptError LateNameNode::Unknown(int32_t number) const {
  return NamedError(m_fallback == Fallback::Undefined ? err::kUndefined : number, m_spelling);
}

Result<Variant> LateNameNode::Eval(Frame& frame) { return CallWith(frame, {}, InvokeKind::Get); }

Result<Variant*> LateNameNode::Address(Frame& frame) {
  if (Variant* own = OwnVariable(frame)) return own;
  const GlobalEntry* entry = Resolve(frame);
  if (!entry) return NewStorage(frame);
  if (entry->kind == GlobalEntry::Kind::Variable) return entry->storage;
  return static_cast<Variant*>(nullptr);
}

Status LateNameNode::Assign(Frame& frame, Variant value, bool is_set) {
  return AssignWith(frame, {}, std::move(value), is_set);
}

Status LateNameNode::Invoke(Frame& frame) {
  // A name called as a statement that names nothing is a call of a missing procedure.
  if (!OwnVariable(frame) && !Resolve(frame)) return Unknown(err::kTypeMismatch);
  VBS_TRY(CallWith(frame, {}, InvokeKind::Method));
  return Ok();
}

Result<Variant> LateNameNode::CallWith(Frame& frame, const ExprNodes& args, InvokeKind kind) {
  ArgValues values;
  if (Variant* own = OwnVariable(frame)) {
    if (args.empty()) return *own;
    VBS_TRY(EvalArgs(frame, args, values, false));
    return IndexValue(*own, values.span(), frame.interp.locale());
  }
  const GlobalEntry* entry = Resolve(frame);
  if (!entry) {
    // Reading a name that nothing has yet gives Empty and makes nothing.
    if (!args.empty() || m_fallback == Fallback::Undefined) return Unknown(err::kTypeMismatch);
    return Variant();
  }
  switch (entry->kind) {
    case GlobalEntry::Kind::Variable:
    case GlobalEntry::Kind::Constant: {
      if (args.empty()) return *entry->storage;
      VBS_TRY(EvalArgs(frame, args, values, false));
      return IndexValue(*entry->storage, values.span(), frame.interp.locale());
    }
    case GlobalEntry::Kind::Procedure:
      VBS_TRY(EvalArgs(frame, args, values, true));
      return frame.interp.Call(*entry->procedure, nullptr, values.span());
    case GlobalEntry::Kind::NamedObject: {
      Ref<Object> object = frame.interp.named_objects()[entry->object].object;
      if (args.empty()) return Variant::Object(object);
      VBS_TRY(EvalArgs(frame, args, values, true));
      return object->Invoke(kDefaultMember, kind, values.span());
    }
    case GlobalEntry::Kind::HostMember: {
      VBS_TRY(EvalArgs(frame, args, values, true));
      return frame.interp.named_objects()[entry->object].object->Invoke(entry->member, kind, values.span());
    }
    case GlobalEntry::Kind::Class: break;
  }
  return Unknown(err::kTypeMismatch);
}

Status LateNameNode::AssignWith(Frame& frame, const ExprNodes& args, Variant value, bool is_set) {
  ArgValues values;
  if (Variant* own = OwnVariable(frame)) {
    if (args.empty()) return StoreInto(*own, std::move(value), is_set);
    VBS_TRY(EvalArgs(frame, args, values, false));
    return AssignIndexed(*own, values.span(), std::move(value), is_set, frame.interp.locale());
  }
  const GlobalEntry* entry = Resolve(frame);
  if (!entry) {
    if (!args.empty()) return Unknown(err::kTypeMismatch);
    VBS_TRY_ASSIGN(auto&& storage, NewStorage(frame));
    return StoreInto(*storage, std::move(value), is_set);
  }
  switch (entry->kind) {
    case GlobalEntry::Kind::Variable:
      if (args.empty()) return StoreInto(*entry->storage, std::move(value), is_set);
      VBS_TRY(EvalArgs(frame, args, values, false));
      return AssignIndexed(*entry->storage, values.span(), std::move(value), is_set, frame.interp.locale());
    case GlobalEntry::Kind::HostMember: {
      VBS_TRY(EvalArgs(frame, args, values, true));
      values.Add(std::move(value));
      VBS_TRY(frame.interp.named_objects()[entry->object].object->Invoke(
          entry->member, is_set ? InvokeKind::Set : InvokeKind::Let, values.span()));
      return Ok();
    }
    default: return MakeError(err::kIllegalAssignment);
  }
}

// ---- Objects ----

Result<Variant> MeNode::Eval(Frame& frame) {
  if (!frame.me) return MakeError(err::kObjectRequired);
  return Variant::Object(Ref<Object>(frame.me));
}

Result<Variant> NamedObjectNode::Eval(Frame& frame) {
  return Variant::Object(frame.interp.named_objects()[m_index].object);
}

Result<Variant> NewNode::Eval(Frame& frame) {
  // RegExp is built in: New RegExp makes the engine's object even when a script declares a class
  // of that name.
  if (m_name == "regexp") {
    VBS_TRY_ASSIGN(auto&& object, frame.interp.CreateObject(u"VBScript.RegExp"));
    return Variant::Object(object);
  }
  const GlobalEntry* entry = frame.interp.FindGlobal(m_name);
  if (!entry || entry->kind != GlobalEntry::Kind::Class) return MakeError(err::kNotAClass);
  VBS_TRY_ASSIGN(auto&& instance, frame.interp.NewInstance(*entry->class_info));
  return Variant::Object(instance);
}

// ---- Operators ----

Result<Variant> UnaryNode::Eval(Frame& frame) {
  auto operand = m_operand->Eval(frame);
  if (!operand) return operand;
  switch (m_op) {
    case ast::UnaryOp::Negate:
      if (operand->is_long() && operand->as_long() != INT32_MIN) return Variant::Long(-operand->as_long());
      if (operand->is_double()) return Variant::Double(-operand->as_double());
      return Negate(*operand, frame.interp.locale());
    case ast::UnaryOp::Not: return Not(*operand, frame.interp.locale());
    case ast::UnaryOp::Plus: return operand;
  }
  return operand;
}

DirectOperand::DirectOperand(ExprNode* node, Elements elements) {
  if (auto* constant = dynamic_cast<ConstantNode*>(node)) {
    m_kind = Kind::Constant;
    m_pointer = &constant->value();
  } else if (auto* local = dynamic_cast<LocalNode*>(node)) {
    m_kind = Kind::Local;
    m_slot = local->slot();
  } else if (auto* global = dynamic_cast<GlobalNode*>(node)) {
    m_kind = Kind::Global;
    m_pointer = global->storage();
  } else if (auto* element = dynamic_cast<IndexNode*>(node); element && elements == Elements::ReadInPlace) {
    m_kind = Kind::Element;
    m_element = element;
  }
}

const Variant* DirectOperand::ElementOf(Frame& frame) const { return m_element->PresentPlace(frame); }

Result<Variant> BinaryNode::Eval(Frame& frame) {
  auto left = m_left->Eval(frame);
  if (!left) return left;
  auto right = m_right->Eval(frame);
  if (!right) return right;
  return ApplyBinary(m_op, *left, *right, frame.interp.compare_mode(), frame.interp.locale());
}

template <BinaryOperator Op>
Result<Variant> ArithmeticNode<Op>::Eval(Frame& frame) {
  if (m_reads_elements) return EvalWithElements(frame);
  const Variant* a = m_left_direct.GetPlain(frame);
  const Variant* b = m_right_direct.GetPlain(frame);
  if (a && b) {
    Variant out;
    if (TryFastApply<Op>(*a, *b, out)) [[likely]]
      return out;
  }
  return EvalOperands(frame);
}

template <BinaryOperator Op>
Result<Variant> ArithmeticNode<Op>::EvalWithElements(Frame& frame) {
  const Variant* a = m_left_direct.Get(frame);
  const Variant* b = a ? m_right_direct.Get(frame) : nullptr;
  if (b) {
    Variant out;
    if (TryFastApply<Op>(*a, *b, out)) [[likely]]
      return out;
  }
  return EvalOperands(frame);
}

template <BinaryOperator Op>
Result<Variant> ArithmeticNode<Op>::EvalOperands(Frame& frame) {
  if (const Variant* a = m_left_direct.Get(frame)) {
    if (const Variant* b = m_right_direct.Get(frame)) return FastApply<Op>(*a, *b, frame);
    // Taken now: evaluating the right side may change the variable.
    const Variant left = *a;
    auto right = m_right->Eval(frame);
    if (!right) return right;
    return FastApply<Op>(left, *right, frame);
  }
  auto left = m_left->Eval(frame);
  if (!left) return left;
  if (const Variant* b = m_right_direct.Get(frame)) return FastApply<Op>(*left, *b, frame);
  auto right = m_right->Eval(frame);
  if (!right) return right;
  return FastApply<Op>(*left, *right, frame);
}

ExprNodePtr MakeBinaryNode(SourcePos pos, BinaryOperator op, ExprNodePtr left, ExprNodePtr right) {
  auto make = [&]<BinaryOperator Op>() -> ExprNodePtr {
    return std::make_unique<ArithmeticNode<Op>>(pos, std::move(left), std::move(right));
  };
  switch (op) {
    case BinaryOperator::Add: return make.template operator()<BinaryOperator::Add>();
    case BinaryOperator::Subtract: return make.template operator()<BinaryOperator::Subtract>();
    case BinaryOperator::Multiply: return make.template operator()<BinaryOperator::Multiply>();
    case BinaryOperator::Modulo: return make.template operator()<BinaryOperator::Modulo>();
    case BinaryOperator::IntDivide: return make.template operator()<BinaryOperator::IntDivide>();
    case BinaryOperator::Equal: return make.template operator()<BinaryOperator::Equal>();
    case BinaryOperator::NotEqual: return make.template operator()<BinaryOperator::NotEqual>();
    case BinaryOperator::Less: return make.template operator()<BinaryOperator::Less>();
    case BinaryOperator::LessEqual: return make.template operator()<BinaryOperator::LessEqual>();
    case BinaryOperator::Greater: return make.template operator()<BinaryOperator::Greater>();
    case BinaryOperator::GreaterEqual: return make.template operator()<BinaryOperator::GreaterEqual>();
    default: return std::make_unique<BinaryNode>(pos, op, std::move(left), std::move(right));
  }
}

Result<Variant> IsNode::Eval(Frame& frame) {
  auto left = m_left->Eval(frame);
  if (!left) return left;
  auto right = m_right->Eval(frame);
  if (!right) return right;
  VBS_TRY_ASSIGN(auto&& same, Is(*left, *right));
  return Variant::Boolean(same);
}

Result<Variant> OperatorChainNode::Eval(Frame& frame) {
  auto value = m_first->Eval(frame);
  if (!value) return value;
  Variant accumulated = std::move(*value);
  for (const Step& step : m_steps) {
    auto right = step.operand->Eval(frame);
    if (!right) return right;
    if (step.is) {
      VBS_TRY_ASSIGN(auto&& same, Is(accumulated, *right));
      accumulated = Variant::Boolean(same);
      continue;
    }
    auto next = ApplyBinary(step.op, accumulated, *right, frame.interp.compare_mode(), frame.interp.locale());
    if (!next) return next;
    accumulated = std::move(*next);
  }
  return accumulated;
}

// ---- Calls ----

namespace {

template <BinaryOperator... Ops>
bool IsArithmetic(const ExprNode* node) {
  return (... || (dynamic_cast<const ArithmeticNode<Ops>*>(node) != nullptr));
}

// Whether the argument is a value that names no storage, so that even a ByRef parameter gets a copy:
// the nodes here never give an address for an argument.
bool IsComputedValue(const ExprNode* node) {
  return dynamic_cast<const ProcedureCallNode*>(node) || dynamic_cast<const BuiltinCallNode*>(node) ||
         dynamic_cast<const BinaryNode*>(node) || dynamic_cast<const UnaryNode*>(node) ||
         dynamic_cast<const ParenNode*>(node) || dynamic_cast<const IsNode*>(node) ||
         dynamic_cast<const OperatorChainNode*>(node) ||
         IsArithmetic<BinaryOperator::Add, BinaryOperator::Subtract, BinaryOperator::Multiply, BinaryOperator::Equal,
                      BinaryOperator::NotEqual, BinaryOperator::Less, BinaryOperator::LessEqual,
                      BinaryOperator::Greater, BinaryOperator::GreaterEqual>(node);
}

}  // namespace

ProcedureCallNode::ProcedureCallNode(SourcePos pos, const Procedure* procedure, ExprNodes args)
    : ExprNode(pos), m_procedure(procedure), m_args(std::move(args)) {
  bool all_direct = true;
  bool all_known = m_args.size() == m_procedure->param_count && m_args.size() <= kMaxComputedArgs;
  for (const ExprNodePtr& arg : m_args) {
    m_direct.emplace_back(arg.get());
    all_direct = all_direct && m_direct.back().IsDirect();
    all_known = all_known && (m_direct.back().IsDirect() || IsComputedValue(arg.get()));
  }
  m_passing = all_direct ? Passing::Direct : all_known ? Passing::Computed : Passing::General;
}

Result<Variant> ProcedureCallNode::Eval(Frame& frame) {
  switch (m_passing) {
    case Passing::Direct: return EvalDirectArgs(frame);
    case Passing::Computed: break;
    case Passing::General: return EvalArgsFirst(frame);
  }
  // As many temporaries as arguments: most calls have one or two.
  static_assert(kMaxComputedArgs == 4);
  switch (m_args.size()) {
    case 1: return EvalComputedArgs<1>(frame);
    case 2: return EvalComputedArgs<2>(frame);
    case 3: return EvalComputedArgs<3>(frame);
    default: return EvalComputedArgs<4>(frame);
  }
}

Result<Variant> ProcedureCallNode::EvalDirectArgs(Frame& frame) {
  if (m_args.size() != m_procedure->param_count) return NamedError(err::kWrongArgs, m_procedure->name);
  // Plain variables and constants go straight into the parameter slots.
  VBS_TRY_ASSIGN(auto&& callee, frame.interp.OpenFrame(m_procedure->slot_count));
  for (size_t i = 0; i < m_args.size(); ++i) {
    Variant& param = callee.slots[Procedure::kFirstParamSlot + i];
    Variant* storage = m_direct[i].Storage(frame);
    if (storage && !m_procedure->param_by_val[i])
      param = Variant::Reference(storage);
    else
      param = *m_direct[i].Get(frame);
  }
  return frame.interp.RunFrame(*m_procedure, nullptr, callee);
}

// The arguments are taken in order before the callee's frame opens, as EvalArgsFirst takes them: a
// variable as a reference, read for a ByVal parameter only once every argument is evaluated.
template <size_t Count>
Result<Variant> ProcedureCallNode::EvalComputedArgs(Frame& frame) {
  Variant values[Count];
  for (size_t i = 0; i < Count; ++i) {
    if (Variant* storage = m_direct[i].Storage(frame)) {
      values[i] = Variant::Reference(storage);
    } else if (const Variant* constant = m_direct[i].Get(frame)) {
      values[i] = *constant;
    } else {
      auto value = m_args[i]->Eval(frame);
      if (!value) [[unlikely]]
        return value;
      values[i] = std::move(*value);
    }
  }
  VBS_TRY_ASSIGN(auto&& callee, frame.interp.OpenFrame(m_procedure->slot_count));
  for (size_t i = 0; i < Count; ++i) {
    Variant& param = callee.slots[Procedure::kFirstParamSlot + i];
    if (values[i].IsRef() && m_procedure->param_by_val[i])
      param = values[i].Deref();
    else
      param = std::move(values[i]);
  }
  return frame.interp.RunFrame(*m_procedure, nullptr, callee);
}

Result<Variant> ProcedureCallNode::EvalArgsFirst(Frame& frame) {
  ArgValues values;
  for (size_t i = 0; i < m_args.size(); ++i) {
    if (Variant* storage = m_direct[i].Storage(frame)) {
      values.Add(Variant::Reference(storage));
    } else if (const Variant* constant = m_direct[i].Get(frame)) {
      values.Add(*constant);
    } else {
      VBS_TRY(EvalArgs(frame, std::span<const ExprNodePtr>(&m_args[i], 1), values, true));
    }
  }
  return frame.interp.Call(*m_procedure, nullptr, values.span());
}

Result<Variant> BuiltinCallNode::Eval(Frame& frame) {
  if (m_builtin->gives_no_value) return MakeError(err::kTypeMismatch);
  return Call(frame);
}

Status BuiltinCallNode::Invoke(Frame& frame) {
  VBS_TRY(Discard(Call(frame)));
  if (m_builtin->needs_a_use) return MakeError(err::kUnsupportedAutomationType);
  return Ok();
}

Result<Variant> BuiltinCallNode::Call(Frame& frame) {
  if (m_args.size() < m_builtin->min_args || m_args.size() > m_builtin->max_args)
    return NamedError(err::kWrongArgs, m_builtin->name);
  ArgValues values;
  VBS_TRY(EvalArgs(frame, m_args, values, false));
  CallArgs args(values.span(), frame.interp.locale(), ArgumentNaming::Plain);
  auto result = TrapAllocationFailure([&] { return m_builtin->function(frame, args); });
  if (!result) [[unlikely]]
    return BuiltinFailure(std::move(result).error(), *m_builtin);
  return result;
}

// obj(key) on an object that keeps its default member's values in place (Dictionary): the value's
// place, with no call; null when the member must be invoked.
static Result<Variant*> PlaceOfItem(const Variant& holder, std::span<Variant> args) {
  const Variant& value = holder.Deref();
  if (args.size() != 1 || !value.is_object() || !value.as_object()) return static_cast<Variant*>(nullptr);
  return value.as_object()->DefaultItemPlace(args[0]);
}

// Whether a Let may put the value straight into an element or a place PlaceOfItem found: an
// object's value needs its default property first. Callers swap it in, so that the old value dies
// after the write: its Class_Terminate may use the object.
static bool WritesInPlace(const Variant& value, bool is_set) { return !is_set && !value.is_object() && !value.IsRef(); }

IndexNode::IndexNode(SourcePos pos, ExprNodePtr holder, ExprNodes args)
    : ExprNode(pos), m_holder(std::move(holder)), m_args(std::move(args)), m_direct_holder(m_holder.get()) {
  m_all_direct = !m_args.empty() && m_args.size() <= 8;
  for (const ExprNodePtr& arg : m_args) {
    m_direct_args.emplace_back(arg.get());
    m_all_direct = m_all_direct && m_direct_args.back().IsDirect();
  }
}

Variant* IndexNode::DirectElement(Frame& frame, bool for_writing) {
  if (!m_all_direct) return nullptr;
  Variant* holder = m_direct_holder.Storage(frame);
  if (!holder || !holder->is_array()) return nullptr;
  int32_t indices[8];
  for (size_t i = 0; i < m_direct_args.size(); ++i) {
    const Variant* index = m_direct_args[i].Get(frame);
    if (!index) return nullptr;
    if (index->is_integer())
      indices[i] = index->as_integer();
    else if (index->is_long())
      indices[i] = index->as_long();
    else
      return nullptr;
  }
  SafeArray* array = holder->as_array();
  if (for_writing && array->RefCount() > 1) return nullptr;
  auto offset = array->Offset(std::span<const int32_t>(indices, m_direct_args.size()));
  if (!offset) return nullptr;
  return &array->elements()[*offset];
}

const Variant* IndexNode::PresentPlace(Frame& frame) {
  if (!m_all_direct) return nullptr;
  Variant* holder = m_direct_holder.Storage(frame);
  if (!holder) return nullptr;
  if (holder->is_array()) return DirectElement(frame, false);
  if (m_direct_args.size() != 1 || !holder->is_object() || !holder->as_object()) return nullptr;
  const Variant* key = m_direct_args[0].Get(frame);
  return key ? holder->as_object()->PresentDefaultItem(*key) : nullptr;
}

Result<Variant*> IndexNode::DirectItem(Frame& frame) {
  if (!m_all_direct || m_direct_args.size() != 1) return static_cast<Variant*>(nullptr);
  Variant* holder = m_direct_holder.Storage(frame);
  if (!holder || !holder->is_object() || !holder->as_object()) return static_cast<Variant*>(nullptr);
  return holder->as_object()->DefaultItemPlace(*m_direct_args[0].Get(frame));
}

Result<Variant> IndexNode::Eval(Frame& frame) {
  if (Variant* element = DirectElement(frame, false)) return *element;
  VBS_TRY_ASSIGN(auto&& item, DirectItem(frame));
  if (item) return *item;
  ArgValues values;
  VBS_TRY(EvalArgs(frame, m_args, values, false));
  VBS_TRY_ASSIGN(auto&& address, m_holder->Address(frame));
  Variant evaluated;
  if (!address) {
    VBS_TRY_ASSIGN(auto&& holder, m_holder->Eval(frame));
    evaluated = std::move(holder);
    address = &evaluated;
  }
  VBS_TRY_ASSIGN(auto&& place, PlaceOfItem(*address, values.span()));
  if (place) return *place;
  return IndexValue(*address, values.span(), frame.interp.locale());
}

Result<Variant*> IndexNode::AddressForArgument(Frame& frame, ArgValues& args) {
  auto holder = m_holder->Address(frame);
  if (!holder) return holder;
  if (!*holder || !(*holder)->is_array()) return static_cast<Variant*>(nullptr);
  ArgValues values;
  VBS_TRY(EvalArgs(frame, m_args, values, false));
  std::vector<int32_t> indices;
  for (Variant& index : values.span()) {
    VBS_TRY_ASSIGN(auto&& i, index.Deref().to_long(frame.interp.locale()));
    indices.push_back(i);
  }
  VBS_TRY_ASSIGN(auto&& array, MutableArray(**holder));
  VBS_TRY_ASSIGN(auto&& offset, (array)->Offset(indices));
  args.Lock(Ref<SafeArray>(array));
  return &(array)->elements()[offset];
}

Status IndexNode::Assign(Frame& frame, Variant value, bool is_set) {
  if (const Variant* holder = m_all_direct ? m_direct_holder.Get(frame) : nullptr;
      holder && WritesInPlace(value, is_set)) {
    if (holder->is_array()) {
      if (Variant* element = DirectElement(frame, true)) {
        *element = std::move(value);
        return Ok();
      }
    } else if (holder->is_object() && holder->as_object() && m_direct_args.size() == 1) {
      VBS_TRY_ASSIGN(auto&& place, holder->as_object()->DefaultItemPlace(*m_direct_args[0].Get(frame)));
      if (place) {
        std::swap(*place, value);
        return Ok();
      }
    }
  }
  ArgValues values;
  VBS_TRY(EvalArgs(frame, m_args, values, false));
  VBS_TRY_ASSIGN(auto&& address, m_holder->Address(frame));
  Variant evaluated;
  if (!address) {
    VBS_TRY_ASSIGN(auto&& holder, m_holder->Eval(frame));
    if (!holder.is_object()) return MakeError(err::kIllegalAssignment);
    evaluated = std::move(holder);
    address = &evaluated;
  }
  if (WritesInPlace(value, is_set)) {
    VBS_TRY_ASSIGN(auto&& place, PlaceOfItem(*address, values.span()));
    if (place) {
      std::swap(*place, value);
      return Ok();
    }
  }
  return AssignIndexed(*address, values.span(), std::move(value), is_set, frame.interp.locale());
}

Status LateCallNode::Invoke(Frame& frame) {
  VBS_TRY(m_name->CallWith(frame, m_args, InvokeKind::Method));
  return Ok();
}

Result<Variant> MemberNode::Call(Frame& frame, InvokeKind kind, Variant* value) {
  auto holder = m_object->Eval(frame);
  if (!holder) return holder;
  auto object = RequireObject(*holder);
  if (!object) [[unlikely]] {
    ScriptError error = std::move(object).error();
    if (error.number == err::kObjectRequired && !m_object_text.empty())
      return WithName(std::move(error), m_object_text);
    return error;
  }
  Object* target = *object;
  const void* layout = target->MemberLayout();
  DispId member;
  if (layout && layout == m_layout) {
    member = m_member;
  } else {
    member = target->FindMember(m_name);
    if (layout) {
      m_layout = layout;
      m_member = member;
    }
  }
  if (member == kUnknownMember)
    return NamedError(err::kNoMember, m_object_text.empty() ? m_name : m_object_text + "." + m_name);
  ArgValues values;
  VBS_TRY(EvalArgs(frame, m_args, values, true));
  if (value) values.Add(std::move(*value));
  // Inside a class, Me.x reaches Private members too.
  if (frame.me && target == frame.me)
    return static_cast<ClassInstance*>(target)->InvokeMember(member, kind, values.span());
  return target->Invoke(member, kind, values.span());
}

Result<Variant> MemberNode::Eval(Frame& frame) { return Call(frame, InvokeKind::Get, nullptr); }

Status MemberNode::Assign(Frame& frame, Variant value, bool is_set) {
  VBS_TRY_ASSIGN(auto&& assigned, AssignedValue(std::move(value), is_set));
  return Discard(Call(frame, is_set ? InvokeKind::Set : InvokeKind::Let, &assigned));
}

Status MemberNode::Invoke(Frame& frame) { return Discard(Call(frame, InvokeKind::Method, nullptr)); }

Result<Variant> MeMemberNode::Eval(Frame& frame) {
  ArgValues values;
  VBS_TRY(EvalArgs(frame, m_args, values, true));
  return frame.me->InvokeMember(m_member, InvokeKind::Get, values.span());
}

Status MeMemberNode::Assign(Frame& frame, Variant value, bool is_set) {
  VBS_TRY_ASSIGN(auto&& assigned, AssignedValue(std::move(value), is_set));
  ArgValues values;
  VBS_TRY(EvalArgs(frame, m_args, values, true));
  values.Add(std::move(assigned));
  return Discard(frame.me->InvokeMember(m_member, is_set ? InvokeKind::Set : InvokeKind::Let, values.span()));
}

Status MeMemberNode::Invoke(Frame& frame) {
  ArgValues values;
  VBS_TRY(EvalArgs(frame, m_args, values, true));
  VBS_TRY(frame.me->InvokeMember(m_member, InvokeKind::Method, values.span()));
  return Ok();
}

HostMemberNode::HostMemberNode(SourcePos pos, uint32_t object, DispId member, ExprNodes args)
    : ExprNode(pos), m_object(object), m_member(member), m_args(std::move(args)) {
  for (const ExprNodePtr& arg : m_args) m_direct.emplace_back(arg.get());
}

bool HostMemberNode::TryWholeNumberForm(Frame& frame, Object& object, Variant& out) {
  constexpr size_t kMost = 4;
  if (m_form_state == FormState::NotAsked) {
    m_form = m_direct.size() <= kMost ? object.WholeNumberForm(m_member) : nullptr;
    m_form_state = m_form ? FormState::Present : FormState::None;
  }
  if (m_form_state == FormState::None) return false;
  int32_t numbers[kMost];
  const size_t count = m_direct.size();
  for (size_t i = 0; i < count; ++i) {
    const Variant* v = m_direct[i].Get(frame);
    if (!v || !(v->is_integer() || v->is_long())) return false;
    numbers[i] = v->as_whole();
  }
  return m_form(object, std::span<const int32_t>(numbers, count), out);
}

Result<Variant> HostMemberNode::Call(Frame& frame, InvokeKind kind, Variant* value) {
  Object& object = *frame.interp.named_objects()[m_object].object;
  if (kind == InvokeKind::Get) {
    if (Variant out; TryWholeNumberForm(frame, object, out)) return out;
  }
  ArgValues values;
  for (size_t i = 0; i < m_args.size(); ++i) {
    if (Variant* storage = m_direct[i].Storage(frame))
      values.Add(Variant::Reference(storage));
    else if (const Variant* constant = m_direct[i].Get(frame))
      values.Add(*constant);
    else
      VBS_TRY(EvalArgs(frame, std::span<const ExprNodePtr>(&m_args[i], 1), values, true));
  }
  if (value) values.Add(std::move(*value));
  return object.Invoke(m_member, kind, values.span());
}

Result<Variant> HostMemberNode::Eval(Frame& frame) { return Call(frame, InvokeKind::Get, nullptr); }

Status HostMemberNode::Assign(Frame& frame, Variant value, bool is_set) {
  VBS_TRY_ASSIGN(auto&& assigned, AssignedValue(std::move(value), is_set));
  return Discard(Call(frame, is_set ? InvokeKind::Set : InvokeKind::Let, &assigned));
}

Status HostMemberNode::Invoke(Frame& frame) { return Discard(Call(frame, InvokeKind::Method, nullptr)); }

Result<Variant> ValueIndexNode::Eval(Frame& frame) {
  auto callee = m_callee->Eval(frame);
  if (!callee) return callee;
  ArgValues values;
  VBS_TRY(EvalArgs(frame, m_args, values, false));
  VBS_TRY_ASSIGN(auto&& place, PlaceOfItem(*callee, values.span()));
  if (place) return *place;
  return IndexValue(*callee, values.span(), frame.interp.locale());
}

Status ValueIndexNode::Assign(Frame& frame, Variant value, bool is_set) {
  VBS_TRY_ASSIGN(auto&& callee, m_callee->Eval(frame));
  if (!callee.is_object()) return MakeError(err::kIllegalAssignment);
  ArgValues values;
  VBS_TRY(EvalArgs(frame, m_args, values, false));
  if (WritesInPlace(value, is_set)) {
    VBS_TRY_ASSIGN(auto&& place, PlaceOfItem(callee, values.span()));
    if (place) {
      std::swap(*place, value);
      return Ok();
    }
  }
  return AssignIndexed(callee, values.span(), std::move(value), is_set, frame.interp.locale());
}

}  // namespace vbs
