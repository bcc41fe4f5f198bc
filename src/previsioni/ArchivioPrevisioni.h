#pragma once

// The forecasts that users' scripts saved: an SQLite file beside the agenda of the bets, one row a
// forecast. It is a file of its own, not a table of the agenda, because a forecast is no bet: it has
// no stakes and no money, and checking it is a walk over the draws that is never stored. Every write
// is one transaction, so a killed script leaves each forecast whole or absent.

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "agenda/Sqlite.h"
#include "archive/Esito.h"

namespace lottolab::previsioni {

inline constexpr std::string_view kFilePrevisioni = "Previsioni.db";
inline constexpr int kMassimiColpi = 1000;
inline constexpr size_t kMassimaLunghezzaTesto = 2000;

struct Previsione {
  int64_t id = 0;
  // 1..90, all different, at most 90.
  std::vector<int> numeri;
  // Table numbering 1..11, all different.
  std::vector<int> ruote;
  // The draw it was made at: it is played from the next one.
  int id_estr = 0;
  // 1..kMassimiColpi.
  int colpi = 1;
  std::string testo;
  // Seconds since 1970 (UTC) of the save.
  int64_t creata = 0;
};

// The file of the forecasts beside the agenda's file `file_agenda`.
std::filesystem::path FilePrevisioniAccanto(const std::filesystem::path& file_agenda);

// An Italian sentence for what makes `previsione` unfit to store; none when it is fit.
Esito<Fatto> ControllaPrevisione(const Previsione& previsione);

class ArchivioPrevisioni {
 public:
  // Opens the file, creating it when absent. A file that is not ours, is damaged or of a newer
  // version is refused with an Italian message naming it, and is left untouched.
  static Esito<ArchivioPrevisioni> Apri(const std::filesystem::path& file);

  // Stores a forecast that ControllaPrevisione accepts (its id and time are ignored); gives its id.
  Esito<int64_t> Aggiungi(const Previsione& previsione);
  // Every forecast, by id; a record that no longer makes a forecast fails with its id.
  Esito<std::vector<Previsione>> Elenco() const;
  // Removes the forecasts `ids` all together, or none when one is unknown.
  Esito<Fatto> Rimuovi(const std::vector<int64_t>& ids);

  const std::filesystem::path& File() const { return m_connessione.File(); }

 private:
  explicit ArchivioPrevisioni(agenda::Connessione connessione) : m_connessione(std::move(connessione)) {}

  agenda::Connessione m_connessione;
};

}  // namespace lottolab::previsioni
