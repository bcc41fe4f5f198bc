#include "ServerLocali.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <fmt/format.h>
#include <sstream>
#include <stdexcept>

namespace lottolab::test {

namespace {

// A listening socket on 127.0.0.1 and the port it got.
std::pair<int, uint16_t> Ascolta() {
  const int presa = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (presa < 0) throw std::runtime_error("socket");
  sockaddr_in indirizzo{};
  indirizzo.sin_family = AF_INET;
  indirizzo.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  indirizzo.sin_port = 0;
  socklen_t lunghezza = sizeof(indirizzo);
  if (::bind(presa, reinterpret_cast<sockaddr*>(&indirizzo), sizeof(indirizzo)) != 0 || ::listen(presa, 16) != 0 ||
      ::getsockname(presa, reinterpret_cast<sockaddr*>(&indirizzo), &lunghezza) != 0) {
    ::close(presa);
    throw std::runtime_error("bind/listen");
  }
  return {presa, ntohs(indirizzo.sin_port)};
}

bool Leggibile(int presa, std::chrono::milliseconds attesa) {
  pollfd attesa_presa{presa, POLLIN, 0};
  return ::poll(&attesa_presa, 1, static_cast<int>(attesa.count())) > 0;
}

}  // namespace

ServerLocale::ServerLocale() { std::tie(m_ascolto, m_porta) = Ascolta(); }

ServerLocale::~ServerLocale() { Ferma(); }

void ServerLocale::Avvia() {
  m_accettatore = std::thread([this] { Accetta(); });
}

void ServerLocale::Ferma() {
  m_fine = true;
  if (m_accettatore.joinable()) m_accettatore.join();
  std::lock_guard blocco(m_mutex);
  for (std::thread& connessione : m_connessioni) connessione.join();
  m_connessioni.clear();
  if (m_ascolto >= 0) ::close(m_ascolto);
  m_ascolto = -1;
}

void ServerLocale::Accetta() {
  while (!m_fine) {
    if (!Leggibile(m_ascolto, std::chrono::milliseconds(20))) continue;
    const int connessione = ::accept4(m_ascolto, nullptr, nullptr, SOCK_CLOEXEC);
    if (connessione < 0) continue;
    std::lock_guard blocco(m_mutex);
    m_connessioni.emplace_back([this, connessione] {
      Servi(connessione);
      ::close(connessione);
    });
  }
}

bool ServerLocale::Invia(int connessione, std::string_view dati) {
  while (!dati.empty()) {
    const ssize_t inviati = ::send(connessione, dati.data(), dati.size(), MSG_NOSIGNAL);
    if (inviati <= 0) return false;
    dati.remove_prefix(static_cast<size_t>(inviati));
  }
  return true;
}

bool ServerLocale::Attendi(int connessione, std::chrono::milliseconds massimo) const {
  const auto fine = std::chrono::steady_clock::now() + massimo;
  while (!m_fine && std::chrono::steady_clock::now() < fine)
    if (Leggibile(connessione, std::chrono::milliseconds(20))) return true;
  return false;
}

bool ServerLocale::Pausa(std::chrono::milliseconds durata) const {
  const auto fine = std::chrono::steady_clock::now() + durata;
  while (!m_fine && std::chrono::steady_clock::now() < fine) std::this_thread::sleep_for(std::chrono::milliseconds(5));
  return !m_fine;
}

uint16_t PortaChiusa() {
  auto [presa, porta] = Ascolta();
  ::close(presa);
  return porta;
}

// ---- HTTP ----

ServerHttp::ServerHttp() { Avvia(); }
ServerHttp::~ServerHttp() { Ferma(); }

void ServerHttp::Aggiungi(const std::string& percorso, RispostaHttp risposta) {
  std::lock_guard blocco(m_mutex);
  m_risposte[percorso] = std::move(risposta);
}

std::string ServerHttp::Indirizzo(const std::string& percorso) const {
  return fmt::format("http://127.0.0.1:{}{}", Porta(), percorso);
}

void ServerHttp::Servi(int connessione) {
  std::string richiesta;
  char blocco[4096];
  while (richiesta.find("\r\n\r\n") == std::string::npos) {
    if (!Attendi(connessione)) return;
    const ssize_t letti = ::recv(connessione, blocco, sizeof(blocco), 0);
    if (letti <= 0) return;
    richiesta.append(blocco, static_cast<size_t>(letti));
  }
  std::istringstream riga(richiesta.substr(0, richiesta.find("\r\n")));
  std::string metodo, percorso;
  riga >> metodo >> percorso;
  RispostaHttp risposta{404, "non trovato"};
  {
    std::lock_guard serratura(m_mutex);
    if (auto trovata = m_risposte.find(percorso); trovata != m_risposte.end()) risposta = trovata->second;
  }
  if (!Invia(connessione, fmt::format("HTTP/1.1 {} Stato\r\nContent-Length: {}\r\nConnection: close\r\n\r\n",
                                      risposta.stato, risposta.corpo.size())))
    return;
  if (!Pausa(risposta.attesa)) return;
  std::string_view corpo = risposta.corpo;
  const size_t pezzo = risposta.pezzo == 0 ? corpo.size() : risposta.pezzo;
  while (!corpo.empty()) {
    const std::string_view parte = corpo.substr(0, pezzo);
    if (!Invia(connessione, parte)) return;
    corpo.remove_prefix(parte.size());
    if (!corpo.empty() && !Pausa(risposta.pausa)) return;
  }
}

// ---- FTP ----

ServerFtp::ServerFtp(std::string utente, std::string password)
    : m_utente(std::move(utente)), m_password(std::move(password)) {
  Avvia();
}
ServerFtp::~ServerFtp() { Ferma(); }

void ServerFtp::Metti(const std::string& percorso, std::string contenuto) {
  std::lock_guard blocco(m_mutex);
  m_file[percorso] = std::move(contenuto);
}

std::optional<std::string> ServerFtp::Contenuto(const std::string& percorso) const {
  std::lock_guard blocco(m_mutex);
  auto trovato = m_file.find(percorso);
  if (trovato == m_file.end()) return std::nullopt;
  return trovato->second;
}

std::string ServerFtp::Indirizzo(const std::string& percorso) const {
  return fmt::format("ftp://127.0.0.1:{}{}", Porta(), percorso);
}

void ServerFtp::Servi(int controllo) {
  std::string cartella = "/";
  std::string utente;
  bool entrato = false;
  int dati = -1;
  auto Chiudi = [&dati] {
    if (dati >= 0) ::close(dati);
    dati = -1;
  };
  // The data connection libcurl opens after EPSV or PASV.
  auto ConnessioneDati = [&]() -> int {
    if (dati < 0 || !Attendi(dati)) return -1;
    const int connessione = ::accept4(dati, nullptr, nullptr, SOCK_CLOEXEC);
    Chiudi();
    return connessione;
  };
  auto Percorso = [&](const std::string& nome) { return nome.starts_with('/') ? nome : cartella + nome; };

  std::string ricevuto;
  Invia(controllo, "220 pronto\r\n");
  while (true) {
    size_t fine_riga;
    while ((fine_riga = ricevuto.find("\r\n")) == std::string::npos) {
      char blocco[1024];
      if (!Attendi(controllo)) return Chiudi();
      const ssize_t letti = ::recv(controllo, blocco, sizeof(blocco), 0);
      if (letti <= 0) return Chiudi();
      ricevuto.append(blocco, static_cast<size_t>(letti));
    }
    const std::string riga = ricevuto.substr(0, fine_riga);
    ricevuto.erase(0, fine_riga + 2);
    const std::string comando = riga.substr(0, riga.find(' '));
    const std::string argomento = riga.size() > comando.size() ? riga.substr(comando.size() + 1) : "";

    std::string risposta;
    if (comando == "USER") {
      utente = argomento;
      risposta = "331 password\r\n";
    } else if (comando == "PASS") {
      entrato = utente == m_utente && argomento == m_password;
      risposta = entrato ? "230 entrato\r\n" : "530 accesso negato\r\n";
    } else if (comando == "QUIT") {
      Invia(controllo, "221 arrivederci\r\n");
      return Chiudi();
    } else if (!entrato) {
      risposta = "530 prima l'accesso\r\n";
    } else if (comando == "PWD") {
      risposta = fmt::format("257 \"{}\"\r\n", cartella);
    } else if (comando == "CWD") {
      cartella = Percorso(argomento) + (argomento.ends_with('/') ? "" : "/");
      risposta = "250 ok\r\n";
    } else if (comando == "MKD") {
      risposta = "257 creata\r\n";
    } else if (comando == "TYPE") {
      risposta = "200 ok\r\n";
    } else if (comando == "EPSV" || comando == "PASV") {
      Chiudi();
      uint16_t porta = 0;
      std::tie(dati, porta) = Ascolta();
      risposta = comando == "EPSV" ? fmt::format("229 passivo (|||{}|)\r\n", porta)
                                   : fmt::format("227 passivo (127,0,0,1,{},{})\r\n", porta / 256, porta % 256);
    } else if (comando == "SIZE") {
      auto contenuto = Contenuto(Percorso(argomento));
      risposta = contenuto ? fmt::format("213 {}\r\n", contenuto->size()) : "550 non esiste\r\n";
    } else if (comando == "RETR") {
      auto contenuto = Contenuto(Percorso(argomento));
      if (!contenuto) {
        risposta = "550 non esiste\r\n";
      } else {
        Invia(controllo, "150 invio\r\n");
        const int connessione = ConnessioneDati();
        const bool inviato = connessione >= 0 && Invia(connessione, *contenuto);
        if (connessione >= 0) ::close(connessione);
        risposta = inviato ? "226 fatto\r\n" : "426 interrotto\r\n";
      }
    } else if (comando == "STOR") {
      Invia(controllo, "150 ricevo\r\n");
      const int connessione = ConnessioneDati();
      std::string contenuto;
      bool completo = false;
      while (connessione >= 0 && Attendi(connessione)) {
        char blocco[4096];
        const ssize_t letti = ::recv(connessione, blocco, sizeof(blocco), 0);
        if (letti <= 0) {
          completo = letti == 0;
          break;
        }
        contenuto.append(blocco, static_cast<size_t>(letti));
      }
      if (connessione >= 0) ::close(connessione);
      if (completo) Metti(Percorso(argomento), std::move(contenuto));
      risposta = completo ? "226 fatto\r\n" : "426 interrotto\r\n";
    } else {
      risposta = "502 non previsto\r\n";
    }
    if (!Invia(controllo, risposta)) return Chiudi();
  }
}

}  // namespace lottolab::test
