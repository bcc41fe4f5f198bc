// Compiles and runs arbitrary bytes as a script on a fresh engine: the parser's output through the
// compiler and the interpreter, builtins and objects included. A run is cut after a fifth of a
// second by the engine's own time-out, so a fuzzed endless loop ends as a script error. Scripts get
// no FileSystemObject, the engine's only way to files, so that nothing they do reaches the user's
// files. (A change of the working folder would not do: libFuzzer writes its findings relative to it.)

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "TestoFuzz.h"
#include "vbscript/ScriptControl.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  vbs::ScriptControl control;
  if (!control.SetLanguage("VBScript")) std::abort();
  control.SetAllowUI(false);
  control.SetTimeout(200);
  control.interpreter().RegisterObjectClass("Scripting.FileSystemObject", [](vbs::Interpreter& engine) {
    return engine.CreateObject(u"Oggetto.NonDisponibile");
  });
  // A failure must say what failed: an error without its number would reach the user as nothing.
  if (!control.AddCode(lottolab::fuzz::DecodificaMista(data, size), "fuzz") && control.Error().number == 0)
    std::abort();
  return 0;
}
