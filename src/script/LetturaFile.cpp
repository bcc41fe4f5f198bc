#include "LetturaFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fmt/format.h>

namespace lottolab::script {

namespace {

Avviso NonNormale(const std::filesystem::path& file, mode_t tipo) {
  const char* cosa = S_ISDIR(tipo) ? "una cartella" : S_ISFIFO(tipo) || S_ISSOCK(tipo) ? "una pipe" : "una periferica";
  return AvvisoEsclamativo(fmt::format("{} è {}, non un file: non viene letto", file.string(), cosa));
}

// Closes the descriptor however the reading ends.
class Descrittore {
 public:
  explicit Descrittore(int fd) : m_fd(fd) {}
  ~Descrittore() {
    if (m_fd >= 0) ::close(m_fd);
  }
  Descrittore(const Descrittore&) = delete;
  Descrittore& operator=(const Descrittore&) = delete;
  int fd() const { return m_fd; }

 private:
  int m_fd;
};

}  // namespace

Esito<std::string> LeggiFileRegolare(const std::filesystem::path& file, uintmax_t limite) {
  // Without O_NONBLOCK, opening a pipe waits until someone writes to it.
  Descrittore descrittore(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (descrittore.fd() < 0) return AvvisoEsclamativo(fmt::format("Impossibile leggere il file {}", file.string()));
  struct stat info {};
  if (::fstat(descrittore.fd(), &info) != 0)
    return AvvisoEsclamativo(fmt::format("Impossibile leggere il file {}", file.string()));
  if (!S_ISREG(info.st_mode)) return NonNormale(file, info.st_mode);
  const auto troppo = [&] {
    return AvvisoEsclamativo(
        fmt::format("Il file {} supera {} MB: non viene letto", file.string(), limite >> 20));
  };
  if (static_cast<uintmax_t>(info.st_size) > limite) return troppo();
  std::string contenuto;
  contenuto.reserve(static_cast<size_t>(info.st_size));
  char blocco[65536];
  while (true) {
    const ssize_t letti = ::read(descrittore.fd(), blocco, sizeof blocco);
    if (letti < 0 && errno == EINTR) continue;
    if (letti < 0) return AvvisoEsclamativo(fmt::format("Errore nella lettura del file {}", file.string()));
    if (letti == 0) break;
    // A file still growing while it is read is held to the same bound.
    if (contenuto.size() + static_cast<size_t>(letti) > limite) return troppo();
    contenuto.append(blocco, static_cast<size_t>(letti));
  }
  return contenuto;
}

Esito<Fatto> FileRegolare(const std::filesystem::path& file) {
  struct stat info {};
  if (::stat(file.c_str(), &info) != 0) return AvvisoEsclamativo(fmt::format("Il file {} non esiste", file.string()));
  if (!S_ISREG(info.st_mode)) return NonNormale(file, info.st_mode);
  return Fatto{};
}

}  // namespace lottolab::script
