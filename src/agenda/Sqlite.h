#pragma once

// A thin owner of one SQLite connection and its prepared statements. Every failure becomes an
// Italian sentence that names the database file; callers never see an SQLite code. One connection
// belongs to one thread at a time.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "archive/Esito.h"

struct sqlite3;
struct sqlite3_stmt;

namespace lottolab::agenda {

class Connessione;

// The Italian sentence for a failure of SQLite (`codice`, with the connection's own message when it
// has one), naming the file.
Avviso GuastoDatabase(sqlite3* db, const std::filesystem::path& file, int codice);

// A prepared statement; parameters are numbered from 1, columns from 0.
class Istruzione {
 public:
  Istruzione(Istruzione&& altra) noexcept;
  Istruzione& operator=(Istruzione&&) = delete;
  Istruzione(const Istruzione&) = delete;
  ~Istruzione();

  Istruzione& Lega(int indice, int64_t valore);
  Istruzione& Lega(int indice, std::string_view valore);
  Istruzione& LegaNullo(int indice);

  // Ready to run again with new parameters.
  void Reimposta();
  // Steps once: true with a row to read, false when done.
  [[nodiscard]] Esito<bool> Passo();
  // Steps to the end, for statements that return no rows.
  [[nodiscard]] Esito<Fatto> Esegui();

  int64_t Intero(int colonna) const;
  std::optional<int64_t> InteroONullo(int colonna) const;
  std::string Testo(int colonna) const;

 private:
  friend class Connessione;
  Istruzione(sqlite3* db, std::filesystem::path file, sqlite3_stmt* istruzione)
      : m_db(db), m_file(std::move(file)), m_istruzione(istruzione) {}

  sqlite3* m_db;
  std::filesystem::path m_file;
  sqlite3_stmt* m_istruzione;
};

class Connessione {
 public:
  // Opens (creating when absent) the database file; nothing is read yet.
  static Esito<Connessione> Apri(const std::filesystem::path& file);

  Connessione(Connessione&& altra) noexcept;
  Connessione& operator=(Connessione&& altra) noexcept;
  Connessione(const Connessione&) = delete;
  ~Connessione();

  [[nodiscard]] Esito<Istruzione> Prepara(std::string_view sql) const;
  // Runs one or more statements that return no rows.
  [[nodiscard]] Esito<Fatto> Esegui(std::string_view sql) const;
  // The first column of the first row of a query returning an integer.
  [[nodiscard]] Esito<int64_t> Intero(std::string_view sql) const;

  // Runs `lavoro` inside one write transaction: committed when it succeeds, rolled back when it
  // fails, so that a failure or a kill leaves the database as it was before.
  template <typename F>
  [[nodiscard]] auto InTransazione(F lavoro) const -> decltype(lavoro()) {
    return Transazione("BEGIN IMMEDIATE", lavoro);
  }
  // Runs the reads of `lavoro` on one snapshot of the database, which other programs' writes do not
  // change half way.
  template <typename F>
  [[nodiscard]] auto InLettura(F lavoro) const -> decltype(lavoro()) {
    return Transazione("BEGIN", lavoro);
  }

  const std::filesystem::path& File() const { return m_file; }

 private:
  Connessione(std::filesystem::path file, sqlite3* db) : m_file(std::move(file)), m_db(db) {}
  template <typename F>
  auto Transazione(std::string_view inizio, F& lavoro) const -> decltype(lavoro()) {
    if (auto iniziata = Esegui(inizio); !iniziata) return iniziata.Errore();
    auto esito = lavoro();
    if (!esito) {
      Annulla();
      return esito;
    }
    if (auto fine = Esegui("COMMIT"); !fine) {
      Annulla();
      return fine.Errore();
    }
    return esito;
  }
  void Annulla() const;

  std::filesystem::path m_file;
  sqlite3* m_db;
};

}  // namespace lottolab::agenda
