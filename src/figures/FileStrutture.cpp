#include "FileStrutture.h"

#include <fmt/format.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <span>
#include <utility>
#include <vector>

#include "Condizione.h"
#include "LimitiStrutture.h"
#include "vbscript/Utf.h"

namespace lottolab::figures {

namespace fs = std::filesystem;

static_assert(kByteCondizione == kMassimiCaratteriCondizione, "a condition's record keeps every character compiled");

namespace {

constexpr std::string_view kMarcatoreVertici = "OFFSET_STRUCT";
constexpr std::string_view kMarcatoreLinee = "OFFSET_LINEE";
constexpr std::string_view kMarcatoreCondizioni = "OFFSET_COND";
constexpr std::string_view kFineSezione = "FINE";

void Scrivi16(std::string& byte, int16_t valore) {
  auto v = static_cast<uint16_t>(valore);
  byte += static_cast<char>(v & 0xFF);
  byte += static_cast<char>(v >> 8);
}

void Scrivi32(std::string& byte, int32_t valore) {
  auto v = static_cast<uint32_t>(valore);
  for (int i = 0; i < 4; ++i) byte += static_cast<char>((v >> (8 * i)) & 0xFF);
}

void ScriviBooleano(std::string& byte, bool valore) { Scrivi16(byte, valore ? -1 : 0); }

// Cutting after the conversion counts characters: each one is a single byte in Windows-1252.
void ScriviTesto(std::string& byte, std::string_view utf8, size_t larghezza) {
  std::string testo = vbs::Utf16ToWindows1252(vbs::Utf8ToUtf16(utf8));
  testo.resize(larghezza, ' ');
  byte += testo;
}

void ScriviVertice(std::string& byte, const ClsVertice& v) {
  Scrivi16(byte, v.Index);
  Scrivi32(byte, v.IdEstrazione);
  ScriviBooleano(byte, v.FulcroOrizz);
  ScriviBooleano(byte, v.FulcroVert);
  Scrivi16(byte, v.Riga);
  Scrivi16(byte, v.Colonna);
  Scrivi16(byte, v.Riservato1);
  Scrivi16(byte, v.Riservato2);
  Scrivi16(byte, v.VersoVert);
  Scrivi16(byte, v.VersoOrizz);
  ScriviTesto(byte, v.Caption, kCaratteriCaption);
  ScriviBooleano(byte, v.UsaPerChiusura);
}

std::string Codifica(const Struttura& struttura, std::span<const std::string_view> condizioni) {
  std::string byte(kMarcatoreVertici);
  for (const ClsVertice& vertice : struttura.vertici)
    if (vertice.Index != 0) ScriviVertice(byte, vertice);
  byte += kFineSezione;

  byte += kMarcatoreLinee;
  for (const ClsLinea& linea : struttura.linee) {
    Scrivi16(byte, linea.Numero);
    Scrivi16(byte, linea.Inizio);
    Scrivi16(byte, linea.Fine);
  }
  byte += kFineSezione;

  byte += kMarcatoreCondizioni;
  for (std::string_view condizione : condizioni) ScriviTesto(byte, condizione, kByteCondizione);
  byte += kFineSezione;
  return byte;
}

// Reads fields from a position on; bytes past the end of the file read as zeros.
class Lettore {
 public:
  Lettore(std::string_view byte, size_t posizione) : m_byte(byte), m_posizione(posizione) {}

  int16_t Leggi16() { return static_cast<int16_t>(LeggiSenzaSegno(2)); }
  int32_t Leggi32() { return static_cast<int32_t>(LeggiSenzaSegno(4)); }
  bool LeggiBooleano() { return Leggi16() != 0; }

  std::string LeggiTesto(size_t larghezza) {
    std::string testo;
    for (size_t i = 0; i < larghezza; ++i) testo += static_cast<char>(Byte());
    size_t primo = testo.find_first_not_of(' ');
    testo = primo == std::string::npos ? std::string() : testo.substr(primo, testo.find_last_not_of(' ') - primo + 1);
    return vbs::Utf16ToUtf8(vbs::Windows1252ToUtf16(testo));
  }

 private:
  unsigned char Byte() {
    unsigned char b = m_posizione < m_byte.size() ? static_cast<unsigned char>(m_byte[m_posizione]) : 0;
    ++m_posizione;
    return b;
  }

  uint32_t LeggiSenzaSegno(int byte) {
    uint32_t valore = 0;
    for (int i = 0; i < byte; ++i) valore |= static_cast<uint32_t>(Byte()) << (8 * i);
    return valore;
  }

