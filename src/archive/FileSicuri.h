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
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "Esito.h"

namespace lottolab {

// Italian words for an errno value, for messages that name a file and what went wrong with it.
std::string DescrizioneErrore(int numero);

// Refuses, with the user's message, a path that exists and is not a regular file (a folder, a
// device, a FIFO); a missing path passes. Nothing is opened.
Esito<Fatto> ControllaFileRegolare(const std::filesystem::path& file);

// The whole content of `file`, read in chunks; nothing when the file does not exist. A path that is
// not a regular file, or a file longer than `limite` bytes, is refused with the user's message.
Esito<std::optional<std::string>> LeggiFileRegolare(const std::filesystem::path& file, size_t limite);

// Replaces `file` with `contenuto` all at once: written to "<file>.nuovo", flushed to the disk,
// renamed over `file`, and the folder flushed. An existing file keeps its permissions; a link is
// followed, and the file it names is replaced. On failure
// `file` is untouched and the aside file removed.
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
