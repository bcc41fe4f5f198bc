#include "Esempi.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <random>
#include <string>
#include <system_error>

#include "archive/FileSicuri.h"

namespace lottolab::app {

namespace fs = std::filesystem;

namespace {

Avviso NonInstallati(const fs::path& cartella, const std::string& motivo) {
  return AvvisoEsclamativo(
      fmt::format("Gli script di esempio non sono stati scritti in {}: {}", cartella.string(), motivo));
}

// A folder of one's own beside `cartella`, under a random name; made with the permissions the umask
// allows, as any folder the user creates, since it becomes the user's folder.
Esito<fs::path> CreaCartellaProvvisoria(const fs::path& cartella) {
  std::random_device caso;
  for (int tentativo = 0; tentativo < 16; ++tentativo) {
    fs::path provvisoria = cartella.parent_path() / fmt::format(".{}.{:08x}", cartella.filename().string(), caso());
    if (::mkdir(provvisoria.c_str(), 0777) == 0) return provvisoria;
    if (errno != EEXIST) return NonInstallati(cartella, DescrizioneErrore(errno));
  }
  return NonInstallati(cartella, DescrizioneErrore(EEXIST));
}

}  // namespace

fs::path CartellaEsempi(const fs::path& base) { return base / "Script" / "Esempi"; }

Esito<size_t> InstallaEsempi(const fs::path& base, std::span<const Esempio> esempi) {
  const fs::path cartella = CartellaEsempi(base);
  std::error_code ec;
  // A link, even a broken one, is the user's: only a name free of anything is filled.
  if (fs::symlink_status(cartella, ec).type() != fs::file_type::not_found) return size_t{0};
  if (ec && ec != std::errc::no_such_file_or_directory) return NonInstallati(cartella, DescrizioneErrore(ec.value()));
  fs::create_directories(cartella.parent_path(), ec);
  if (ec) return NonInstallati(cartella, DescrizioneErrore(ec.value()));

  auto provvisoria = CreaCartellaProvvisoria(cartella);
  if (!provvisoria) return provvisoria.Errore();
  auto Rinuncia = [&](const std::string& motivo) -> Esito<size_t> {
    std::error_code ignorato;
    fs::remove_all(*provvisoria, ignorato);
    return NonInstallati(cartella, motivo);
  };
  for (const Esempio& esempio : esempi) {
    auto scritto = ScriviFileOrdinario(*provvisoria / esempio.nome, esempio.testo);
    if (!scritto) return Rinuncia(fmt::format("{} ({})", scritto.Errore().motivo, esempio.nome));
  }
  if (::rename(provvisoria->c_str(), cartella.c_str()) != 0) {
    const int numero = errno;
    // Another program that started at the same moment put its copy there first.
    if (numero == EEXIST || numero == ENOTEMPTY) {
      std::error_code ignorato;
      fs::remove_all(*provvisoria, ignorato);
      return size_t{0};
    }
    return Rinuncia(DescrizioneErrore(numero));
  }
  // The rename reaches the disk only with the folder that records it.
  const int fd = ::open(cartella.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd >= 0) {
    ::fsync(fd);
    ::close(fd);
  }
  return esempi.size();
}

}  // namespace lottolab::app
