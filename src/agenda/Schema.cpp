#include "Schema.h"

#include <fmt/format.h>

namespace lottolab::agenda {

namespace {

// Version 1: the bets, what they play, and their checks draw by draw. Dates are "AAAA-MM-GG",
// money is in cents. What belongs to a bet goes with it when it is removed.
constexpr std::string_view kVersione1 = R"(
CREATE TABLE giocate (
  id INTEGER PRIMARY KEY,
  gioco TEXT NOT NULL CHECK (gioco IN ('LO', 'SE', 'DL', 'WF')),
  numero_speciale INTEGER NOT NULL DEFAULT 0,
  dal TEXT,
  id_estr_dal INTEGER,
  colpi INTEGER NOT NULL CHECK (colpi >= 1),
  ferma_alla_vincita INTEGER NOT NULL CHECK (ferma_alla_vincita IN (0, 1)),
  nota TEXT NOT NULL DEFAULT '',
  creata INTEGER NOT NULL,
  CHECK (dal IS NOT NULL OR id_estr_dal IS NOT NULL)
);
CREATE TABLE numeri (
  giocata INTEGER NOT NULL REFERENCES giocate (id) ON DELETE CASCADE,
  colonna INTEGER NOT NULL,
  posizione INTEGER NOT NULL,
  numero INTEGER NOT NULL CHECK (numero >= 1),
  PRIMARY KEY (giocata, colonna, posizione)
) WITHOUT ROWID;
CREATE TABLE ruote (
  giocata INTEGER NOT NULL REFERENCES giocate (id) ON DELETE CASCADE,
  ordine INTEGER NOT NULL,
  ruota INTEGER NOT NULL,
  PRIMARY KEY (giocata, ordine)
) WITHOUT ROWID;
CREATE TABLE poste (
  giocata INTEGER NOT NULL REFERENCES giocate (id) ON DELETE CASCADE,
  ordine INTEGER NOT NULL,
  sorte TEXT NOT NULL,
  centesimi INTEGER NOT NULL CHECK (centesimi > 0),
  PRIMARY KEY (giocata, ordine)
) WITHOUT ROWID;
CREATE TABLE progressione (
  giocata INTEGER NOT NULL REFERENCES giocate (id) ON DELETE CASCADE,
  colpo INTEGER NOT NULL,
  fattore INTEGER NOT NULL CHECK (fattore >= 1),
  PRIMARY KEY (giocata, colpo)
) WITHOUT ROWID;
CREATE TABLE verifiche (
  giocata INTEGER NOT NULL REFERENCES giocate (id) ON DELETE CASCADE,
  colpo INTEGER NOT NULL,
  id_estr INTEGER NOT NULL,
  data TEXT NOT NULL,
  spesa INTEGER NOT NULL,
  lordo INTEGER NOT NULL,
  ritenuta INTEGER NOT NULL,
  netto INTEGER NOT NULL,
  PRIMARY KEY (giocata, colpo)
) WITHOUT ROWID;
CREATE TABLE vincite (
  giocata INTEGER NOT NULL,
  colpo INTEGER NOT NULL,
  ordine INTEGER NOT NULL,
  ruota INTEGER NOT NULL,
  sorte TEXT NOT NULL,
  numeri TEXT NOT NULL,
  combinazioni INTEGER NOT NULL,
  lordo INTEGER NOT NULL,
  PRIMARY KEY (giocata, colpo, ordine),
  FOREIGN KEY (giocata, colpo) REFERENCES verifiche (giocata, colpo) ON DELETE CASCADE
) WITHOUT ROWID;
)";

// Version 2: what the user has already seen. Wins checked before the marker existed count as seen,
// so that the first look after the upgrade is not flooded with old news.
constexpr std::string_view kVersione2 = R"(
ALTER TABLE vincite ADD COLUMN vista INTEGER NOT NULL DEFAULT 1;
CREATE TABLE stato (chiave TEXT PRIMARY KEY, valore INTEGER NOT NULL);
CREATE INDEX vincite_non_viste ON vincite (vista) WHERE vista = 0;
)";

