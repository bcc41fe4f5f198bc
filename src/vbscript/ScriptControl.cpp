#include "ScriptControl.h"

#include "text/AsciiCase.h"
#include "vbscript/compile/Compiler.h"
#include "vbscript/syntax/Parser.h"
#include "vbscript/value/AllocationFailure.h"

namespace vbs {

namespace {

// The last line against a C++ exception that the traps of builtins and objects did not catch (an
// allocation of the parser's or the compiler's, an object of the host's that throws): an error for
// the host, never an abort, and the slot stack as it stood before the call.
template <typename Call>
auto Contained(Interpreter& interp, Call&& call) -> decltype(call()) {
  const Interpreter::StackMark mark = interp.MarkStack();
  int32_t number = err::kOutOfMemory;
  try {
    return call();
  } catch (const std::bad_alloc&) {
  } catch (const std::length_error&) {
  } catch (const std::exception&) {
    number = err::kInternalError;
  }
  interp.RewindStack(mark);
  return MakeError(number);
}

}  // namespace

ScriptControl::ScriptControl() : m_interp(std::make_unique<Interpreter>()) {}

ScriptControl::~ScriptControl() = default;

void ScriptControl::Reset() {
  m_interp->Clear();
  m_error = ScriptErrorInfo{};
}

Status ScriptControl::SetLanguage(std::string_view language) {
  if (!language.empty() && !text::EqualsIgnoringAsciiCase(language, "vbscript")) return MakeError(err::kInvalidCall);
  m_language = language.empty() ? "" : "VBScript";
  return Ok();
}

void ScriptControl::SetAllowUI(bool allow) {
  m_allow_ui = allow;
  m_interp->SetAllowUi(allow);
}

Status ScriptControl::SetLocale(int32_t lcid) {
  VBS_TRY_ASSIGN(auto locale, LocaleFromLcid(lcid));
  m_interp->SetLocale(*locale);
  return Ok();
}

Status ScriptControl::CheckLanguage() const {
  if (m_language.empty()) return MakeError(err::kInvalidCall);
  return Ok();
}

void ScriptControl::BeginCall() {
  m_error = ScriptErrorInfo{};
  m_interp->ClearAbort();
  if (m_timeout >= 0)
    m_interp->SetDeadline(std::chrono::steady_clock::now() + std::chrono::milliseconds(m_timeout));
  else
    m_interp->SetDeadline(std::nullopt);
}

template <typename T>
Result<T> ScriptControl::Guard(Result<T> result) {
  if (result) return result;
  const ScriptError& error = result.error();
  m_error.number = error.number;
  m_error.description = ErrorMessage(error, m_interp->locale().language);
  m_interp->SetErr(error);
  m_error.source = m_interp->err().source;
  if (error.has_pos) {
    m_error.line = error.pos.line;
    m_error.column = error.pos.column;
    if (error.pos.source < m_interp->sources().size()) m_error.source_name = m_interp->sources()[error.pos.source].name;
  }
  return result;
}

Status ScriptControl::AddObject(std::string name, Ref<Object> object, bool add_members) {
  if (m_interp->FindGlobal(Interpreter::Fold(name))) return MakeError(err::kKeyExists);
  m_interp->AddNamedObject(std::move(name), std::move(object), add_members);
  return Ok();
}

Status ScriptControl::AddCode(std::u16string_view code, std::string source_name) {
  BeginCall();
  VBS_TRY(Guard(CheckLanguage()));
  return Guard(Contained(*m_interp, [&]() -> Status {
    uint32_t source = m_interp->sources().Add(source_name, std::u16string(code));
    ParseResult parsed = ParseProgram(m_interp->sources(), source);
    if (!parsed.errors.empty()) return parsed.errors.front();
    VBS_TRY_ASSIGN(auto program, Compiler(*m_interp, nullptr).CompileProgram(parsed.program));
    return m_interp->RunProgram(m_interp->Keep(std::move(program)));
  }));
}

Status ScriptControl::ExecuteStatement(std::u16string_view statement) { return AddCode(statement, "ExecuteStatement"); }

Result<Variant> ScriptControl::Eval(std::u16string_view expression) {
  BeginCall();
  if (auto language = CheckLanguage(); !language) return Guard(Result<Variant>(std::move(language).error()));
  // Like the script's own Eval: one shared source entry, and the code freed once it has run.
  return Guard(Contained(*m_interp, [&]() -> Result<Variant> {
    uint32_t source = m_interp->sources().Reuse("Eval", std::u16string(expression));
    VBS_TRY_ASSIGN(auto parsed, ParseExpression(m_interp->sources(), source));
    VBS_TRY_ASSIGN(auto program, Compiler(*m_interp, nullptr).CompileExpression(*parsed));
    return m_interp->EvalProgram(*program);
  }));
}

Result<Variant> ScriptControl::Run(std::string_view procedure, std::span<Variant> args) {
  BeginCall();
  if (auto language = CheckLanguage(); !language) return Guard(Result<Variant>(std::move(language).error()));
  const GlobalEntry* entry = m_interp->FindGlobal(Interpreter::Fold(procedure));
  if (!entry || entry->kind != GlobalEntry::Kind::Procedure)
    return Guard(Result<Variant>(MakeError(err::kTypeMismatch)));
  return Guard(Contained(*m_interp, [&] { return m_interp->Call(*entry->procedure, nullptr, args); }));
}

}  // namespace vbs
