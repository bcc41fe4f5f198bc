#include "vbscript/value/Result.h"

namespace vbs {

void ErrorDeleter::operator()(ScriptError* error) const { delete error; }

}  // namespace vbs
