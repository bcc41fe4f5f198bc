#pragma once

// A file or folder named by a script, as Windows scripts write them.

#include <cstddef>
#include <filesystem>

#include "ClsFunctionsGeodoScript.h"

namespace lottolab::script {

// Argument i as a path: backslashes become '/', a relative name starts from the base folder.
vbs::Result<std::filesystem::path> PercorsoArgomento(const ClsFunctionsGeodoScript& lib, const vbs::CallArgs& args,
                                                     size_t i);

}  // namespace lottolab::script
