#pragma once

// An HTTP server and an FTP server on 127.0.0.1, each on a free port, served by threads of the test:
// just enough of each protocol for libcurl to download and upload, and the failures a transfer
// must survive (an error status, a server that stalls). Stopping one never waits on a stalled
// answer for long: every wait looks at the stop flag.

#include <atomic>
#include <chrono>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace lottolab::test {

// A socket listening on 127.0.0.1 on a port the system chose, with the threads of its connections.
class ServerLocale {
 public:
  ServerLocale();
  virtual ~ServerLocale();
  ServerLocale(const ServerLocale&) = delete;
  ServerLocale& operator=(const ServerLocale&) = delete;

  uint16_t Porta() const { return m_porta; }

 protected:
  // Begins accepting; derived classes call it once they are ready to serve.
  void Avvia();
  void Ferma();
  bool Fermato() const { return m_fine.load(); }
  // Serves one accepted connection, on a thread of its own; closes nothing.
  virtual void Servi(int connessione) = 0;

  // The whole of `dati` sent; false once the other side went away.
  static bool Invia(int connessione, std::string_view dati);
  // Waits for `connessione` to be readable, looking at the stop flag; false on stop or time-out.
  bool Attendi(int connessione, std::chrono::milliseconds massimo = std::chrono::seconds(10)) const;
  // Sleeps, waking early on stop; false when stopped.
  bool Pausa(std::chrono::milliseconds durata) const;

 private:
  void Accetta();

  int m_ascolto = -1;
  uint16_t m_porta = 0;
  std::atomic<bool> m_fine{false};
  std::thread m_accettatore;
  std::mutex m_mutex;
  std::vector<std::thread> m_connessioni;
};

// A port nothing listens on: taken from the system, then closed.
uint16_t PortaChiusa();

struct RispostaHttp {
  int stato = 200;
  std::string corpo;
  std::chrono::milliseconds attesa{0};  // before the body, after the headers
  size_t pezzo = 0;                     // bytes sent at a time; 0 for all at once
  std::chrono::milliseconds pausa{0};   // between pieces
};

// GET with Content-Length and Connection: close; a path it was not given answers 404.
class ServerHttp final : public ServerLocale {
 public:
  ServerHttp();
  ~ServerHttp() override;
  void Aggiungi(const std::string& percorso, RispostaHttp risposta);
  std::string Indirizzo(const std::string& percorso) const;

 private:
  void Servi(int connessione) override;
  std::mutex m_mutex;
  std::map<std::string, RispostaHttp> m_risposte;
};

// USER/PASS, PWD, CWD, MKD, TYPE, EPSV/PASV, SIZE, RETR, STOR, QUIT over files kept in memory by
// their full path ("/cartella/nome").
class ServerFtp final : public ServerLocale {
 public:
  ServerFtp(std::string utente, std::string password);
  ~ServerFtp() override;
  void Metti(const std::string& percorso, std::string contenuto);
  std::optional<std::string> Contenuto(const std::string& percorso) const;
  std::string Indirizzo(const std::string& percorso) const;

 private:
  void Servi(int connessione) override;
  std::string m_utente;
  std::string m_password;
  mutable std::mutex m_mutex;
  std::map<std::string, std::string> m_file;
};

}  // namespace lottolab::test
