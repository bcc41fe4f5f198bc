#include "Trasferimento.h"

#include <unistd.h>

#include <cstdio>
#include <curl/curl.h>
#include <fmt/format.h>
#include <memory>
#include <mutex>
#include <optional>
#include <system_error>

#include "MessaggiRete.h"

namespace lottolab::rete {

namespace fs = std::filesystem;

namespace {

constexpr long kRedirezioniMassime = 10;

struct ChiudiFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
struct ChiudiCurl {
  void operator()(CURL* curl) const { curl_easy_cleanup(curl); }
};

// libcurl wants its global set-up done once, before any transfer, from one thread.
void PreparaCurl() {
  static std::once_flag fatto;
  std::call_once(fatto, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

// What the callbacks of one transfer share with it.
struct Flusso {
  std::FILE* file = nullptr;
  uint64_t byte = 0;
  uint64_t byte_massimi = 0;
  bool troppo_grande = false;
  bool scrittura_fallita = false;
  const AvanzamentoTrasferimento* avanzamento = nullptr;
};

size_t ScriviBlocco(char* dati, size_t dimensione, size_t quanti, void* utente) {
  auto& flusso = *static_cast<Flusso*>(utente);
  const size_t lunghezza = dimensione * quanti;
  if (flusso.byte + lunghezza > flusso.byte_massimi) {
    flusso.troppo_grande = true;
    return 0;
  }
  if (std::fwrite(dati, 1, lunghezza, flusso.file) != lunghezza) {
    flusso.scrittura_fallita = true;
    return 0;
  }
  flusso.byte += lunghezza;
  return lunghezza;
}

size_t LeggiBlocco(char* dati, size_t dimensione, size_t quanti, void* utente) {
  auto& flusso = *static_cast<Flusso*>(utente);
  const size_t letti = std::fread(dati, 1, dimensione * quanti, flusso.file);
  if (letti == 0 && std::ferror(flusso.file)) return CURL_READFUNC_ABORT;
  flusso.byte += letti;
  return letti;
}

int Avanza(void* utente, curl_off_t scaricati_totali, curl_off_t scaricati, curl_off_t inviati_totali,
           curl_off_t inviati) {
  const auto& flusso = *static_cast<Flusso*>(utente);
  if (!flusso.avanzamento || !*flusso.avanzamento) return 0;
  const bool invio = inviati_totali > 0;
  const auto fatti = static_cast<uint64_t>(invio ? inviati : scaricati);
  const auto totali = static_cast<uint64_t>(invio ? inviati_totali : scaricati_totali);
  return (*flusso.avanzamento)(fatti, totali) == Prosegui::No ? 1 : 0;
}

// The options every transfer shares; the caller adds its direction.
std::unique_ptr<CURL, ChiudiCurl> NuovoTrasferimento(const std::string& indirizzo, const OpzioniTrasferimento& opzioni,
                                                     Flusso& flusso) {
  PreparaCurl();
  std::unique_ptr<CURL, ChiudiCurl> curl(curl_easy_init());
  if (!curl) return curl;
  CURL* c = curl.get();
  curl_easy_setopt(c, CURLOPT_URL, indirizzo.c_str());
  curl_easy_setopt(c, CURLOPT_PROTOCOLS_STR, opzioni.protocolli.c_str());
  curl_easy_setopt(c, CURLOPT_REDIR_PROTOCOLS_STR, opzioni.protocolli.c_str());
  curl_easy_setopt(c, CURLOPT_FOLLOWLOCATION, 1L);
  curl_easy_setopt(c, CURLOPT_MAXREDIRS, kRedirezioniMassime);
  curl_easy_setopt(c, CURLOPT_CONNECTTIMEOUT, static_cast<long>(opzioni.attesa_connessione.count()));
  curl_easy_setopt(c, CURLOPT_TIMEOUT, static_cast<long>(opzioni.tempo_massimo.count()));
  curl_easy_setopt(c, CURLOPT_NOSIGNAL, 1L);
  curl_easy_setopt(c, CURLOPT_USERAGENT, "lottolab");
  curl_easy_setopt(c, CURLOPT_NOPROGRESS, 0L);
  curl_easy_setopt(c, CURLOPT_XFERINFOFUNCTION, Avanza);
  curl_easy_setopt(c, CURLOPT_XFERINFODATA, &flusso);
  if (!opzioni.utente.empty()) {
    curl_easy_setopt(c, CURLOPT_USERNAME, opzioni.utente.c_str());
    curl_easy_setopt(c, CURLOPT_PASSWORD, opzioni.password.c_str());
  }
  return curl;
}

// Why the transfer failed, or nothing when it succeeded: libcurl's code, then the size cap and the
// local file, which libcurl only knows as a failed write, then an HTTP error status.
std::optional<std::string> Motivo(CURL* c, CURLcode esito, const Flusso& flusso, const std::string& indirizzo,
                                  const OpzioniTrasferimento& opzioni, const fs::path& locale) {
  const std::string host = HostDi(indirizzo);
  if (flusso.troppo_grande || esito == CURLE_FILESIZE_EXCEEDED)
    return fmt::format("il file supera il limite di {} byte", opzioni.byte_massimi);
  if (flusso.scrittura_fallita) return fmt::format("impossibile scrivere il file {}", locale.string());
  if (esito != CURLE_OK) return MotivoCurl(esito, host, opzioni.tempo_massimo);
  long stato = 0;
  curl_easy_getinfo(c, CURLINFO_RESPONSE_CODE, &stato);
  const char* schema = nullptr;
  curl_easy_getinfo(c, CURLINFO_SCHEME, &schema);
  const std::string_view protocollo = schema ? schema : "";
  const bool http = protocollo == "HTTP" || protocollo == "HTTPS" || protocollo == "http" || protocollo == "https";
  if (http && stato >= 400) return MotivoHttp(stato, host);
  return std::nullopt;
}

fs::path NomeTemporaneo(const fs::path& destinazione) {
  fs::path temporaneo = destinazione;
  temporaneo += fmt::format(".scaricamento-{}", ::getpid());
  return temporaneo;
}

}  // namespace

Esito<uint64_t> Scarica(const std::string& indirizzo, const fs::path& destinazione,
                        const OpzioniTrasferimento& opzioni) {
  auto Fallito = [&](std::string_view motivo) {
    return AvvisoEsclamativo(fmt::format("Impossibile scaricare {}: {}", indirizzo, motivo));
  };
  std::error_code ec;
  const fs::path cartella = destinazione.parent_path();
  if (!cartella.empty() && !fs::is_directory(cartella, ec)) {
    fs::create_directories(cartella, ec);
    if (!fs::is_directory(cartella, ec))
      return Fallito(fmt::format("impossibile creare la cartella {}", cartella.string()));
  }
  const fs::path temporaneo = NomeTemporaneo(destinazione);
  std::unique_ptr<std::FILE, ChiudiFile> file(std::fopen(temporaneo.c_str(), "wb"));
  if (!file) return Fallito(fmt::format("impossibile creare il file {}", temporaneo.string()));

  Flusso flusso{file.get(), 0, opzioni.byte_massimi, false, false, &opzioni.avanzamento};
  auto curl = NuovoTrasferimento(indirizzo, opzioni, flusso);
  std::optional<std::string> motivo;
  if (!curl) {
    motivo = "la libreria di rete non si è avviata";
  } else {
    CURL* c = curl.get();
    curl_easy_setopt(c, CURLOPT_WRITEFUNCTION, ScriviBlocco);
    curl_easy_setopt(c, CURLOPT_WRITEDATA, &flusso);
    curl_easy_setopt(c, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(opzioni.byte_massimi));
    motivo = Motivo(c, curl_easy_perform(c), flusso, indirizzo, opzioni, temporaneo);
  }
  const bool scritto = std::fflush(file.get()) == 0 && ::fsync(::fileno(file.get())) == 0;
  const bool chiuso = std::fclose(file.release()) == 0;
  if (!motivo && !(scritto && chiuso)) motivo = fmt::format("impossibile scrivere il file {}", temporaneo.string());
  if (!motivo) {
    fs::rename(temporaneo, destinazione, ec);
    if (ec) motivo = fmt::format("impossibile sostituire il file {}: {}", destinazione.string(), ec.message());
  }
  if (motivo) {
    fs::remove(temporaneo, ec);
    return Fallito(*motivo);
  }
  return flusso.byte;
}

Esito<uint64_t> Carica(const fs::path& origine, const std::string& indirizzo, const OpzioniTrasferimento& opzioni) {
  auto Fallito = [&](std::string_view motivo) {
    return AvvisoEsclamativo(fmt::format("Impossibile inviare {} a {}: {}", origine.string(), indirizzo, motivo));
  };
  std::error_code ec;
  if (!fs::is_regular_file(origine, ec)) return Fallito("il file non esiste o non è un file normale");
  const uintmax_t dimensione = fs::file_size(origine, ec);
  if (ec) return Fallito("il file non si può leggere");
  if (dimensione > opzioni.byte_massimi)
    return Fallito(fmt::format("il file supera il limite di {} byte", opzioni.byte_massimi));
  std::unique_ptr<std::FILE, ChiudiFile> file(std::fopen(origine.c_str(), "rb"));
  if (!file) return Fallito("il file non si può leggere");

  Flusso flusso{file.get(), 0, opzioni.byte_massimi, false, false, &opzioni.avanzamento};
  auto curl = NuovoTrasferimento(indirizzo, opzioni, flusso);
  if (!curl) return Fallito("la libreria di rete non si è avviata");
  CURL* c = curl.get();
  curl_easy_setopt(c, CURLOPT_UPLOAD, 1L);
  curl_easy_setopt(c, CURLOPT_READFUNCTION, LeggiBlocco);
  curl_easy_setopt(c, CURLOPT_READDATA, &flusso);
  curl_easy_setopt(c, CURLOPT_INFILESIZE_LARGE, static_cast<curl_off_t>(dimensione));
  curl_easy_setopt(c, CURLOPT_FTP_CREATE_MISSING_DIRS, static_cast<long>(CURLFTP_CREATE_DIR));
  if (auto motivo = Motivo(c, curl_easy_perform(c), flusso, indirizzo, opzioni, origine)) return Fallito(*motivo);
  return flusso.byte;
}

}  // namespace lottolab::rete
