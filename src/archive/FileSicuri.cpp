#include "FileSicuri.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <thread>

namespace lottolab {

namespace fs = std::filesystem;

namespace {

constexpr const char* kProceduraLettura = "FileSicuri.LeggiFileRegolare";
constexpr const char* kProceduraScrittura = "FileSicuri.SostituisciFile";

Avviso ErroreAccesso(const char* procedura, const fs::path& file, int numero) {
  // 75 is the number of a path/file access error, as users know it from their scripts.
  return AvvisoCritico(procedura, 75,
                       fmt::format("Errore di accesso al file {}: {}", file.string(), DescrizioneErrore(numero)));
}

std::string_view TipoNonRegolare(mode_t modo) {
  if (S_ISDIR(modo)) return "è una cartella";
  if (S_ISFIFO(modo)) return "è una FIFO (pipe con nome)";
  if (S_ISCHR(modo) || S_ISBLK(modo)) return "è un dispositivo";
  if (S_ISSOCK(modo)) return "è un socket";
  return "non è un file ordinario";
}

Avviso NonRegolare(const fs::path& file, mode_t modo) {
  return AvvisoEsclamativo(fmt::format("{} {}: serve un file ordinario", file.string(), TipoNonRegolare(modo)));
}

// Closes a descriptor when the scope ends, whatever way it ends.
class Descrittore {
 public:
  explicit Descrittore(int fd) : m_fd(fd) {}
  ~Descrittore() {
    if (m_fd >= 0) ::close(m_fd);
  }
  Descrittore(const Descrittore&) = delete;
  Descrittore& operator=(const Descrittore&) = delete;
  int Get() const { return m_fd; }
  // Closes now, reporting the failure that a delayed write error shows only here.
  int Chiudi() {
    int esito = ::close(m_fd);
    m_fd = -1;
    return esito;
  }