// Version 3: the wins whose money is not known (a pool prize without its quota) say so, rather
// than passing for wins of nothing. Every win stored before was a Lotto win, always priced.
constexpr std::string_view kVersione3 = R"(
ALTER TABLE vincite ADD COLUMN importo_noto INTEGER NOT NULL DEFAULT 1 CHECK (importo_noto IN (0, 1));
)";

// Version 4: the quotas the user read for a category of a pool game's draw, by the draw's index and
// date in its game's archive.
constexpr std::string_view kVersione4 = R"(
CREATE TABLE quote (
  gioco TEXT NOT NULL CHECK (gioco IN ('SE', 'WF')),
  id_estr INTEGER NOT NULL,
  data TEXT NOT NULL,
  sorte TEXT NOT NULL,
  centesimi INTEGER NOT NULL CHECK (centesimi > 0),
  PRIMARY KEY (gioco, id_estr, sorte)
) WITHOUT ROWID;
)";

std::string Nome(const Connessione& connessione) { return connessione.File().string(); }

Avviso NonUnAgenda(const Connessione& connessione, std::string_view perche) {
  return AvvisoEsclamativo(
      fmt::format("il file {} non è un'agenda delle giocate ({}): non viene modificato", Nome(connessione), perche));
}

Esito<Fatto> Migra(const Connessione& connessione) {
  return connessione.InTransazione([&]() -> Esito<Fatto> {
    // Read again under the write lock: another program may have migrated the file meanwhile.
    auto versione = connessione.Intero("PRAGMA user_version");
    if (!versione) return versione.Errore();
    for (int v = static_cast<int>(*versione); v < VersioneSchema(); ++v)
      if (auto fatto = connessione.Esegui(Migrazioni()[static_cast<size_t>(v)]); !fatto) return fatto;
    return connessione.Esegui(
        fmt::format("PRAGMA application_id = {}; PRAGMA user_version = {};", kIdApplicazione, VersioneSchema()));
  });
}

}  // namespace

const std::vector<std::string_view>& Migrazioni() {
  static const std::vector<std::string_view> kMigrazioni = {kVersione1, kVersione2, kVersione3, kVersione4};
  return kMigrazioni;
}

Esito<Fatto> PreparaSchema(const Connessione& connessione) {
  // The first read is where SQLite finds out that the file is no database at all.
  auto id = connessione.Intero("PRAGMA application_id");
  if (!id) return NonUnAgenda(connessione, "è danneggiato o non è un database SQLite");
  auto controllo = connessione.Prepara("PRAGMA quick_check");
  if (!controllo) return NonUnAgenda(connessione, "è danneggiato");
  auto riga = controllo->Passo();
  if (!riga || !*riga || controllo->Testo(0) != "ok") return NonUnAgenda(connessione, "è danneggiato");

  auto versione = connessione.Intero("PRAGMA user_version");
  auto tabelle = connessione.Intero("SELECT COUNT(*) FROM sqlite_schema");
  if (!versione) return versione.Errore();
  if (!tabelle) return tabelle.Errore();
  const bool vuoto = *versione == 0 && *tabelle == 0;
  if (*id != kIdApplicazione && !vuoto) return NonUnAgenda(connessione, "è un database di un altro programma");
  if (*versione > VersioneSchema())
    return AvvisoEsclamativo(fmt::format(
        "l'agenda delle giocate {} è di una versione più recente del programma (schema {}, questa versione legge "
        "fino allo schema {}): aggiornare il programma; il file non viene modificato",
        Nome(connessione), *versione, VersioneSchema()));
  if (*versione < VersioneSchema())
    if (auto fatto = Migra(connessione); !fatto) return fatto;
  return connessione.Esegui("PRAGMA foreign_keys = ON");
}

}  // namespace lottolab::agenda