  std::string_view m_byte;
  size_t m_posizione;
};

ClsVertice LeggiVertice(Lettore& lettore) {
  ClsVertice v;
  v.Index = lettore.Leggi16();
  v.IdEstrazione = lettore.Leggi32();
  v.FulcroOrizz = lettore.LeggiBooleano();
  v.FulcroVert = lettore.LeggiBooleano();
  v.Riga = lettore.Leggi16();
  v.Colonna = lettore.Leggi16();
  v.Riservato1 = lettore.Leggi16();
  v.Riservato2 = lettore.Leggi16();
  v.VersoVert = lettore.Leggi16();
  v.VersoOrizz = lettore.Leggi16();
  v.Caption = lettore.LeggiTesto(kCaratteriCaption);
  v.UsaPerChiusura = lettore.LeggiBooleano();
  return v;
}

ClsLinea LeggiLinea(Lettore& lettore) {
  ClsLinea linea;
  linea.Numero = lettore.Leggi16();
  linea.Inizio = lettore.Leggi16();
  linea.Fine = lettore.Leggi16();
  return linea;
}

size_t TrovaFineSezione(std::string_view byte, size_t da) {
  if (da > byte.size()) return std::string_view::npos;
  const size_t trovata = PosizioneFine(byte.substr(da));
  return trovata == std::string_view::npos ? trovata : da + trovata;
}

// Halves go to the even count, as the conversion the files were always read with did.
size_t ArrotondaAlPari(size_t lunghezza, size_t lunghezzaRecord) {
  size_t quoziente = lunghezza / lunghezzaRecord;
  size_t doppioResto = 2 * (lunghezza % lunghezzaRecord);
  if (doppioResto > lunghezzaRecord || (doppioResto == lunghezzaRecord && quoziente % 2 == 1)) ++quoziente;
  return quoziente;
}

struct Sezione {
  std::string_view marcatore;
  size_t lunghezza_record;
  std::string_view nome;  // for the messages
  size_t inizio = 0;       // behind the marker
  size_t record = 0;
};

// Each section's marker, then its "FINE" before the next section's marker: a file cut before a
// section's end, or one whose end is missing, is not read as a shorter structure. No marker ends with
// the start of "FINE", so searching from behind the marker finds what a search from the marker would.
std::optional<std::string> TrovaSezioni(std::string_view byte, std::array<Sezione, 3>& sezioni) {
  for (Sezione& sezione : sezioni) {
    const size_t trovato = byte.find(sezione.marcatore);
    if (trovato == std::string_view::npos)
      return fmt::format("manca la sezione {} ({})", sezione.nome, sezione.marcatore);
    sezione.inizio = trovato + sezione.marcatore.size();
  }
  for (Sezione& sezione : sezioni) {
    size_t limite = byte.size();
    for (const Sezione& altra : sezioni)
      if (altra.inizio > sezione.inizio) limite = std::min(limite, altra.inizio - altra.marcatore.size());
    const size_t fine = TrovaFineSezione(byte.substr(0, limite), sezione.inizio);
    if (fine == std::string_view::npos)
      return fmt::format("la sezione {} non ha la sua fine (FINE): il file è troncato o rovinato", sezione.nome);
    sezione.record = ArrotondaAlPari(fine - sezione.inizio, sezione.lunghezza_record);
  }
  return std::nullopt;
}

template <typename Record, typename Leggi>
std::vector<Record> LeggiSezione(std::string_view byte, const Sezione& sezione, Leggi leggi) {
  Lettore lettore(byte, sezione.inizio);
  std::vector<Record> record;
  for (size_t i = 0; i < sezione.record; ++i) record.push_back(leggi(lettore));
  return record;
}

Avviso FileNonValido(const fs::path& file, std::string_view motivo) {
  // Critical: the user named this file as a structure, so its failing to be one is not bad input.
  return Avviso{TipoAvviso::Critico, "", fmt::format("File {} non valido: {}", file.string(), motivo)};
}

Avviso ErroreSalvataggio(const fs::path& file, std::string_view motivo) {
  // 75 is the number of a path/file access error, as users know it from their scripts.
  return AvvisoCritico("SalvaStruttura", 75,
                       fmt::format("Impossibile salvare la struttura nel file {}: {}", file.string(), motivo));
}

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

// Through a temporary file beside the target, flushed to the disk before it takes the target's name,
// so that a failed or interrupted save leaves the old structure whole and no stray file behind.
Esito<Fatto> ScriviFile(const fs::path& file, const std::string& byte) {
  const fs::path cartella = file.parent_path().empty() ? fs::path(".") : file.parent_path();
  std::string modello = (cartella / ("." + file.filename().string() + ".XXXXXX")).string();
  Descrittore temporaneo(::mkostemp(modello.data(), O_CLOEXEC));
  if (temporaneo.Fd() < 0) return ErroreSalvataggio(file, Errno());
  const fs::path percorso_temporaneo = modello;
  auto fallito = [&](std::string motivo) {
    std::error_code ec;
    fs::remove(percorso_temporaneo, ec);
    return ErroreSalvataggio(file, motivo);
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

// The whole file, refused unless it is an ordinary file of at most kMassimoByteFile bytes. Opened
// without waiting, so that a named pipe with no writer is refused instead of blocking.
Esito<std::string> LeggiFile(const fs::path& file) {
  auto rifiuto = [](std::string motivo) { return AvvisoEsclamativo(std::move(motivo)); };
  Descrittore in(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
  if (in.Fd() < 0) return rifiuto(errno == ENOENT ? "il file non esiste" : "non si può leggere: " + Errno());
  struct stat stato {};
  if (::fstat(in.Fd(), &stato) != 0) return rifiuto("non si può leggere: " + Errno());
  if (S_ISDIR(stato.st_mode)) return rifiuto("è una cartella, non un file");
  if (!S_ISREG(stato.st_mode)) return rifiuto("non è un file ordinario (è un dispositivo, una pipe o un socket)");
  if (static_cast<uintmax_t>(stato.st_size) > kMassimoByteFile)
    return rifiuto(
        fmt::format("è di {} byte, troppi per una struttura (al massimo {})", stato.st_size, kMassimoByteFile));
  // The size is checked again while reading: the file may grow in the meantime.
  std::string byte(kMassimoByteFile + 1, '\0');
  size_t letti = 0;
  while (letti < byte.size()) {
    const ssize_t n = ::read(in.Fd(), byte.data() + letti, byte.size() - letti);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return rifiuto("non si può leggere: " + Errno());
    if (n == 0) break;
    letti += static_cast<size_t>(n);
  }
  if (letti > kMassimoByteFile)
    return rifiuto(fmt::format("è di più di {} byte, troppi per una struttura", kMassimoByteFile));
  byte.resize(letti);
  return byte;
}

}  // namespace

std::string CodificaStruttura(const Struttura& struttura) {
  std::vector<std::string_view> condizioni(struttura.condizioni.begin(), struttura.condizioni.end());
  return Codifica(struttura, condizioni);
}

std::string CodificaStrutturaConCondizione(const Struttura& struttura, std::string_view condizione) {
  return Codifica(struttura, std::span(&condizione, 1));
}

Esito<Struttura> DecodificaStruttura(std::string_view byte) {
  std::array<Sezione, 3> sezioni{Sezione{kMarcatoreVertici, kByteVertice, "dei vertici"},
                                 Sezione{kMarcatoreLinee, kByteLinea, "delle linee"},
                                 Sezione{kMarcatoreCondizioni, kByteCondizione, "delle condizioni"}};
  if (auto motivo = TrovaSezioni(byte, sezioni)) return AvvisoEsclamativo(std::move(*motivo));
  const auto& [vertici, linee, condizioni] = sezioni;
  // The file's size is bounded, and so are the records read before the limits are checked.
  Struttura struttura;
  struttura.vertici = LeggiSezione<ClsVertice>(byte, vertici, LeggiVertice);
  struttura.linee = LeggiSezione<ClsLinea>(byte, linee, LeggiLinea);
  struttura.condizioni = LeggiSezione<std::string>(
      byte, condizioni, [](Lettore& lettore) { return lettore.LeggiTesto(kByteCondizione); });
  if (auto motivo = LimiteSuperato(struttura)) return AvvisoEsclamativo(std::move(*motivo));
  return struttura;
}

Esito<Fatto> SalvaStruttura(const fs::path& file, const Struttura& struttura) {
  return ScriviFile(file, CodificaStruttura(struttura));
}

Esito<Fatto> SalvaStrutturaConCondizione(const fs::path& file, const Struttura& struttura,
                                         std::string_view condizione) {
  return ScriviFile(file, CodificaStrutturaConCondizione(struttura, condizione));
}

Esito<Struttura> CaricaStruttura(const fs::path& file) {
  auto letto = LeggiFile(file);
  if (!letto) return FileNonValido(file, letto.Errore().testo);
  auto struttura = DecodificaStruttura(*letto);
  if (!struttura) return FileNonValido(file, struttura.Errore().testo);
  return std::move(struttura).Valore();
}

}  // namespace lottolab::figures
