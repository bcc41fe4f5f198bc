#pragma once

// Where the program keeps its files. Everything relative in the configuration is taken from the
// base folder, so a whole installation can be moved, or pointed elsewhere with $LOTTOLAB_HOME.

#include <filesystem>
#include <string_view>

namespace lottolab::app {

// $LOTTOLAB_HOME when set and not empty, else ~/.local/share/lottolab.
std::filesystem::path CartellaBase();

// lottolab.ini in the base folder.
std::filesystem::path FileConfigurazione(const std::filesystem::path& base);

// An absolute path stays as it is; a relative one (Windows separators accepted) is taken from base.
std::filesystem::path RisolviPercorso(const std::filesystem::path& base, std::string_view percorso);

}  // namespace lottolab::app
