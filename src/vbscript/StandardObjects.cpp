#include "Interpreter.h"

namespace vbs {

void RegisterStandardObjects(Interpreter&) {}

}  // namespace vbs
