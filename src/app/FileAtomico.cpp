#include "FileAtomico.h"

#include <cerrno>
#include <fcntl.h>
#include <fmt/format.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

#include "Descrittore.h"
#include "ErroreInatteso.h"

namespace lottolab::app {

namespace fs = std::filesystem;

namespace {

Avviso Motivo(int numero) { return AvvisoEsclamativo(DescriviErroreDiSistema(std::error_code(numero, std::generic_category()))); }

// The file that the name leads to: a link is followed, so that replacing it keeps the link.
fs::path Destinazione(const fs::path& file) {
  std::error_code ec;
  if (!fs::is_symlink(file, ec)) return file;
  fs::path bersaglio = fs::weakly_canonical(file, ec);
  return ec ? file : bersaglio;
}

Esito<Fatto> ScriviTutto(int fd, std::string_view byte) {
  while (!byte.empty()) {
    ssize_t scritti = ::write(fd, byte.data(), byte.size());
    if (scritti < 0) {
      if (errno == EINTR) continue;
      return Motivo(errno);
    }
    byte.remove_prefix(static_cast<size_t>(scritti));
  }
  return Fatto{};
}

}  // namespace

Esito<Fatto> SostituisciFile(const fs::path& file, std::string_view byte) {
  const fs::path destinazione = Destinazione(file);
  struct stat stato {};
  mode_t permessi = 0666;
  if (::stat(destinazione.c_str(), &stato) == 0) {
    if (S_ISDIR(stato.st_mode)) return Motivo(EISDIR);
    if (!S_ISREG(stato.st_mode)) return AvvisoEsclamativo("non è un file normale");
    permessi = stato.st_mode & 07777;
  } else if (errno != ENOENT) {
    return Motivo(errno);
  }

  // A name of our own beside the file: the rename stays on one file system, and two programs that
  // save at once never write into the same temporary file.
  std::random_device caso;
  fs::path temporaneo;
  int fd = -1;
  for (int tentativo = 0; fd < 0 && tentativo < 16; ++tentativo) {
    temporaneo = destinazione;
    temporaneo += fmt::format(".{}.{:08x}.tmp", ::getpid(), caso());
    fd = ::open(temporaneo.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permessi);
    if (fd < 0 && errno != EEXIST) return Motivo(errno);
  }
  if (fd < 0) return Motivo(EEXIST);
  Descrittore descrittore(fd);
  auto Annulla = [&](Avviso avviso) -> Esito<Fatto> {
    ::unlink(temporaneo.c_str());
    return avviso;
  };

  if (auto scritto = ScriviTutto(fd, byte); !scritto) return Annulla(scritto.Errore());
  // The umask may have narrowed the old file's permissions on creation.
  if (permessi != 0666) ::fchmod(fd, permessi);
  if (::fsync(fd) != 0) return Annulla(Motivo(errno));
  if (descrittore.Chiudi() != 0) return Annulla(Motivo(errno));
  if (::rename(temporaneo.c_str(), destinazione.c_str()) != 0) return Annulla(Motivo(errno));

  // The rename itself reaches the disk with the folder's own entry.
  fs::path cartella = destinazione.has_parent_path() ? destinazione.parent_path() : fs::path(".");
  Descrittore dir(::open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (dir.Fd() >= 0) ::fsync(dir.Fd());
  return Fatto{};
}

}  // namespace lottolab::app
