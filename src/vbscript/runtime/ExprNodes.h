#pragma once

// The expression nodes that the compiler builds. Each kind of name the compiler can resolve has a
// node of its own (a local slot, a global's storage, a field of Me, a member of a host object), so
// that running a name costs no lookup.

#include <algorithm>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "vbscript/builtins/Builtins.h"
#include "vbscript/runtime/FastArithmetic.h"
#include "vbscript/runtime/Interpreter.h"
#include "vbscript/runtime/Nodes.h"
#include "vbscript/runtime/Procedure.h"
#include "vbscript/value/SafeArray.h"

namespace vbs {

// Argument values of one call: references to the caller's variables where the argument names one
// (for ByRef), plain values otherwise. Array elements are passed as values: a reference into an
// array could be left dangling by a ReDim in the callee.
class ArgValues {
 public:
  ArgValues() = default;
  ArgValues(const ArgValues&) = delete;
  ArgValues& operator=(const ArgValues&) = delete;

  ~ArgValues() {
    for (size_t i = 0; i < std::min(m_count, kInline); ++i) Inline(i).~Variant();
    if (m_rare) [[unlikely]]
      Release();
  }
  std::span<Variant> span() {
    return m_count <= kInline ? std::span<Variant>(&Inline(0), m_count) : std::span<Variant>(m_rare->more);
  }
  void Add(Variant value) {
    if (m_count < kInline) {
      new (&Inline(m_count++)) Variant(std::move(value));
      return;
    }
    Spill(std::move(value));
  }
  void Lock(Ref<SafeArray> array);

 private:
  // Past four arguments, and the arrays whose elements were passed by reference: rare, so a call
  // without them builds and frees nothing but the values themselves.
  struct Rare {
    std::vector<Variant> more;
    std::vector<Ref<SafeArray>> locked;
  };
  Variant& Inline(size_t i) { return reinterpret_cast<Variant*>(m_inline)[i]; }
  Rare& RareParts();
  void Spill(Variant value);
  void Release();

  // Most calls have few arguments: they stay on the C++ stack, with no allocation.
  static constexpr size_t kInline = 4;
  alignas(Variant) unsigned char m_inline[kInline * sizeof(Variant)];
  size_t m_count = 0;
  std::unique_ptr<Rare> m_rare;
};

// by_reference: whether arguments that name variables are passed as references.
Status EvalArgs(Frame& frame, std::span<const ExprNodePtr> args, ArgValues& out, bool by_reference);

// The value for a Let assignment: an object gives its default value.
Result<Variant> LetValue(Variant value);

class ConstantNode final : public ExprNode {
 public:
  ConstantNode(SourcePos pos, Variant value) : ExprNode(pos), m_value(std::move(value)) {}
  Result<Variant> Eval(Frame&) override { return m_value; }
  Status Assign(Frame&, Variant, bool) override { return MakeError(err::kIllegalAssignment); }
  const Variant& value() const { return m_value; }

 private:
  Variant m_value;
};

// An expression that fails when evaluated, for what Windows reports only at run time.
class FailingNode final : public ExprNode {
 public:
  FailingNode(SourcePos pos, int32_t number) : ExprNode(pos), m_number(number) {}
  Result<Variant> Eval(Frame&) override { return MakeError(m_number); }

 private:
  int32_t m_number;
};

// A variable with storage: its own slots, the procedure's slots seen from Execute code, a global,
// a field of Me. Subclasses say where the storage is.
class VariableNode : public ExprNode {
 public:
  using ExprNode::ExprNode;
  virtual Variant& Storage(Frame& frame) = 0;
  Result<Variant> Eval(Frame& frame) override { return Storage(frame).Deref(); }
  Result<Variant*> Address(Frame& frame) override { return &Storage(frame).Deref(); }
  Status Assign(Frame& frame, Variant value, bool is_set) override;
  Status Invoke(Frame& frame) override;
};

class LocalNode final : public VariableNode {
 public:
  LocalNode(SourcePos pos, uint32_t slot) : VariableNode(pos), m_slot(slot) {}
  Variant& Storage(Frame& frame) override { return frame.slots[m_slot]; }
  uint32_t slot() const { return m_slot; }

