#include "ScaricaRisultati.h"

#include <cstdio>
#include <curl/curl.h>
#include <fmt/format.h>
#include <memory>
#include <mutex>
#include <string_view>
#include <system_error>

namespace lottolab {

namespace fs = std::filesystem;

namespace {

constexpr long kSecondiConnessione = 30;
constexpr long kSecondiTotali = 120;
constexpr long kRedirezioniMassime = 10;

struct ChiudiFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
struct ChiudiCurl {
  void operator()(CURL* curl) const { curl_easy_cleanup(curl); }
};

size_t ScriviBlocco(char* dati, size_t dimensione, size_t quanti, void* file) {
  return std::fwrite(dati, dimensione, quanti, static_cast<std::FILE*>(file));
}

// libcurl wants its global set-up done once before any transfer.
void PreparaCurl() {
  static std::once_flag fatto;
  std::call_once(fatto, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

}  // namespace

Esito<fs::path> ScaricaRisultati(const std::string& indirizzo, const fs::path& destinazione) {
  auto Fallito = [&](std::string_view motivo) {
    return AvvisoEsclamativo(fmt::format("Impossibile scaricare {}: {}", indirizzo, motivo));
  };
  PreparaCurl();
  std::unique_ptr<CURL, ChiudiCurl> curl(curl_easy_init());
  if (!curl) return Fallito("libcurl non si è avviata");

  fs::path temporaneo = destinazione;
  temporaneo += ".scaricamento";
  std::unique_ptr<std::FILE, ChiudiFile> file(std::fopen(temporaneo.string().c_str(), "wb"));
  if (!file) return Fallito(fmt::format("impossibile creare il file {}", temporaneo.string()));

  char errore[CURL_ERROR_SIZE] = {};
  CURL* c = curl.get();
  curl_easy_setopt(c, CURLOPT_URL, indirizzo.c_str());
  curl_easy_setopt(c, CURLOPT_ERRORBUFFER, errore);
  curl_easy_setopt(c, CURLOPT_WRITEFUNCTION, ScriviBlocco);
  curl_easy_setopt(c, CURLOPT_WRITEDATA, file.get());
  curl_easy_setopt(c, CURLOPT_FOLLOWLOCATION, 1L);
  curl_easy_setopt(c, CURLOPT_MAXREDIRS, kRedirezioniMassime);
  curl_easy_setopt(c, CURLOPT_CONNECTTIMEOUT, kSecondiConnessione);
  curl_easy_setopt(c, CURLOPT_TIMEOUT, kSecondiTotali);
  curl_easy_setopt(c, CURLOPT_FAILONERROR, 1L);
  curl_easy_setopt(c, CURLOPT_NOSIGNAL, 1L);
  curl_easy_setopt(c, CURLOPT_USERAGENT, "lottolab");
  CURLcode esito = curl_easy_perform(c);

  bool chiuso = std::fclose(file.release()) == 0;
  std::error_code ec;
  if (esito != CURLE_OK) {
    fs::remove(temporaneo, ec);
    return Fallito(errore[0] != '\0' ? errore : curl_easy_strerror(esito));
  }
  if (!chiuso) {
    fs::remove(temporaneo, ec);
    return Fallito(fmt::format("impossibile scrivere il file {}", temporaneo.string()));
  }
  fs::rename(temporaneo, destinazione, ec);
  if (ec) {
    std::string motivo = fmt::format("impossibile sostituire il file {}: {}", destinazione.string(), ec.message());
    fs::remove(temporaneo, ec);
    return Fallito(motivo);
  }
  return destinazione;
}

}  // namespace lottolab
