#include "FileSicuri.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <random>
#include <thread>

namespace lottolab {

namespace fs = std::filesystem;

namespace {

constexpr const char* kProceduraLettura = "FileSicuri.LeggiFileRegolare";
constexpr const char* kProceduraScrittura = "FileSicuri.SostituisciFile";

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
  int Chiudi() { return ::close(std::exchange(m_fd, -1)); }

 private:
  int m_fd;
};

GuastoFile Sistema(int numero) {
  if (numero == ENOENT) return GuastoFile{GuastoFile::Genere::Assente, numero, DescrizioneErrore(numero)};
  return GuastoFile{GuastoFile::Genere::Sistema, numero, DescrizioneErrore(numero)};
}

GuastoFile NonOrdinario(mode_t modo) {
  std::string cosa = S_ISDIR(modo)                    ? "è una cartella"
                     : S_ISFIFO(modo)                 ? "è una pipe"
                     : S_ISCHR(modo) || S_ISBLK(modo) ? "è una periferica"
                     : S_ISSOCK(modo)                 ? "è un socket"
                                                      : "non è un file ordinario";
  return GuastoFile{GuastoFile::Genere::NonOrdinario, 0, std::move(cosa)};
}

GuastoFile TroppoGrande(uintmax_t limite) {
  constexpr uintmax_t kKB = 1024, kMB = kKB * 1024;
  std::string misura = limite >= kMB && limite % kMB == 0   ? fmt::format("{} MB", limite / kMB)
                       : limite >= kKB && limite % kKB == 0 ? fmt::format("{} KB", limite / kKB)
                                                            : fmt::format("{} byte", limite);
  return GuastoFile{GuastoFile::Genere::TroppoGrande, 0, "supera " + misura};
}

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

// A link is followed, so that the lock and the new file sit beside the real file and the link
// survives the rename.
fs::path FileReale(const fs::path& file) {
  std::error_code ec;
  if (!fs::is_symlink(file, ec)) return file;
  fs::path reale = fs::canonical(file, ec);
  return ec ? file : reale;
}

// A new hidden file beside `file`, created with O_EXCL under a random name, so that two writers never
// share one; a new file gets the permissions the umask allows, as any file the user creates.
std::pair<int, fs::path> CreaTemporaneo(const fs::path& file) {
  const fs::path cartella = file.has_parent_path() ? file.parent_path() : fs::path(".");
  std::random_device caso;
  for (int tentativo = 0; tentativo < 16; ++tentativo) {
    fs::path temporaneo = cartella / fmt::format(".{}.{:08x}", file.filename().string(), caso());
    int fd = ::open(temporaneo.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd >= 0 || errno != EEXIST) return {fd, temporaneo};
  }
  errno = EEXIST;
  return {-1, {}};
}

Avviso ErroreAccesso(const char* procedura, const fs::path& file, const GuastoFile& guasto) {
  if (guasto.genere == GuastoFile::Genere::NonOrdinario)
    return AvvisoEsclamativo(fmt::format("{} {}: serve un file ordinario", file.string(), guasto.motivo));
  if (guasto.genere == GuastoFile::Genere::TroppoGrande)
    return AvvisoEsclamativo(fmt::format("Il file {} è troppo grande: {}", file.string(), guasto.motivo));
  // 75 is the number of a path/file access error, as users know it from their scripts.
  return AvvisoCritico(procedura, 75, fmt::format("Errore di accesso al file {}: {}", file.string(), guasto.motivo));
}

}  // namespace

std::string DescrizioneErrore(int numero) {
  switch (numero) {
    case ENOENT: return "il file o la cartella non esiste";
    case EACCES:
    case EPERM: return "permesso negato";
    case EISDIR: return "è una cartella";
    case ENOTDIR: return "una parte del percorso non è una cartella";
    case ENAMETOOLONG: return "nome del file troppo lungo";
    case ENOSPC: return "spazio su disco esaurito";
    case EDQUOT: return "quota del disco superata";
    case EROFS: return "il disco è di sola lettura";
    case EIO: return "errore di lettura o scrittura sul disco";
    case EMFILE:
    case ENFILE: return "troppi file aperti";
    case ELOOP: return "troppi collegamenti simbolici nel percorso";
    case EFBIG: return "file troppo grande";
    case EEXIST: return "esiste già";
    case ENOTEMPTY: return "la cartella non è vuota";
    case ENOMEM: return "memoria insufficiente";
    case EBUSY: return "risorsa occupata";
    case EXDEV: return "i due percorsi sono su dischi diversi";
    default: return fmt::format("errore di sistema {} ({})", numero, std::strerror(numero));
  }
}