 private:
  int m_fd;
};

bool ScriviTutto(int fd, std::string_view dati) {
  while (!dati.empty()) {
    ssize_t scritti = ::write(fd, dati.data(), dati.size());
    if (scritti < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    dati.remove_prefix(static_cast<size_t>(scritti));
  }
  return true;
}

fs::path Accanto(const fs::path& file, std::string_view suffisso) {
  fs::path accanto = file;
  accanto += suffisso;
  return accanto;
}

// A link is followed, so that the lock and the new file sit beside the real file and the link
// survives the rename.
fs::path FileReale(const fs::path& file) {
  std::error_code ec;
  if (!fs::is_symlink(file, ec)) return file;
  fs::path reale = fs::canonical(file, ec);
  return ec ? file : reale;
}

}  // namespace

std::string DescrizioneErrore(int numero) {
  switch (numero) {
    case ENOENT:
      return "il file o la cartella non esiste";
    case EACCES:
    case EPERM:
      return "permesso negato";
    case EISDIR:
      return "è una cartella";
    case ENOTDIR:
      return "una parte del percorso non è una cartella";
    case ENAMETOOLONG:
      return "nome del file troppo lungo";
    case ENOSPC:
      return "spazio su disco esaurito";
    case EDQUOT:
      return "quota del disco superata";
    case EROFS:
      return "il disco è di sola lettura";
    case EIO:
      return "errore di lettura o scrittura sul disco";
    case EMFILE:
    case ENFILE:
      return "troppi file aperti";
    case ELOOP:
      return "troppi collegamenti simbolici nel percorso";
    case EFBIG:
      return "file troppo grande";
    default:
      return fmt::format("errore di sistema {} ({})", numero, std::strerror(numero));
  }
}

Esito<Fatto> ControllaFileRegolare(const fs::path& file) {
  struct stat stato {};
  if (::stat(file.c_str(), &stato) != 0) {
    if (errno == ENOENT) return Fatto{};
    return ErroreAccesso(kProceduraLettura, file, errno);
  }
  if (!S_ISREG(stato.st_mode)) return NonRegolare(file, stato.st_mode);
  return Fatto{};
}

Esito<std::optional<std::string>> LeggiFileRegolare(const fs::path& file, size_t limite) {
  // O_NONBLOCK keeps a FIFO from blocking the open until a writer comes; a regular file ignores it.
  Descrittore fd(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (fd.Get() < 0) {
    if (errno == ENOENT) return std::optional<std::string>{};
    return ErroreAccesso(kProceduraLettura, file, errno);
  }
  struct stat stato {};
  if (::fstat(fd.Get(), &stato) != 0) return ErroreAccesso(kProceduraLettura, file, errno);
  if (!S_ISREG(stato.st_mode)) return NonRegolare(file, stato.st_mode);
  auto TroppoGrande = [&] {
    return AvvisoEsclamativo(fmt::format("Il file {} è troppo grande: più di {} MB", file.string(), limite >> 20));
  };
  if (static_cast<uintmax_t>(stato.st_size) > limite) return TroppoGrande();

  // The size is a hint only: the file may grow or shrink while it is read.
  std::string contenuto;
  contenuto.reserve(static_cast<size_t>(stato.st_size));
  char blocco[1 << 16];
  for (;;) {
    ssize_t letti = ::read(fd.Get(), blocco, sizeof blocco);
    if (letti < 0) {
      if (errno == EINTR) continue;
      return ErroreAccesso(kProceduraLettura, file, errno);
    }
    if (letti == 0) break;
    if (contenuto.size() + static_cast<size_t>(letti) > limite) return TroppoGrande();
    contenuto.append(blocco, static_cast<size_t>(letti));
  }
  return std::optional<std::string>(std::move(contenuto));
}

Esito<Fatto> SostituisciFile(const fs::path& richiesto, std::string_view contenuto) {
  const fs::path file = FileReale(richiesto);
  const fs::path nuovo = Accanto(file, ".nuovo");
  mode_t permessi = 0666;
  struct stat stato {};
  bool esiste = ::stat(file.c_str(), &stato) == 0;
  if (esiste) permessi = stato.st_mode & 07777;

  auto Fallisci = [&](int numero) {
    ::unlink(nuovo.c_str());
    return ErroreAccesso(kProceduraScrittura, file, numero);
  };
  {
    Descrittore fd(::open(nuovo.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
    if (fd.Get() < 0) return ErroreAccesso(kProceduraScrittura, file, errno);
    if (esiste && ::fchmod(fd.Get(), permessi) != 0) return Fallisci(errno);
    if (!ScriviTutto(fd.Get(), contenuto) || ::fsync(fd.Get()) != 0) return Fallisci(errno);
    if (fd.Chiudi() != 0) return Fallisci(errno);
  }
  if (::rename(nuovo.c_str(), file.c_str()) != 0) return Fallisci(errno);

  // The rename reaches the disk only with the folder that records it.
  fs::path cartella = file.has_parent_path() ? file.parent_path() : fs::path(".");
  Descrittore fd_cartella(::open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (fd_cartella.Get() >= 0) ::fsync(fd_cartella.Get());
  return Fatto{};
}

Esito<BloccoScrittura> BloccoScrittura::Acquisisci(const fs::path& file, std::chrono::milliseconds attesa_massima) {
  const fs::path blocco = Accanto(FileReale(file), ".lock");
  int fd = ::open(blocco.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  if (fd < 0) {
    return AvvisoCritico(
        "FileSicuri.BloccoScrittura", 75,
        fmt::format("Impossibile creare il file di blocco {}: {}", blocco.string(), DescrizioneErrore(errno)));
  }
  BloccoScrittura tenuto(fd);
  const auto scadenza = std::chrono::steady_clock::now() + attesa_massima;
  while (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) {
      return AvvisoCritico("FileSicuri.BloccoScrittura", 75,
                           fmt::format("Impossibile bloccare {}: {}", blocco.string(), DescrizioneErrore(errno)));
    }
    if (std::chrono::steady_clock::now() >= scadenza) {
      return AvvisoEsclamativo(fmt::format(
          "Il file {} è in uso da un'altra scrittura (un'importazione in corso?): riprova più tardi.", file.string()));
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  return tenuto;
}

BloccoScrittura& BloccoScrittura::operator=(BloccoScrittura&& altro) noexcept {
  if (this != &altro) {
    if (m_descrittore >= 0) ::close(m_descrittore);
    m_descrittore = std::exchange(altro.m_descrittore, -1);
  }
  return *this;
}

BloccoScrittura::~BloccoScrittura() {
  // Closing the last descriptor of the open file releases the lock.
  if (m_descrittore >= 0) ::close(m_descrittore);
}

}  // namespace lottolab
