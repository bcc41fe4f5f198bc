#pragma once

// Runs command lines of `lottolab` in-process for the fuzz targets whose bytes are files the
// commands read, with the base folder in the process's own temporary folder.

#include <string>
#include <vector>

namespace lottolab::fuzz {

// The command's exit status. An exception caught at the command line's boundary is a finding here:
// whatever the file, the commands must refuse it with their own message.
int EseguiComando(const std::vector<std::string>& parole);

}  // namespace lottolab::fuzz
