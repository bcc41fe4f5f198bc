#include "DiscoStrutture.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace lottolab::figures {

namespace fs = std::filesystem;

namespace {

// The system's reason, in Italian for those a user meets; the system's own words for the rest.
std::string Errno() {
  switch (errno) {
    case ENOENT: return "il file o la cartella non esiste";
    case EACCES:
    case EPERM: return "permesso negato";
    case ENOSPC: return "il disco è pieno";
    case EDQUOT: return "lo spazio concesso sul disco è esaurito";
    case EROFS: return "il disco è di sola lettura";
    case ENAMETOOLONG: return "il nome è troppo lungo";
    case ENOTDIR: return "una parte del percorso non è una cartella";
    case EISDIR: return "al suo posto c'è una cartella";
    case ELOOP: return "troppi collegamenti simbolici nel percorso";
    case EIO: return "errore di lettura o scrittura sul disco";
    default: return std::strerror(errno);
  }
}

// Closes the descriptor it holds however the function that opened it ends.
class Descrittore {
 public:
  explicit Descrittore(int fd) : m_fd(fd) {}
  ~Descrittore() {
    if (m_fd >= 0) ::close(m_fd);
  }
  Descrittore(const Descrittore&) = delete;
  Descrittore& operator=(const Descrittore&) = delete;
  int Fd() const { return m_fd; }
  // The close's own outcome, which is where some file systems report a failed write.
  bool Chiudi() {
    const int fd = std::exchange(m_fd, -1);
    return ::close(fd) == 0;
  }

 private:
  int m_fd;
};

bool ScriviTutto(int fd, std::string_view byte) {
  while (!byte.empty()) {
    const ssize_t scritti = ::write(fd, byte.data(), byte.size());
    if (scritti < 0 && errno == EINTR) continue;
    if (scritti <= 0) return false;
    byte.remove_prefix(static_cast<size_t>(scritti));
  }
  return true;
}

}  // namespace

Esito<Fatto> ScriviFileIntero(const fs::path& file, std::string_view byte) {
  const fs::path cartella = file.parent_path().empty() ? fs::path(".") : file.parent_path();
  std::string modello = (cartella / ("." + file.filename().string() + ".XXXXXX")).string();
  Descrittore temporaneo(::mkostemp(modello.data(), O_CLOEXEC));
  if (temporaneo.Fd() < 0) return AvvisoEsclamativo(Errno());
  const fs::path percorso_temporaneo = modello;
  auto fallito = [&](std::string motivo) {
    std::error_code ec;
    fs::remove(percorso_temporaneo, ec);
    return AvvisoEsclamativo(std::move(motivo));
  };
  // The new file keeps the permissions of the one it replaces; a new one gets the usual rw-r--r--.
  struct stat vecchio {};
  const mode_t permessi = ::stat(file.c_str(), &vecchio) == 0 ? (vecchio.st_mode & 07777) : 0644;
  if (::fchmod(temporaneo.Fd(), permessi) != 0 || !ScriviTutto(temporaneo.Fd(), byte) ||
      ::fsync(temporaneo.Fd()) != 0)
    return fallito(Errno());
  if (!temporaneo.Chiudi()) return fallito(Errno());
  if (::rename(percorso_temporaneo.c_str(), file.c_str()) != 0) return fallito(Errno());
  // The rename itself reaches the disk with the folder's entry.
  Descrittore dir(::open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (dir.Fd() >= 0) ::fsync(dir.Fd());
  return Fatto{};
}

// Opened without waiting, so that a named pipe with no writer is refused instead of blocking.
Esito<std::string> LeggiFileOrdinario(const fs::path& file, uintmax_t massimo, std::string_view troppi) {
  auto rifiuto = [](std::string motivo) { return AvvisoEsclamativo(std::move(motivo)); };
  Descrittore in(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
  if (in.Fd() < 0) return rifiuto(errno == ENOENT ? "il file non esiste" : "non si può leggere: " + Errno());
  struct stat stato {};
  if (::fstat(in.Fd(), &stato) != 0) return rifiuto("non si può leggere: " + Errno());
  if (S_ISDIR(stato.st_mode)) return rifiuto("è una cartella, non un file");
  if (!S_ISREG(stato.st_mode)) return rifiuto("non è un file ordinario (è un dispositivo, una pipe o un socket)");
  if (static_cast<uintmax_t>(stato.st_size) > massimo)
    return rifiuto(fmt::format("è di {} byte, {} (al massimo {})", stato.st_size, troppi, massimo));
  // The size is checked again while reading: the file may grow in the meantime.
  std::string byte(massimo + 1, '\0');
  size_t letti = 0;
  while (letti < byte.size()) {
    const ssize_t n = ::read(in.Fd(), byte.data() + letti, byte.size() - letti);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return rifiuto("non si può leggere: " + Errno());
    if (n == 0) break;
    letti += static_cast<size_t>(n);
  }
  if (letti > massimo) return rifiuto(fmt::format("è di più di {} byte, {}", massimo, troppi));
  byte.resize(letti);
  return byte;
}

}  // namespace lottolab::figures
