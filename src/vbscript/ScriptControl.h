#pragma once

// The engine as a host drives it: reset, choose the language, allow or forbid user interface, set
// a time-out, add named objects, add code, execute statements, evaluate expressions, run a
// procedure, and read the last error with its position. Every run starts from the global state
// that earlier code left, until Reset.
//
// Calls come from one thread at a time; RequestAbort may come from any thread.

#include <memory>
#include <string>
#include <string_view>

#include "vbscript/runtime/Interpreter.h"

namespace vbs {

// The last error, as the host shows it.
struct ScriptErrorInfo {
  int32_t number = 0;
  std::u16string description;
  std::u16string source;
  std::string source_name;  // the code's name: a file, "Execute", ...
  uint32_t line = 0;
  uint32_t column = 0;
};

class ScriptControl {
 public:
  ScriptControl();
  ~ScriptControl();

  // Forgets all code, variables and objects; keeps language, UI, time-out and locale settings.
  void Reset();
  // Only "VBScript" (in any case) is accepted; the empty string clears the choice.
  Status SetLanguage(std::string_view language);
  const std::string& Language() const { return m_language; }
  void SetAllowUI(bool allow);
  bool AllowUI() const { return m_allow_ui; }
  // Milliseconds a single call may run; -1 for no limit.
  void SetTimeout(int32_t milliseconds) { m_timeout = milliseconds; }
  int32_t Timeout() const { return m_timeout; }
  void SetUiHandler(UiHandler* ui) { m_interp->SetUi(ui); }
  // 1040 Italian (the default) or 1033 English: how numbers and dates read and print, and the
  // language of error texts.
  Status SetLocale(int32_t lcid);

  // Adds an object under a name; with add_members its members become global names too.
  Status AddObject(std::string name, Ref<Object> object, bool add_members);
  // Compiles the code and runs its global statements.
  Status AddCode(std::u16string_view code, std::string source_name = "");
  Status ExecuteStatement(std::u16string_view statement);
  Result<Variant> Eval(std::u16string_view expression);
  Result<Variant> Run(std::string_view procedure, std::span<Variant> args);

  const ScriptErrorInfo& Error() const { return m_error; }
  void RequestAbort() { m_interp->RequestAbort(); }

  Interpreter& interpreter() { return *m_interp; }

 private:
  template <typename T>
  Result<T> Guard(Result<T> result);
  void BeginCall();
  Status CheckLanguage() const;

  std::unique_ptr<Interpreter> m_interp;
  std::string m_language;
  bool m_allow_ui = true;
  int32_t m_timeout = -1;
  ScriptErrorInfo m_error;
};

}  // namespace vbs