 private:
  uint32_t m_slot;
};

class OuterLocalNode final : public VariableNode {
 public:
  OuterLocalNode(SourcePos pos, uint32_t slot) : VariableNode(pos), m_slot(slot) {}
  Variant& Storage(Frame& frame) override { return frame.outer->slots[m_slot]; }

 private:
  uint32_t m_slot;
};

class GlobalNode final : public VariableNode {
 public:
  GlobalNode(SourcePos pos, Variant* storage) : VariableNode(pos), m_storage(storage) {}
  Variant& Storage(Frame&) override { return *m_storage; }
  Variant* storage() const { return m_storage; }

 private:
  Variant* m_storage;
};

class FieldNode final : public VariableNode {
 public:
  FieldNode(SourcePos pos, uint32_t index) : VariableNode(pos), m_index(index) {}
  Variant& Storage(Frame& frame) override;

 private:
  uint32_t m_index;
};

// A name that was unknown when the code was compiled: a global declared later (by other code, or
// ExecuteGlobal), or, without Option Explicit, a variable created by its first use. It looks the
// name up again only when globals have changed since its last look.
class LateNameNode final : public ExprNode {
 public:
  // Where the name lives when it is assigned while nothing of that name exists yet.
  enum class Fallback : uint8_t {
    Global,        // global code: a new global variable
    Slot,          // a procedure: its slot for the name
    CallVariable,  // code that Execute runs in a procedure: a new variable of that call
    Undefined,     // Option Explicit: error 500
  };

  // `spelling`: the name as the source writes it, for messages.
  LateNameNode(SourcePos pos, std::string folded, std::string spelling, int32_t slot, Fallback fallback)
      : ExprNode(pos), m_name(std::move(folded)), m_spelling(std::move(spelling)), m_slot(slot), m_fallback(fallback) {}
  Result<Variant> Eval(Frame& frame) override;
  Result<Variant*> Address(Frame& frame) override;
  Status Assign(Frame& frame, Variant value, bool is_set) override;
  Status Invoke(Frame& frame) override;
  // Calls or indexes the name with arguments: a procedure, a variable's array or object.
  Result<Variant> CallWith(Frame& frame, const ExprNodes& args, InvokeKind kind);
  Status AssignWith(Frame& frame, const ExprNodes& args, Variant value, bool is_set);

 private:
  // The variable of the running procedure that the name means by now (its slot bound to a global
  // or holding a value, or a variable that Execute made in the call), or null.
  Variant* OwnVariable(Frame& frame);
  // The global entry, or null when the name is still unknown.
  const GlobalEntry* Resolve(Frame& frame);
  // Storage for a name that nothing has yet, made now as the fallback says.
  Result<Variant*> NewStorage(Frame& frame);
  // The error for a name that names nothing: 500 under Option Explicit, else `number`.
  ScriptError Unknown(int32_t number) const;

  std::string m_name;
  std::string m_spelling;
  int32_t m_slot;
  Fallback m_fallback;
  uint64_t m_generation = ~uint64_t{0};
  const GlobalEntry* m_entry = nullptr;
};

class MeNode final : public ExprNode {
 public:
  using ExprNode::ExprNode;
  Result<Variant> Eval(Frame& frame) override;
};

class NamedObjectNode final : public ExprNode {
 public:
  NamedObjectNode(SourcePos pos, uint32_t index) : ExprNode(pos), m_index(index) {}
  Result<Variant> Eval(Frame& frame) override;

 private:
  uint32_t m_index;
};

class NewNode final : public ExprNode {
 public:
  NewNode(SourcePos pos, std::string folded) : ExprNode(pos), m_name(std::move(folded)) {}
  Result<Variant> Eval(Frame& frame) override;

 private:
  std::string m_name;
};

class UnaryNode final : public ExprNode {
 public:
  UnaryNode(SourcePos pos, ast::UnaryOp op, ExprNodePtr operand)
      : ExprNode(pos), m_op(op), m_operand(std::move(operand)) {}
  Result<Variant> Eval(Frame& frame) override;

