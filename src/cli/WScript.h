#pragma once

// The WScript object that plain VBScript programs expect from their command-line host: Echo,
// StdOut, StdErr, Arguments, Quit, ScriptName, Sleep.

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "vbscript/HostObject.h"
#include "vbscript/runtime/Interpreter.h"

namespace lottolab::cli {

class FlussoTesto;
class ArgomentiScript;

class WScript final : public vbs::HostObject<WScript> {
 public:
  WScript(vbs::Interpreter& interp, std::string nome_script, std::string percorso_script,
          std::vector<std::string> argomenti, std::ostream& out, std::ostream& err);
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"WScript"; }

  // The exit status asked for with Quit, once the script asked.
  std::optional<int> CodiceUscita() const { return m_codice_uscita; }

 private:
  vbs::Result<vbs::Variant> Echo(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> Quit(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> Sleep(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> StdOut(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> StdErr(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> Arguments(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> ScriptName(vbs::CallArgs& args);
  vbs::Result<vbs::Variant> ScriptFullName(vbs::CallArgs& args);

  vbs::Interpreter& m_interp;
  std::string m_nome;
  std::string m_percorso;
  std::ostream& m_out;
  vbs::Ref<FlussoTesto> m_stdout;
  vbs::Ref<FlussoTesto> m_stderr;
  vbs::Ref<ArgomentiScript> m_argomenti;
  std::optional<int> m_codice_uscita;
};

}  // namespace lottolab::cli
