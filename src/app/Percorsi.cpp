#include "Percorsi.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace lottolab::app {

namespace fs = std::filesystem;

fs::path CartellaBase() {
  if (const char* home = std::getenv("LOTTOLAB_HOME"); home && *home) return fs::path(home);
  const char* utente = std::getenv("HOME");
  return fs::path(utente && *utente ? utente : ".") / ".local" / "share" / "lottolab";
}

fs::path FileConfigurazione(const fs::path& base) { return base / "lottolab.ini"; }

fs::path RisolviPercorso(const fs::path& base, std::string_view percorso) {
  std::string normale(percorso);
  std::replace(normale.begin(), normale.end(), '\\', '/');
  fs::path p(normale);
  return p.is_absolute() ? p : base / p;
}

}  // namespace lottolab::app