 private:
  ast::UnaryOp m_op;
  ExprNodePtr m_operand;
};

// Reads an operand that is a constant or a plain variable in place, with no call and no copy: the
// operands of most arithmetic in loops.
class IndexNode;

// Whether an operand a(i) or d(k) with plain indices may be read in place. Only where its value is
// all that is wanted: an argument of a call passes an element by reference.
enum class Elements : uint8_t { Evaluate, ReadInPlace };

class DirectOperand {
 public:
  explicit DirectOperand(ExprNode* node, Elements elements = Elements::Evaluate);
  bool IsDirect() const { return m_kind != Kind::None; }
  bool IsVariable() const { return m_kind == Kind::Local || m_kind == Kind::Global; }
  bool IsElement() const { return m_kind == Kind::Element; }
  // The storage of a variable operand (null for constants and everything else).
  Variant* Storage(Frame& frame) const {
    switch (m_kind) {
      case Kind::Global: return const_cast<Variant*>(m_pointer);
      case Kind::Local: return &frame.slots[m_slot].Deref();
      default: return nullptr;
    }
  }
  // The operand's value, or null when it must be evaluated. Reading it changes nothing, so that
  // the caller may read its operands in any order and still evaluate one that gave null.
  const Variant* Get(Frame& frame) const {
    if (m_kind == Kind::Element) return ElementOf(frame);
    return GetPlain(frame);
  }
  // The same for a variable or a constant only, null for an element: no call, so that the inline
  // paths of the operators stay leaf functions.
  const Variant* GetPlain(Frame& frame) const {
    switch (m_kind) {
      case Kind::Constant:
      case Kind::Global: return m_pointer;
      case Kind::Local: return &frame.slots[m_slot].Deref();
      case Kind::Element:
      case Kind::None: break;
    }
    return nullptr;
  }

 private:
  // a(i, j) or d(k) with plain indices: the element or item in place when it is there already.
  const Variant* ElementOf(Frame& frame) const;

  enum class Kind : uint8_t { None, Constant, Local, Global, Element };
  Kind m_kind = Kind::None;
  uint32_t m_slot = 0;
  const Variant* m_pointer = nullptr;
  IndexNode* m_element = nullptr;
};

// The operators without a fast path of their own: division, powers, Mod, concatenation, logic.
class BinaryNode final : public ExprNode {
 public:
  BinaryNode(SourcePos pos, BinaryOperator op, ExprNodePtr left, ExprNodePtr right)
      : ExprNode(pos), m_op(op), m_left(std::move(left)), m_right(std::move(right)) {}
  Result<Variant> Eval(Frame& frame) override;

 private:
  BinaryOperator m_op;
  ExprNodePtr m_left;
  ExprNodePtr m_right;
};

// +, -, * and the comparisons, the operators of loops and counters. The operator is part of the
// node's type, so that whole numbers and Doubles are computed inline; everything else goes through
// the general rules.
template <BinaryOperator Op>
class ArithmeticNode final : public ExprNode {
 public:
  ArithmeticNode(SourcePos pos, ExprNodePtr left, ExprNodePtr right)
      : ExprNode(pos),
        m_left(std::move(left)),
        m_right(std::move(right)),
        m_left_direct(m_left.get(), Elements::ReadInPlace),
        m_right_direct(m_right.get(), Elements::ReadInPlace),
        m_reads_elements(m_left_direct.IsElement() || m_right_direct.IsElement()) {}
  Result<Variant> Eval(Frame& frame) override;
  bool TryEvalInto(Frame& frame, Variant& out) override {
    const Variant* a = m_left_direct.GetPlain(frame);
    const Variant* b = a ? m_right_direct.GetPlain(frame) : nullptr;
    return b && TryFastApply<Op>(*a, *b, out);
  }
  bool MayEvalInto() const override { return m_left_direct.IsDirect() && m_right_direct.IsDirect(); }
  const DirectOperand& left_direct() const { return m_left_direct; }
  const DirectOperand& right_direct() const { return m_right_direct; }

 private:
  // Operands that must be evaluated, or values the inline arithmetic leaves to the general rules.
  [[gnu::noinline]] Result<Variant> EvalOperands(Frame& frame);
  // An operand that is an element or an item read in place: apart, so that Eval calls nothing
  // on its inline path.
  [[gnu::noinline]] Result<Variant> EvalWithElements(Frame& frame);

  ExprNodePtr m_left;
  ExprNodePtr m_right;
  DirectOperand m_left_direct;
  DirectOperand m_right_direct;
  bool m_reads_elements;
};

ExprNodePtr MakeBinaryNode(SourcePos pos, BinaryOperator op, ExprNodePtr left, ExprNodePtr right);

class IsNode final : public ExprNode {
 public:
  IsNode(SourcePos pos, ExprNodePtr left, ExprNodePtr right)
      : ExprNode(pos), m_left(std::move(left)), m_right(std::move(right)) {}
  Result<Variant> Eval(Frame& frame) override;

