#include "Sqlite.h"

#include <fmt/format.h>
#include <sqlite3.h>

#include <cassert>
#include <utility>

namespace lottolab::agenda {

namespace fs = std::filesystem;

namespace {

// Another program holding the file gets this long to finish its write before ours gives up.
constexpr int kAttesaMillisecondi = 5000;

std::string_view Motivo(int codice) {
  switch (codice & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED: return "è in uso da un altro programma";
    case SQLITE_FULL: return "il disco è pieno";
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_AUTH: return "non si può scrivere (permesso negato o file in sola lettura)";
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB: return "è danneggiato o non è un database";
    case SQLITE_CANTOPEN: return "non si può aprire";
    case SQLITE_IOERR: return "errore di lettura o scrittura sul disco";
    case SQLITE_NOMEM: return "memoria esaurita";
    case SQLITE_CONSTRAINT: return "dati non coerenti con lo schema";
    default: return {};
  }
}

}  // namespace

Avviso GuastoDatabase(sqlite3* db, const fs::path& file, int codice) {
  std::string_view motivo = Motivo(codice);
  if (!motivo.empty()) return AvvisoEsclamativo(fmt::format("agenda delle giocate {}: {}", file.string(), motivo));
  const char* messaggio = db ? sqlite3_errmsg(db) : sqlite3_errstr(codice);
  return AvvisoEsclamativo(fmt::format("agenda delle giocate {}: errore del database (codice {}: {})", file.string(),
                                       codice, messaggio ? messaggio : ""));
}

Istruzione::Istruzione(Istruzione&& altra) noexcept
    : m_db(altra.m_db), m_file(std::move(altra.m_file)), m_istruzione(std::exchange(altra.m_istruzione, nullptr)) {}

Istruzione::~Istruzione() { sqlite3_finalize(m_istruzione); }

Istruzione& Istruzione::Lega(int indice, int64_t valore) {
  [[maybe_unused]] int codice = sqlite3_bind_int64(m_istruzione, indice, valore);
  assert(codice != SQLITE_RANGE);
  return *this;
}

Istruzione& Istruzione::Lega(int indice, std::string_view valore) {
  [[maybe_unused]] int codice =
      sqlite3_bind_text(m_istruzione, indice, valore.data(), static_cast<int>(valore.size()), SQLITE_TRANSIENT);
  assert(codice != SQLITE_RANGE);
  return *this;
}

Istruzione& Istruzione::LegaNullo(int indice) {
  [[maybe_unused]] int codice = sqlite3_bind_null(m_istruzione, indice);
  assert(codice != SQLITE_RANGE);
  return *this;
}

void Istruzione::Reimposta() {
  sqlite3_reset(m_istruzione);
  sqlite3_clear_bindings(m_istruzione);
}

Esito<bool> Istruzione::Passo() {
  const int codice = sqlite3_step(m_istruzione);
  if (codice == SQLITE_ROW) return true;
  if (codice == SQLITE_DONE) return false;
  return GuastoDatabase(m_db, m_file, sqlite3_extended_errcode(m_db));
}

Esito<Fatto> Istruzione::Esegui() {
  for (;;) {
    auto riga = Passo();
    if (!riga) return riga.Errore();
    if (!*riga) return Fatto{};
  }
}

int64_t Istruzione::Intero(int colonna) const { return sqlite3_column_int64(m_istruzione, colonna); }

std::optional<int64_t> Istruzione::InteroONullo(int colonna) const {
  if (sqlite3_column_type(m_istruzione, colonna) == SQLITE_NULL) return std::nullopt;
  return Intero(colonna);
}

std::string Istruzione::Testo(int colonna) const {
  const auto* testo = reinterpret_cast<const char*>(sqlite3_column_text(m_istruzione, colonna));
  if (!testo) return {};
  return std::string(testo, static_cast<size_t>(sqlite3_column_bytes(m_istruzione, colonna)));
}

Esito<Connessione> Connessione::Apri(const fs::path& file) {
  sqlite3* db = nullptr;
  const int codice = sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  if (codice != SQLITE_OK) {
    Avviso guasto = GuastoDatabase(db, file, codice);
    sqlite3_close(db);
    return guasto;
  }
  sqlite3_extended_result_codes(db, 1);
  sqlite3_busy_timeout(db, kAttesaMillisecondi);
  return Connessione(file, db);
}

Connessione::Connessione(Connessione&& altra) noexcept
    : m_file(std::move(altra.m_file)), m_db(std::exchange(altra.m_db, nullptr)) {}

Connessione& Connessione::operator=(Connessione&& altra) noexcept {
  if (this != &altra) {
    sqlite3_close(m_db);
    m_file = std::move(altra.m_file);
    m_db = std::exchange(altra.m_db, nullptr);
  }
  return *this;
}

Connessione::~Connessione() { sqlite3_close(m_db); }

Esito<Istruzione> Connessione::Prepara(std::string_view sql) const {
  sqlite3_stmt* istruzione = nullptr;
  const int codice = sqlite3_prepare_v2(m_db, sql.data(), static_cast<int>(sql.size()), &istruzione, nullptr);
  if (codice != SQLITE_OK) return GuastoDatabase(m_db, m_file, codice);
  return Istruzione(m_db, m_file, istruzione);
}

Esito<Fatto> Connessione::Esegui(std::string_view sql) const {
  const std::string testo(sql);
  const int codice = sqlite3_exec(m_db, testo.c_str(), nullptr, nullptr, nullptr);
  if (codice != SQLITE_OK) return GuastoDatabase(m_db, m_file, sqlite3_extended_errcode(m_db));
  return Fatto{};
}

Esito<int64_t> Connessione::Intero(std::string_view sql) const {
  auto istruzione = Prepara(sql);
  if (!istruzione) return istruzione.Errore();
  auto riga = istruzione->Passo();
  if (!riga) return riga.Errore();
  return *riga ? istruzione->Intero(0) : 0;
}

void Connessione::Annulla() const {
  if (!sqlite3_get_autocommit(m_db)) sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
}

}  // namespace lottolab::agenda
