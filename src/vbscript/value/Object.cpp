#include "vbscript/value/Object.h"

namespace vbs {

Result<Ref<Enumerator>> Object::Enumerate() { return MakeError(err::kNotCollection); }

}  // namespace vbs