 private:
  ExprNodePtr m_left;
  ExprNodePtr m_right;
};

// A long left-associative chain (1 + 2 - 3 & x ...): the first operand, then each operator with
// its right operand, applied in turn. One node in a loop, where nested nodes would recurse once per
// operand; the order of evaluation and of errors is the same.
class OperatorChainNode final : public ExprNode {
 public:
  struct Step {
    BinaryOperator op = BinaryOperator::Add;
    bool is = false;  // the Is operator, which compares objects and is no BinaryOperator
    ExprNodePtr operand;
  };
  OperatorChainNode(SourcePos pos, ExprNodePtr first, std::vector<Step> steps)
      : ExprNode(pos), m_first(std::move(first)), m_steps(std::move(steps)) {}
  Result<Variant> Eval(Frame& frame) override;

 private:
  ExprNodePtr m_first;
  std::vector<Step> m_steps;
};

class ParenNode final : public ExprNode {
 public:
  ParenNode(SourcePos pos, ExprNodePtr inner) : ExprNode(pos), m_inner(std::move(inner)) {}
  Result<Variant> Eval(Frame& frame) override { return m_inner->Eval(frame); }
  bool ForcesByVal() const override { return true; }

 private:
  ExprNodePtr m_inner;
};

// A call of a script procedure known when the code was compiled.
class ProcedureCallNode final : public ExprNode {
 public:
  ProcedureCallNode(SourcePos pos, const Procedure* procedure, ExprNodes args);
  Result<Variant> Eval(Frame& frame) override;

 private:
  // How the arguments reach the parameter slots.
  enum class Passing : uint8_t {
    Direct,    // plain variables and constants only: read straight into the slots
    Computed,  // some are computed values (operations, calls): evaluated first, then moved in
    General,   // some may name storage (array elements, late names): gathered as the generic calls do
  };
  static constexpr size_t kMaxComputedArgs = 4;

  // One function for each way, so that Eval only chooses.
  [[gnu::noinline]] Result<Variant> EvalDirectArgs(Frame& frame);
  template <size_t Count>
  [[gnu::noinline]] Result<Variant> EvalComputedArgs(Frame& frame);
  [[gnu::noinline]] Result<Variant> EvalArgsFirst(Frame& frame);

  const Procedure* m_procedure;
  ExprNodes m_args;
  std::vector<DirectOperand> m_direct;
  Passing m_passing = Passing::Direct;
};

class BuiltinCallNode final : public ExprNode {
 public:
  BuiltinCallNode(SourcePos pos, const Builtin* builtin, ExprNodes args)
      : ExprNode(pos), m_builtin(builtin), m_args(std::move(args)) {}
  Result<Variant> Eval(Frame& frame) override;
  Status Invoke(Frame& frame) override;

 private:
  Result<Variant> Call(Frame& frame);

  const Builtin* m_builtin;
  ExprNodes m_args;
};

// holder(args): an element of the array a variable holds, or the default member of its object.
class IndexNode final : public ExprNode {
 public:
  IndexNode(SourcePos pos, ExprNodePtr holder, ExprNodes args);
  Result<Variant> Eval(Frame& frame) override;
  Result<Variant*> AddressForArgument(Frame& frame, ArgValues& args) override;
  Status Assign(Frame& frame, Variant value, bool is_set) override;
  // The element, or the object's item, when it is there already and reading it changes nothing;
  // null when the node must be evaluated.
  const Variant* PresentPlace(Frame& frame);

 private:
  // a(i, j) with plain variables or constants as whole-number subscripts on a variable holding an
  // array: the element's place, found with no call and no allocation; null when the general path
  // must decide.
  Variant* DirectElement(Frame& frame, bool for_writing);
  // d(k) with a plain variable or constant as the one argument on a variable holding an object
  // that keeps its default member's values in place (Dictionary): the value's place, with no call;
  // null when the general path must decide.
  Result<Variant*> DirectItem(Frame& frame);

