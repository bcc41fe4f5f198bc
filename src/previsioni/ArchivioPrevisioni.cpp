#include "ArchivioPrevisioni.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <optional>
#include <set>

#include "archive/FileSicuri.h"

namespace lottolab::previsioni {

namespace fs = std::filesystem;

namespace {

constexpr int64_t kIdApplicazione = 0x4C4C5056;  // "LLPV"
constexpr int kVersioneSchema = 1;

constexpr std::string_view kSchema = R"(
CREATE TABLE previsioni (
  id INTEGER PRIMARY KEY,
  numeri TEXT NOT NULL,
  ruote TEXT NOT NULL,
  id_estr INTEGER NOT NULL CHECK (id_estr >= 0),
  colpi INTEGER NOT NULL CHECK (colpi >= 1),
  testo TEXT NOT NULL DEFAULT '',
  creata INTEGER NOT NULL
);
)";

std::string TestoInteri(const std::vector<int>& valori) { return fmt::format("{}", fmt::join(valori, " ")); }

std::optional<std::vector<int>> InteriDaTesto(std::string_view testo) {
  std::vector<int> valori;
  const char* p = testo.data();
  const char* fine = testo.data() + testo.size();
  while (p < fine) {
    int valore = 0;
    auto [dopo, ec] = std::from_chars(p, fine, valore);
    if (ec != std::errc() || (dopo < fine && *dopo != ' ')) return std::nullopt;
    valori.push_back(valore);
    p = dopo + (dopo < fine ? 1 : 0);
  }
  return valori;
}

Avviso NonNostro(const fs::path& file, std::string_view perche) {
  return AvvisoEsclamativo(
      fmt::format("il file {} non è un archivio delle previsioni ({}): non viene modificato", file.string(), perche));
}

Esito<Fatto> PreparaSchema(const agenda::Connessione& connessione) {
  auto id = connessione.Intero("PRAGMA application_id");
  if (!id) return NonNostro(connessione.File(), "è danneggiato o non è un database SQLite");
  auto versione = connessione.Intero("PRAGMA user_version");
  auto tabelle = connessione.Intero("SELECT COUNT(*) FROM sqlite_schema");
  if (!versione) return versione.Errore();
  if (!tabelle) return tabelle.Errore();
  if (*versione == 0 && *tabelle == 0)
    return connessione.InTransazione([&]() -> Esito<Fatto> {
      // Read again under the write lock: another program may have created it meanwhile.
      auto ancora = connessione.Intero("SELECT COUNT(*) FROM sqlite_schema");
      if (!ancora) return ancora.Errore();
      if (*ancora != 0) return Fatto{};
      if (auto fatto = connessione.Esegui(kSchema); !fatto) return fatto;
      return connessione.Esegui(
          fmt::format("PRAGMA application_id = {}; PRAGMA user_version = {};", kIdApplicazione, kVersioneSchema));
    });
  if (*id != kIdApplicazione) return NonNostro(connessione.File(), "è un database di un altro programma");
  if (*versione > kVersioneSchema)
    return AvvisoEsclamativo(fmt::format(
        "l'archivio delle previsioni {} è di una versione più recente del programma: aggiornare il programma; il "
        "file non viene modificato",
        connessione.File().string()));
  return Fatto{};
}

// The characters of a UTF-8 text: its bytes but the continuation ones.
size_t Caratteri(std::string_view testo) {
  return static_cast<size_t>(
      std::count_if(testo.begin(), testo.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

template <typename T>
bool TuttiDiversi(const std::vector<T>& valori) {
  return std::set<T>(valori.begin(), valori.end()).size() == valori.size();
}

}  // namespace

fs::path FilePrevisioniAccanto(const fs::path& file_agenda) { return file_agenda.parent_path() / kFilePrevisioni; }

Esito<Fatto> ControllaPrevisione(const Previsione& p) {
  if (p.numeri.empty() || p.numeri.size() > 90) return AvvisoEsclamativo("una previsione ha da 1 a 90 numeri");
  for (int n : p.numeri)
    if (n < 1 || n > 90) return AvvisoEsclamativo(fmt::format("il numero {} non è tra 1 e 90", n));
  if (!TuttiDiversi(p.numeri)) return AvvisoEsclamativo("i numeri di una previsione devono essere tutti diversi");
  if (p.ruote.empty()) return AvvisoEsclamativo("una previsione ha almeno una ruota");
  for (int r : p.ruote)
    if (r < 1 || r > 11) return AvvisoEsclamativo(fmt::format("la ruota {} non esiste", r));
  if (!TuttiDiversi(p.ruote)) return AvvisoEsclamativo("le ruote di una previsione devono essere tutte diverse");
  if (p.id_estr < 0) return AvvisoEsclamativo(fmt::format("l'estrazione {} non esiste", p.id_estr));
  if (p.colpi < 1 || p.colpi > kMassimiColpi)
    return AvvisoEsclamativo(fmt::format("i colpi di una previsione vanno da 1 a {}, non {}", kMassimiColpi, p.colpi));
  if (Caratteri(p.testo) > kMassimaLunghezzaTesto)
    return AvvisoEsclamativo(fmt::format("il testo di una previsione ha al più {} caratteri", kMassimaLunghezzaTesto));
  return Fatto{};
}

Esito<ArchivioPrevisioni> ArchivioPrevisioni::Apri(const fs::path& file) {
  // An absent file becomes a new archive; a folder, a device or a pipe in its place is refused.
  if (auto ordinario = VerificaFileOrdinario(file);
      !ordinario && ordinario.Errore().genere != GuastoFile::Genere::Assente)
    return AvvisoEsclamativo(
        fmt::format("l'archivio delle previsioni {} non si può aprire: {}", file.string(), ordinario.Errore().motivo));
  auto connessione = agenda::Connessione::Apri(file);
  if (!connessione) return connessione.Errore();
  if (auto schema = PreparaSchema(*connessione); !schema) return schema.Errore();
  return ArchivioPrevisioni(std::move(connessione).Valore());
}

Esito<int64_t> ArchivioPrevisioni::Aggiungi(const Previsione& p) {
  if (auto valida = ControllaPrevisione(p); !valida) return valida.Errore();
  return m_connessione.InTransazione([&]() -> Esito<int64_t> {
    auto riga = m_connessione.Prepara(
        "INSERT INTO previsioni (numeri, ruote, id_estr, colpi, testo, creata) "
        "VALUES (?, ?, ?, ?, ?, CAST(strftime('%s', 'now') AS INTEGER)) RETURNING id");
    if (!riga) return riga.Errore();
    riga->Lega(1, TestoInteri(p.numeri)).Lega(2, TestoInteri(p.ruote)).Lega(3, p.id_estr).Lega(4, p.colpi);
    riga->Lega(5, p.testo);
    auto passo = riga->Passo();
    if (!passo) return passo.Errore();
    const int64_t id = riga->Intero(0);
    if (auto fine = riga->Passo(); !fine) return fine.Errore();
    return id;
  });
}

Esito<std::vector<Previsione>> ArchivioPrevisioni::Elenco() const {
  return m_connessione.InLettura([&]() -> Esito<std::vector<Previsione>> {
    auto righe =
        m_connessione.Prepara("SELECT id, numeri, ruote, id_estr, colpi, testo, creata FROM previsioni ORDER BY id");
    if (!righe) return righe.Errore();
    std::vector<Previsione> elenco;
    while (true) {
      auto passo = righe->Passo();
      if (!passo) return passo.Errore();
      if (!*passo) break;
      Previsione p;
      p.id = righe->Intero(0);
      auto numeri = InteriDaTesto(righe->Testo(1));
      auto ruote = InteriDaTesto(righe->Testo(2));
      const int64_t id_estr = righe->Intero(3);
      const int64_t colpi = righe->Intero(4);
      if (numeri) p.numeri = std::move(*numeri);
      if (ruote) p.ruote = std::move(*ruote);
      p.id_estr = static_cast<int>(std::clamp<int64_t>(id_estr, -1, INT32_MAX));
      p.colpi = static_cast<int>(std::clamp<int64_t>(colpi, 0, INT32_MAX));
      p.testo = righe->Testo(5);
      p.creata = righe->Intero(6);
      if (!numeri || !ruote || !ControllaPrevisione(p))
        return AvvisoEsclamativo(
            fmt::format("la previsione {} dell'archivio {} è danneggiata", p.id, m_connessione.File().string()));
      elenco.push_back(std::move(p));
    }
    return elenco;
  });
}

Esito<Fatto> ArchivioPrevisioni::Rimuovi(const std::vector<int64_t>& ids) {
  return m_connessione.InTransazione([&]() -> Esito<Fatto> {
    auto elimina = m_connessione.Prepara("DELETE FROM previsioni WHERE id = ?");
    if (!elimina) return elimina.Errore();
    for (int64_t id : ids) {
      elimina->Reimposta();
      elimina->Lega(1, id);
      if (auto fatto = elimina->Esegui(); !fatto) return fatto;
      auto tolte = m_connessione.Intero("SELECT changes()");
      if (!tolte) return tolte.Errore();
      if (*tolte == 0) return AvvisoEsclamativo(fmt::format("la previsione {} non è nell'archivio", id));
    }
    return Fatto{};
  });
}

}  // namespace lottolab::previsioni
