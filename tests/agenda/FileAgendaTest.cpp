// The agenda's file from outside: an older version brought up to date, and the files it must refuse
// without writing a byte of them.

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "AgendaDiProva.h"
#include "TempDir.h"
#include "agenda/Schema.h"

namespace lottolab::agenda {
namespace {

namespace fs = std::filesystem;
using lottolab::test::CartellaTemporanea;
using lottolab::test::Leggi;
using lottolab::test::Scrivi;

// Runs SQL on a file with SQLite alone, as another program or an older release would.
void EseguiSql(const fs::path& file, const std::string& sql) {
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open(file.c_str(), &db), SQLITE_OK);
  char* errore = nullptr;
  EXPECT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &errore), SQLITE_OK) << (errore ? errore : "");
  sqlite3_free(errore);
  sqlite3_close(db);
}

class FileAgenda : public testing::Test {
 protected:
  // Opening must fail with `messaggio` and leave the file's bytes as they were.
  void Rifiutato(const std::string& messaggio) {
    const std::string prima = Leggi(m_file);
    auto agenda = Agenda::Apri(m_file);
    ASSERT_FALSE(agenda);
    EXPECT_EQ(agenda.Errore().testo, messaggio);
    EXPECT_EQ(Leggi(m_file), prima);
  }

  CartellaTemporanea m_cartella;
  fs::path m_file = m_cartella / "AgendaGiocate.db";
};

TEST_F(FileAgenda, UnFileDellaVersione1EAggiornatoETenuto) {
  ASSERT_EQ(Migrazioni().size(), 4u) << "a new version needs a test that migrates from the one before";
  // A version-1 file as that release wrote it: one bet checked over two draws, the second a win.
  EseguiSql(m_file, std::string(Migrazioni()[0]) + R"(
    INSERT INTO giocate VALUES (7, 'LO', 0, '2023-01-05', NULL, 10, 0, 'vecchia', 1700000000);
    INSERT INTO numeri VALUES (7, 1, 1, 12), (7, 1, 2, 34), (7, 1, 3, 56);
    INSERT INTO ruote VALUES (7, 1, 1), (7, 2, 10);
    INSERT INTO poste VALUES (7, 1, 'ambo', 100);
    INSERT INTO verifiche VALUES (7, 1, 100, '2023-01-05', 100, 0, 0, 0),
                                 (7, 2, 101, '2023-01-07', 100, 25000, 2000, 23000);
    INSERT INTO vincite VALUES (7, 2, 1, 1, 'ambo', '12 34', 1, 25000);
    PRAGMA application_id = 1280065863;
    PRAGMA user_version = 1;)");

  auto agenda = Agenda::Apri(m_file);
  ASSERT_TRUE(agenda) << agenda.Errore().testo;
  auto giocata = agenda->Carica(7);
  ASSERT_TRUE(giocata) << giocata.Errore().testo;
  EXPECT_EQ(giocata->colonne, (std::vector<std::vector<int>>{{12, 34, 56}}));
  EXPECT_EQ(giocata->ruote, (std::vector<int>{BA, VE}));
  EXPECT_EQ(giocata->nota, "vecchia");
  EXPECT_EQ(agenda->TotaliGiocata(7)->Saldo(), 23000 - 200);
  EXPECT_EQ(agenda->Verifiche(7)->at(1).vincite.at(0).numeri, (std::vector<int>{12, 34}));
  EXPECT_TRUE(agenda->Verifiche(7)->at(1).vincite.at(0).importo_noto) << "a win of before version 3 was priced";
  EXPECT_TRUE(agenda->VinciteNonViste()->empty()) << "wins from before the marker count as seen";

  // What versions 2 to 4 brought works on the migrated file.
  auto verifiche = test::Verifica(3, 100, {3}, 25000);
  verifiche[0].vincite.push_back(VincitaColpo{0, "punti 3", {12}, 1, 0, false});
  ASSERT_TRUE(agenda->SalvaVerifiche(7, verifiche));
  EXPECT_EQ(agenda->VinciteNonViste()->size(), 2u);
  EXPECT_FALSE(agenda->VinciteNonViste()->front().vincita.importo_noto);
  EXPECT_EQ(agenda->TotaliGiocata(7)->vincite_senza_importo, 1);
  ASSERT_TRUE(agenda->SalvaQuota({GiocoGiocata::SuperEnalotto, 100, {0, 5, 1, 2023}, "5+1", 123456}));
  EXPECT_EQ(agenda->Quote(GiocoGiocata::SuperEnalotto)->at(0).centesimi, 123456);
  const int64_t nuova = agenda->Aggiungi(test::GiocataLotto()).Valore();
  EXPECT_GT(nuova, 7);

  // Opened again, it is at the current version and nothing is migrated twice.
  agenda = Agenda::Apri(m_file);
  ASSERT_TRUE(agenda) << agenda.Errore().testo;
  EXPECT_EQ(agenda->Elenco()->size(), 2u);
}

