#include "vbscript/builtins/Builtins.h"

#include <unordered_map>

#include "vbscript/runtime/Interpreter.h"

namespace vbs {

const Builtin* FindBuiltinFunction(std::string_view folded_name) {
  // Built once from the family tables; read-only afterwards, so engines may share it.
  static const std::unordered_map<std::string, const Builtin*> kByName = [] {
    std::unordered_map<std::string, const Builtin*> map;
    for (auto family : {CoreBuiltins(), CodeBuiltins(), StringBuiltins(), MathBuiltins(), DateBuiltins(),
                        FormatBuiltins(), ConversionBuiltins(), InteractionBuiltins()})
      for (const Builtin& builtin : family) map[Interpreter::Fold(builtin.name)] = &builtin;
    return map;
  }();
  auto it = kByName.find(std::string(folded_name));
  return it == kByName.end() ? nullptr : it->second;
}

}  // namespace vbs
