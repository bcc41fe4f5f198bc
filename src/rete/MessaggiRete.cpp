#include "MessaggiRete.h"

#include <fmt/format.h>
#include <memory>

namespace lottolab::rete {

namespace {

struct LiberaUrl {
  void operator()(CURLU* url) const { curl_url_cleanup(url); }
};

std::string_view TestoStato(long stato) {
  switch (stato) {
    case 400: return "richiesta non valida";
    case 401: return "serve l'autenticazione";
    case 403: return "accesso negato";
    case 404: return "file non trovato";
    case 408: return "la richiesta ha impiegato troppo";
    case 410: return "file non più disponibile";
    case 429: return "troppe richieste, riprovare più tardi";
    case 500: return "errore interno del server";
    case 502:
    case 504: return "il server intermedio non ha avuto risposta";
    case 503: return "servizio momentaneamente non disponibile";
    default: return stato < 500 ? "richiesta rifiutata" : "errore del server";
  }
}

}  // namespace

std::string HostDi(const std::string& indirizzo) {
  std::unique_ptr<CURLU, LiberaUrl> url(curl_url());
  if (!url || curl_url_set(url.get(), CURLUPART_URL, indirizzo.c_str(), CURLU_GUESS_SCHEME) != CURLUE_OK)
    return indirizzo;
  char* host = nullptr;
  if (curl_url_get(url.get(), CURLUPART_HOST, &host, 0) != CURLUE_OK || !host || !*host) {
    curl_free(host);
    return indirizzo;
  }
  std::string risultato = host;
  curl_free(host);
  char* porta = nullptr;
  if (curl_url_get(url.get(), CURLUPART_PORT, &porta, 0) == CURLUE_OK && porta) risultato += fmt::format(":{}", porta);
  curl_free(porta);
  return risultato;
}

std::string MotivoCurl(CURLcode codice, const std::string& host, std::chrono::seconds tempo_massimo) {
  switch (codice) {
    case CURLE_COULDNT_RESOLVE_HOST:
      return fmt::format(
          "il nome {} non è stato trovato: il computer non è collegato a Internet, oppure il nome è sbagliato", host);
    case CURLE_COULDNT_RESOLVE_PROXY: return "il proxy indicato nelle impostazioni di rete non è stato trovato";
    case CURLE_COULDNT_CONNECT:
      return fmt::format(
          "{} non accetta la connessione: il server è spento o irraggiungibile, oppure il computer non "
          "è collegato a Internet",
          host);
    case CURLE_OPERATION_TIMEDOUT:
      return fmt::format("{} non ha completato il trasferimento entro {} {}", host, tempo_massimo.count(),
                         tempo_massimo.count() == 1 ? "secondo" : "secondi");
    case CURLE_ABORTED_BY_CALLBACK: return "trasferimento annullato";
    case CURLE_UNSUPPORTED_PROTOCOL: return "l'indirizzo usa un protocollo non ammesso qui";
    case CURLE_URL_MALFORMAT: return "l'indirizzo non è valido";
    case CURLE_TOO_MANY_REDIRECTS: return fmt::format("{} rimanda ad altri indirizzi troppe volte", host);
    case CURLE_LOGIN_DENIED: return fmt::format("{} ha rifiutato il nome utente o la password", host);
    case CURLE_REMOTE_FILE_NOT_FOUND: return fmt::format("il file non esiste su {}", host);
    case CURLE_REMOTE_ACCESS_DENIED: return fmt::format("{} nega l'accesso al file o alla cartella", host);
    case CURLE_UPLOAD_FAILED: return fmt::format("{} ha rifiutato il file inviato", host);
    case CURLE_REMOTE_DISK_FULL: return fmt::format("il disco di {} è pieno", host);
    case CURLE_FILE_COULDNT_READ_FILE: return "il file non esiste o non si può leggere";
    case CURLE_READ_ERROR: return "il file da inviare non si può leggere";
    case CURLE_PEER_FAILED_VERIFICATION:
      return fmt::format("il certificato di {} non è valido: la connessione sicura è stata rifiutata", host);
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CERTPROBLEM:
    case CURLE_SSL_CIPHER:
    case CURLE_SSL_CACERT_BADFILE: return fmt::format("la connessione sicura con {} non è riuscita", host);
    case CURLE_GOT_NOTHING:
    case CURLE_RECV_ERROR:
    case CURLE_SEND_ERROR:
    case CURLE_PARTIAL_FILE: return fmt::format("la connessione con {} si è interrotta prima della fine", host);
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_FTP_WEIRD_PASS_REPLY:
    case CURLE_FTP_WEIRD_PASV_REPLY:
    case CURLE_FTP_WEIRD_227_FORMAT:
    case CURLE_FTP_CANT_GET_HOST:
    case CURLE_FTP_COULDNT_SET_TYPE:
    case CURLE_FTP_COULDNT_RETR_FILE:
    case CURLE_FTP_PORT_FAILED:
    case CURLE_QUOTE_ERROR: return fmt::format("{} ha dato una risposta inattesa", host);
    case CURLE_FTP_ACCEPT_FAILED:
    case CURLE_FTP_ACCEPT_TIMEOUT: return fmt::format("il canale dei dati con {} non si è aperto", host);
    default: return fmt::format("errore di rete con {} (codice libcurl {})", host, static_cast<int>(codice));
  }
}

std::string MotivoHttp(long stato, const std::string& host) {
  return fmt::format("{} ha risposto {} ({})", host, stato, TestoStato(stato));
}

}  // namespace lottolab::rete
