#pragma once

// Files named by the user may be anything: a folder, a device that never ends, a FIFO that never
// opens, a file larger than memory. Reading goes through one function that looks at what the path
// is before reading a byte and stops at a size limit. A write never changes a file in place: the new
// content goes to a file beside it, reaches the disk, and takes the old one's name in one rename, so
// that a kill or a power cut leaves either the old file or the new one. Writers of the same file are
// serialised by a lock held on a file beside it, so that what one decided from the file's content
// still holds when it writes.

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "Esito.h"

namespace lottolab {

// Italian words for an errno value, for messages that name a file and what went wrong with it.
std::string DescrizioneErrore(int numero);

// Why a user's file could not be read, checked or replaced. `motivo` is the reason alone, in
// Italian and without the file's name ("permesso negato", "è una pipe", "supera 16 MB"): every
// caller says it in its own sentence.
struct GuastoFile {
  enum class Genere {
    Assente,       // the file does not exist
    Sistema,       // the system refused: `numero` is the errno
    NonOrdinario,  // a folder, a device, a pipe, a socket
    TroppoGrande,  // more bytes than the caller's limit
  };
  Genere genere;
  int numero = 0;
  std::string motivo;
};

// What `file` is, after following links: refused unless it is a regular file. Nothing is opened.
Esito<Fatto, GuastoFile> VerificaFileOrdinario(const std::filesystem::path& file);

// The whole content of `file`, read in chunks without waiting (a pipe with no writer is refused, not
// waited for); refused unless it is a regular file of at most `limite` bytes, also while it grows.
Esito<std::string, GuastoFile> LeggiFileOrdinario(const std::filesystem::path& file, uintmax_t limite);

// Replaces `file` with `contenuto` all at once: written to a hidden file of its own beside it
// (".NAME.XXXXXX", so that two writers never share one), flushed to the disk, renamed over `file`,
// and the folder flushed. An existing file keeps its permissions; a link is followed, and the file
// it names is replaced; a folder, a device or a pipe in its place is refused. On failure `file` is
// untouched and the aside file removed; a killed process may leave one behind, never in its place.
Esito<Fatto, GuastoFile> ScriviFileOrdinario(const std::filesystem::path& file, std::string_view contenuto);

// The archive's sentences around the functions above. A path that exists and is not a regular file
// is refused; a missing path passes. Nothing is opened.
Esito<Fatto> ControllaFileRegolare(const std::filesystem::path& file);

// The whole content of `file`; nothing when the file does not exist.
Esito<std::optional<std::string>> LeggiFileRegolare(const std::filesystem::path& file, size_t limite);

// `file` replaced all at once (see ScriviFileOrdinario).
Esito<Fatto> SostituisciFile(const std::filesystem::path& file, std::string_view contenuto);

// The exclusive right to write a file, held on "<file>.lock" (beside the file a link names) until
// the object dies, or its process does: the system lets the lock go with it.
class BloccoScrittura {
 public:
  // Waits up to `attesa_massima` for another writer to finish; then refuses, saying the file is busy.
  static Esito<BloccoScrittura> Acquisisci(const std::filesystem::path& file,
                                           std::chrono::milliseconds attesa_massima = std::chrono::seconds(30));

  BloccoScrittura(BloccoScrittura&& altro) noexcept : m_descrittore(std::exchange(altro.m_descrittore, -1)) {}
  BloccoScrittura& operator=(BloccoScrittura&& altro) noexcept;
  BloccoScrittura(const BloccoScrittura&) = delete;
  BloccoScrittura& operator=(const BloccoScrittura&) = delete;
  ~BloccoScrittura();

 private:
  explicit BloccoScrittura(int descrittore) : m_descrittore(descrittore) {}
  int m_descrittore = -1;
};

}  // namespace lottolab
