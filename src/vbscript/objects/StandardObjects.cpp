#include "vbscript/objects/Dictionary.h"
#include "vbscript/objects/FileSystem.h"
#include "vbscript/objects/regexp/RegExp.h"
#include "vbscript/runtime/Interpreter.h"

namespace vbs {

void RegisterStandardObjects(Interpreter& interp) {
  interp.RegisterObjectClass("Scripting.Dictionary", [](Interpreter& engine) -> Result<Ref<Object>> {
    return Ref<Object>(MakeRef<Dictionary>(engine.locale()));
  });
  interp.RegisterObjectClass("Scripting.FileSystemObject", [](Interpreter& engine) -> Result<Ref<Object>> {
    return Ref<Object>(MakeRef<FileSystemObject>(engine.locale(), engine.file_policy()));
  });
  interp.RegisterObjectClass("VBScript.RegExp", [](Interpreter& engine) -> Result<Ref<Object>> {
    return Ref<Object>(MakeRef<RegExp>(engine));
  });
}

}  // namespace vbs
