#include "ErroreInatteso.h"

#include <filesystem>
#include <fmt/format.h>
#include <new>

#include "archive/FileSicuri.h"

namespace lottolab::app {

namespace {

constexpr size_t kMassimoPercorso = 120;
constexpr size_t kMassimoCausa = 400;

std::string UnaRiga(std::string testo) {
  for (char& c : testo)
    if (c == '\n' || c == '\r') c = ' ';
  return testo;
}

}  // namespace

std::string PercorsoPerMessaggio(const std::string& percorso) {
  if (percorso.size() <= kMassimoPercorso) return percorso;
  // Cut on whole UTF-8 characters: a continuation byte never starts or ends a piece.
  size_t testa = kMassimoPercorso / 2;
  while (testa > 0 && (static_cast<unsigned char>(percorso[testa]) & 0xC0) == 0x80) --testa;
  size_t coda = percorso.size() - kMassimoPercorso / 2;
  while (coda < percorso.size() && (static_cast<unsigned char>(percorso[coda]) & 0xC0) == 0x80) ++coda;
  return fmt::format("{}...{} ({} caratteri)", percorso.substr(0, testa), percorso.substr(coda), percorso.size());
}

std::string DescriviErroreDiSistema(const std::error_code& codice) {
  if (codice.category() == std::generic_category() || codice.category() == std::system_category())
    return DescrizioneErrore(codice.value());
  return codice.message();
}

std::string DescriviEccezioneCorrente() {
  std::string causa;
  try {
    throw;
  } catch (const std::filesystem::filesystem_error& errore) {
    causa = DescriviErroreDiSistema(errore.code());
    if (!errore.path1().empty()) causa += fmt::format(" ({})", PercorsoPerMessaggio(errore.path1().string()));
    if (!errore.path2().empty()) causa += fmt::format(" ({})", PercorsoPerMessaggio(errore.path2().string()));
  } catch (const std::system_error& errore) {
    causa = DescriviErroreDiSistema(errore.code());
  } catch (const std::bad_alloc&) {
    causa = "memoria insufficiente";
  } catch (const std::length_error&) {
    causa = "dati troppo grandi";
  } catch (const std::exception& errore) {
    causa = errore.what();
  } catch (...) {
    causa = "eccezione sconosciuta";
  }
  if (causa.size() > kMassimoCausa) causa = causa.substr(0, kMassimoCausa) + "...";
  return UnaRiga(fmt::format("{}: {}", kErroreInatteso, causa));
}

}  // namespace lottolab::app