TEST_F(FileAgenda, UnFileDiUnaVersionePiuRecenteERifiutato) {
  ASSERT_TRUE(Agenda::Apri(m_file));
  EseguiSql(m_file, "PRAGMA user_version = 5");
  Rifiutato(
      fmt::format("l'agenda delle giocate {} è di una versione più recente del programma (schema 5, questa "
                  "versione legge fino allo schema 4): aggiornare il programma; il file non viene modificato",
                  m_file.string()));
}

TEST_F(FileAgenda, IFileCheNonSonoUnAgendaSonoRifiutatiSenzaToccarli) {
  const std::string non_un_agenda = fmt::format("il file {} non è un'agenda delle giocate ", m_file.string());
  const std::string non_modificato = "): non viene modificato";

  Scrivi(m_file, "Questo non è un database ma il testo di una lettera.\n" + std::string(5000, 'x'));
  Rifiutato(non_un_agenda + "(è danneggiato o non è un database SQLite" + non_modificato);

  fs::remove(m_file);
  EseguiSql(m_file, "CREATE TABLE clienti (nome TEXT); INSERT INTO clienti VALUES ('Rossi');");
  Rifiutato(non_un_agenda + "(è un database di un altro programma" + non_modificato);

  // An agenda with a page overwritten in the middle of its data.
  fs::remove(m_file);
  {
    auto agenda = Agenda::Apri(m_file).Valore();
    for (int i = 0; i < 40; ++i) ASSERT_TRUE(agenda.Aggiungi(test::GiocataLotto()));
  }
  std::string byte = Leggi(m_file);
  ASSERT_GT(byte.size(), 3 * 4096u);
  for (size_t i = 2 * 4096 + 8; i < 3 * 4096; ++i) byte[i] = static_cast<char>(i * 7);
  Scrivi(m_file, byte);
  Rifiutato(non_un_agenda + "(è danneggiato" + non_modificato);

  // Cut short, as a copy that stopped half way.
  Scrivi(m_file, Leggi(m_file).substr(0, 100));
  Rifiutato(non_un_agenda + "(è danneggiato o non è un database SQLite" + non_modificato);

  fs::remove(m_file);
  fs::create_directory(m_file);
  auto cartella = Agenda::Apri(m_file);
  ASSERT_FALSE(cartella);
  EXPECT_EQ(cartella.Errore().testo,
            fmt::format("l'agenda delle giocate {} non si può aprire: è una cartella", m_file.string()));
}

TEST_F(FileAgenda, UnFileVuotoDiventaUnAgenda) {
  Scrivi(m_file, "");
  auto agenda = Agenda::Apri(m_file);
  ASSERT_TRUE(agenda) << agenda.Errore().testo;
  EXPECT_TRUE(agenda->Aggiungi(test::GiocataLotto()));
  auto dentro_cartella_assente = Agenda::Apri(m_cartella / "manca" / "AgendaGiocate.db");
  ASSERT_FALSE(dentro_cartella_assente);
  EXPECT_EQ(dentro_cartella_assente.Errore().testo, fmt::format("agenda delle giocate {}: non si può aprire",
                                                                (m_cartella / "manca" / "AgendaGiocate.db").string()));
}

}  // namespace
}  // namespace lottolab::agenda