Esito<Fatto, GuastoFile> VerificaFileOrdinario(const fs::path& file) {
  struct stat stato {};
  if (::stat(file.c_str(), &stato) != 0) return Sistema(errno);
  if (!S_ISREG(stato.st_mode)) return NonOrdinario(stato.st_mode);
  return Fatto{};
}

Esito<std::string, GuastoFile> LeggiFileOrdinario(const fs::path& file, uintmax_t limite) {
  // O_NONBLOCK keeps a FIFO from blocking the open until a writer comes; a regular file ignores it.
  Descrittore fd(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
  if (fd.Get() < 0) return Sistema(errno);
  struct stat stato {};
  if (::fstat(fd.Get(), &stato) != 0) return Sistema(errno);
  if (!S_ISREG(stato.st_mode)) return NonOrdinario(stato.st_mode);
  if (static_cast<uintmax_t>(stato.st_size) > limite) return TroppoGrande(limite);

  // The size is a hint only: the file may grow or shrink while it is read.
  std::string contenuto;
  contenuto.reserve(static_cast<size_t>(stato.st_size));
  char blocco[1 << 16];
  for (;;) {
    ssize_t letti = ::read(fd.Get(), blocco, sizeof blocco);
    if (letti < 0) {
      if (errno == EINTR) continue;
      return Sistema(errno);
    }
    if (letti == 0) break;
    if (contenuto.size() + static_cast<size_t>(letti) > limite) return TroppoGrande(limite);
    contenuto.append(blocco, static_cast<size_t>(letti));
  }
  return contenuto;
}

Esito<Fatto, GuastoFile> ScriviFileOrdinario(const fs::path& richiesto, std::string_view contenuto) {
  const fs::path file = FileReale(richiesto);
  struct stat stato {};
  const bool esiste = ::stat(file.c_str(), &stato) == 0;
  if (!esiste && errno != ENOENT) return Sistema(errno);
  if (esiste && !S_ISREG(stato.st_mode)) return NonOrdinario(stato.st_mode);

  const auto creato = CreaTemporaneo(file);
  if (creato.first < 0) return Sistema(errno);
  const fs::path& temporaneo = creato.second;
  Descrittore fd(creato.first);
  auto Fallisci = [&temporaneo](int numero) {
    ::unlink(temporaneo.c_str());
    return Sistema(numero);
  };
  if (esiste && ::fchmod(fd.Get(), stato.st_mode & 07777) != 0) return Fallisci(errno);
  if (!ScriviTutto(fd.Get(), contenuto) || ::fsync(fd.Get()) != 0) return Fallisci(errno);
  if (fd.Chiudi() != 0) return Fallisci(errno);
  if (::rename(temporaneo.c_str(), file.c_str()) != 0) return Fallisci(errno);

  // The rename reaches the disk only with the folder that records it.
  fs::path cartella = file.has_parent_path() ? file.parent_path() : fs::path(".");
  Descrittore fd_cartella(::open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (fd_cartella.Get() >= 0) ::fsync(fd_cartella.Get());
  return Fatto{};
}

Esito<Fatto> ControllaFileRegolare(const fs::path& file) {
  auto verificato = VerificaFileOrdinario(file);
  if (verificato || verificato.Errore().genere == GuastoFile::Genere::Assente) return Fatto{};
  return ErroreAccesso(kProceduraLettura, file, verificato.Errore());
}

Esito<std::optional<std::string>> LeggiFileRegolare(const fs::path& file, size_t limite) {
  auto letto = LeggiFileOrdinario(file, limite);
  if (letto) return std::optional<std::string>(std::move(letto).Valore());
  if (letto.Errore().genere == GuastoFile::Genere::Assente) return std::optional<std::string>{};
  return ErroreAccesso(kProceduraLettura, file, letto.Errore());
}

Esito<Fatto> SostituisciFile(const fs::path& file, std::string_view contenuto) {
  auto scritto = ScriviFileOrdinario(file, contenuto);
  if (!scritto) return ErroreAccesso(kProceduraScrittura, FileReale(file), scritto.Errore());
  return Fatto{};
}

Esito<BloccoScrittura> BloccoScrittura::Acquisisci(const fs::path& file, std::chrono::milliseconds attesa_massima) {
  fs::path blocco = FileReale(file);
  blocco += ".lock";
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