  ExprNodePtr m_holder;
  ExprNodes m_args;
  DirectOperand m_direct_holder;
  std::vector<DirectOperand> m_direct_args;
  bool m_all_direct = false;
};

// A late-bound name called with arguments.
class LateCallNode final : public ExprNode {
 public:
  LateCallNode(SourcePos pos, std::unique_ptr<LateNameNode> name, ExprNodes args)
      : ExprNode(pos), m_name(std::move(name)), m_args(std::move(args)) {}
  Result<Variant> Eval(Frame& frame) override { return m_name->CallWith(frame, m_args, InvokeKind::Get); }
  Status Assign(Frame& frame, Variant value, bool is_set) override {
    return m_name->AssignWith(frame, m_args, std::move(value), is_set);
  }
  Status Invoke(Frame& frame) override;

 private:
  std::unique_ptr<LateNameNode> m_name;
  ExprNodes m_args;
};

// object.name(args), with object null for ".name" inside With (then the With slot holds it). The
// member's number is cached per object class.
class MemberNode final : public ExprNode {
 public:
  // `object_text`: the object as the source writes it when it is a name or a chain of names
  // ("fso.Drives"), for messages; empty otherwise.
  MemberNode(SourcePos pos, ExprNodePtr object, std::string object_text, std::string name, ExprNodes args)
      : ExprNode(pos),
        m_object(std::move(object)),
        m_object_text(std::move(object_text)),
        m_name(std::move(name)),
        m_args(std::move(args)) {}
  Result<Variant> Eval(Frame& frame) override;
  Status Assign(Frame& frame, Variant value, bool is_set) override;
  Status Invoke(Frame& frame) override;

 private:
  Result<Variant> Call(Frame& frame, InvokeKind kind, Variant* value);

  ExprNodePtr m_object;
  std::string m_object_text;
  std::string m_name;
  ExprNodes m_args;
  const void* m_layout = nullptr;
  DispId m_member = kUnknownMember;
};

// A member of Me named without "Me." inside the class's own code; Private members included.
class MeMemberNode final : public ExprNode {
 public:
  MeMemberNode(SourcePos pos, DispId member, ExprNodes args)
      : ExprNode(pos), m_member(member), m_args(std::move(args)) {}
  Result<Variant> Eval(Frame& frame) override;
  Status Assign(Frame& frame, Variant value, bool is_set) override;
  Status Invoke(Frame& frame) override;

 private:
  DispId m_member;
  ExprNodes m_args;
};

// A member of an object the host added with its members as global names.
class HostMemberNode final : public ExprNode {
 public:
  HostMemberNode(SourcePos pos, uint32_t object, DispId member, ExprNodes args);
  Result<Variant> Eval(Frame& frame) override;
  bool TryEvalInto(Frame& frame, Variant& out) override {
    return TryWholeNumberForm(frame, *frame.interp.named_objects()[m_object].object, out);
  }
  bool MayEvalInto() const override {
    return std::all_of(m_direct.begin(), m_direct.end(), [](const DirectOperand& arg) { return arg.IsDirect(); });
  }
  Status Assign(Frame& frame, Variant value, bool is_set) override;
  Status Invoke(Frame& frame) override;

 private:
  Result<Variant> Call(Frame& frame, InvokeKind kind, Variant* value);

  // The member's whole-number form, asked for at the first call; true when the call was made by it.
  bool TryWholeNumberForm(Frame& frame, Object& object, Variant& out);

  uint32_t m_object;
  DispId m_member;
  ExprNodes m_args;
  // Plain variables and constants among the arguments are passed with no call.
  std::vector<DirectOperand> m_direct;
  enum class FormState : uint8_t { NotAsked, None, Present };
  FormState m_form_state = FormState::NotAsked;
  Object::WholeNumberCall m_form = nullptr;
};

// callee(args) where the callee is itself a call: f(1)(2), obj.items(0)(1).
class ValueIndexNode final : public ExprNode {
 public:
  ValueIndexNode(SourcePos pos, ExprNodePtr callee, ExprNodes args)
      : ExprNode(pos), m_callee(std::move(callee)), m_args(std::move(args)) {}
  Result<Variant> Eval(Frame& frame) override;
  Status Assign(Frame& frame, Variant value, bool is_set) override;

 private:
  ExprNodePtr m_callee;
  ExprNodes m_args;
};

}  // namespace vbs
