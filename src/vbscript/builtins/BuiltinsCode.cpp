// Running code made at run time: Eval, Execute, ExecuteGlobal, and GetRef for procedure pointers.

#include "vbscript/builtins/Builtins.h"
#include "vbscript/compile/Compiler.h"
#include "vbscript/runtime/Interpreter.h"
#include "vbscript/syntax/Parser.h"

namespace vbs {

namespace {

// The frame whose variables the code sees: the procedure running Eval or Execute, or none at
// global level (where the code is global code).
Frame* ProcedureFrame(Frame& frame) {
  if (frame.outer) return frame.outer;
  return frame.procedure ? &frame : nullptr;
}

// The text's source entry is shared by every call of the same function (SourceTable::Reuse), and
// the compiled code lives only while it runs: what it declares (procedures, classes, variables)
// is owned by the engine, not by the code. A loop calling Eval a million times thus runs in flat
// memory.
Result<uint32_t> SourceOf(Frame& frame, const CallArgs& args, std::string_view name) {
  VBS_TRY_ASSIGN(auto text, args.Text(0));
  return frame.interp.sources().Reuse(name, text.ToU16String());
}

Result<Variant> EvalFunction(Frame& frame, CallArgs& args) {
  VBS_TRY_ASSIGN(auto source, SourceOf(frame, args, "Eval"));
  VBS_TRY_ASSIGN(auto expression, ParseExpression(frame.interp.sources(), source));
  Frame* scope = ProcedureFrame(frame);
  VBS_TRY_ASSIGN(auto program, Compiler(frame.interp, scope).CompileExpression(*expression));
  return frame.interp.EvalProgram(*program, scope);
}

Result<Variant> Run(Frame& frame, const CallArgs& args, Frame* scope, std::string_view name) {
  VBS_TRY_ASSIGN(auto source, SourceOf(frame, args, name));
  ParseResult parsed = ParseProgram(frame.interp.sources(), source);
  if (!parsed.errors.empty()) return parsed.errors.front();
  VBS_TRY_ASSIGN(auto program, Compiler(frame.interp, scope).CompileProgram(parsed.program));
  VBS_TRY(frame.interp.RunProgram(*program, scope));
  return Variant();
}

Result<Variant> ExecuteFunction(Frame& frame, CallArgs& args) {
  return Run(frame, args, ProcedureFrame(frame), "Execute");
}

// The calling procedure sees the globals that the code made, for the names it uses undeclared.
Result<Variant> ExecuteGlobalFunction(Frame& frame, CallArgs& args) {
  VBS_TRY(Run(frame, args, nullptr, "ExecuteGlobal"));
  if (Frame* caller = ProcedureFrame(frame)) frame.interp.RebindImplicitNames(*caller);
  return Variant();
}

// What GetRef returns: calling it, or reading its default member, calls the procedure.
class ProcedureRef final : public Object {
 public:
  ProcedureRef(Interpreter& interp, const Procedure& procedure) : m_interp(interp), m_procedure(procedure) {}
  std::u16string ClassName() const override { return u"Object"; }
  DispId FindMember(std::string_view) override { return kUnknownMember; }
  Result<Variant> Invoke(DispId member, InvokeKind kind, std::span<Variant> args) override {
    if (member != kDefaultMember || kind == InvokeKind::Let || kind == InvokeKind::Set)
      return MakeError(err::kNoMember);
    return m_interp.Call(m_procedure, nullptr, args);
  }

 private:
  Interpreter& m_interp;
  const Procedure& m_procedure;
};

Result<Variant> GetRefFunction(Frame& frame, CallArgs& args) {
  VBS_TRY_ASSIGN(auto name, args.Text(0));
  const GlobalEntry* entry = frame.interp.FindGlobal(Interpreter::Fold(name.view()));
  if (!entry || entry->kind != GlobalEntry::Kind::Procedure) return MakeError(err::kInvalidCall);
  return Variant::Object(MakeRef<ProcedureRef>(frame.interp, *entry->procedure));
}

const Builtin kCode[] = {
    {"Eval", 1, 1, &EvalFunction, "the value of an expression given as text", true},
    {"Execute", 1, 1, &ExecuteFunction, "runs statements given as text in the current scope", true},
    {"ExecuteGlobal", 1, 1, &ExecuteGlobalFunction, "runs statements given as text as global code", true},
    {"GetRef", 1, 1, &GetRefFunction, "a reference to a procedure, callable later"},
};

}  // namespace

std::span<const Builtin> CodeBuiltins() { return kCode; }

}  // namespace vbs
