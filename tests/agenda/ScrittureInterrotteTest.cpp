// Writers of the agenda killed at random points. A child adds, checks and removes bets in a loop
// until it is killed; the parent then requires a sound database in which every bet is whole: the
// bet as the child built it, and its check one complete set of results, never a part of one.

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <iostream>
#include <random>
#include <string>
#include <thread>

#include "TempDir.h"
#include "agenda/Agenda.h"

namespace lottolab::agenda {
namespace {

namespace fs = std::filesystem;

// The bet of seed `s`: its shape varies with the seed, which its note carries, so that the reader
// can tell what the whole bet must be.
Giocata GiocataDaSeme(unsigned s) {
  Giocata giocata;
  for (unsigned c = 0; c < s % 3 + 1; ++c) {
    giocata.colonne.emplace_back();
    for (unsigned p = 0; p < s % 4 + 2; ++p)
      giocata.colonne.back().push_back(static_cast<int>((s + 7 * c + 11 * p) % 90 + 1));
  }
  giocata.ruote = s % 2 ? std::vector<int>{BA, CA, FI} : std::vector<int>{kTutteLeRuote};
  giocata.poste = {{"estratto", 5 + s % 100}, {"ambo", 100}};
  giocata.id_estr_dal = static_cast<int>(s % 1000 + 1);
  giocata.colpi = 5;
  if (s % 2) giocata.progressione = {1, 2, 3, 4, 5};
  giocata.nota = std::to_string(s);
  return giocata;
}

// A check of `m` draws: every draw says m in its spending, and the even draws win.
std::vector<VerificaColpo> VerificaDaSeme(unsigned m) {
  std::vector<VerificaColpo> verifiche;
  for (unsigned k = 0; k < m; ++k) {
    VerificaColpo colpo{static_cast<int>(k + 1),
                        GruppoData{0, static_cast<int16_t>(k + 1), 3, 2024},
                        static_cast<int64_t>(m) * 100 + k,
                        0,
                        0,
                        0,
                        {}};
    if (k % 2 == 0) {
      colpo.lordo = colpo.netto = m;
      colpo.vincite.push_back(VincitaColpo{BA, "estratto", {static_cast<int>(k + 1)}, 1, m});
    }
    verifiche.push_back(colpo);
  }
  return verifiche;
}

// The child's loop; it returns only when something fails.
int ScriviSenzaFine(const fs::path& file, unsigned seme) {
  auto aperta = Agenda::Apri(file);
  if (!aperta) return 1;
  Agenda agenda = std::move(aperta).Valore();
  std::mt19937 caso(seme);
  auto elenco = agenda.Elenco();
  if (!elenco) return 2;
  std::vector<int64_t> id;
  for (const VoceAgenda& voce : *elenco) id.push_back(voce.giocata.id);
  for (;;) {
    const unsigned scelta = caso() % 10;
    if (scelta < 4 || id.empty()) {
      auto nuovo = agenda.Aggiungi(GiocataDaSeme(caso()));
      if (!nuovo) return 3;
      id.push_back(*nuovo);
    } else if (scelta < 8) {
      if (!agenda.SalvaVerifiche(id[caso() % id.size()], VerificaDaSeme(caso() % 6))) return 4;
    } else if (scelta < 9 || id.size() > 20) {
      const size_t quale = caso() % id.size();
      if (!agenda.Rimuovi(id[quale])) return 5;
      id.erase(id.begin() + static_cast<std::ptrdiff_t>(quale));
    } else if (!agenda.SegnaVisione()) {
      return 6;
    }
  }
}

// What SQLite itself says of the file: its pages and its foreign keys.
std::string ControlloSqlite(const fs::path& file) {
  sqlite3* db = nullptr;
  std::string esito;
  if (sqlite3_open(file.c_str(), &db) != SQLITE_OK) return "not opened";
  auto righe = [&](const char* sql) {
    sqlite3_stmt* istruzione = nullptr;
    std::string testo;
    if (sqlite3_prepare_v2(db, sql, -1, &istruzione, nullptr) != SQLITE_OK) return std::string("not prepared");
    while (sqlite3_step(istruzione) == SQLITE_ROW)
      testo += std::string(reinterpret_cast<const char*>(sqlite3_column_text(istruzione, 0)) ?: "") + ";";
    sqlite3_finalize(istruzione);
    return testo;
  };
  esito = righe("PRAGMA integrity_check") + righe("PRAGMA foreign_key_check");
  sqlite3_close(db);
  return esito;
}

TEST(ScrittureInterrotte, UnoScrittoreUccisoLasciaOgniGiocataIntera) {
  constexpr int kProve = 30;
  lottolab::test::CartellaTemporanea cartella;
  const fs::path file = cartella / "AgendaGiocate.db";
  std::mt19937 caso(20261125);
  int interrotte_a_meta = 0, giocate_viste = 0, verifiche_viste = 0;
  for (int prova = 0; prova < kProve; ++prova) {
    const unsigned seme = caso();
    const pid_t pid = fork();
    if (pid == 0) _exit(ScriviSenzaFine(file, seme));
    std::this_thread::sleep_for(std::chrono::microseconds(caso() % 80000));
    kill(pid, SIGKILL);
    int stato = 0;
    waitpid(pid, &stato, 0);
    ASSERT_TRUE(WIFSIGNALED(stato)) << "the writer stopped by itself with status " << WEXITSTATUS(stato);
    if (fs::exists(fs::path(file.string() + "-journal")) && fs::file_size(file.string() + "-journal") > 0)
      ++interrotte_a_meta;

    ASSERT_EQ(ControlloSqlite(file), "ok;") << "trial " << prova;
    auto agenda = Agenda::Apri(file);
    ASSERT_TRUE(agenda) << agenda.Errore().testo;
    auto elenco = agenda->Elenco();
    ASSERT_TRUE(elenco) << "every bet reads back as a valid one: " << elenco.Errore().testo;
    for (const VoceAgenda& voce : *elenco) {
      Giocata attesa = GiocataDaSeme(static_cast<unsigned>(std::stoul(voce.giocata.nota)));
      attesa.id = voce.giocata.id;
      attesa.creata = voce.giocata.creata;
      ASSERT_EQ(voce.giocata, attesa) << "bet " << attesa.id << " in trial " << prova;
      auto verifiche = agenda->Verifiche(voce.giocata.id);
      ASSERT_TRUE(verifiche) << verifiche.Errore().testo;
      if (!verifiche->empty()) {
        ASSERT_EQ(*verifiche, VerificaDaSeme(static_cast<unsigned>(verifiche->size())))
            << "bet " << attesa.id << " in trial " << prova;
        ++verifiche_viste;
      }
      ++giocate_viste;
    }
  }
  std::cout << "killed agenda writers: " << kProve << " trials, " << interrotte_a_meta
            << " killed inside a transaction, " << giocate_viste << " bets and " << verifiche_viste
            << " checks found whole\n";
  EXPECT_GT(interrotte_a_meta, 0) << "the delays must catch writes under way";
  EXPECT_GT(verifiche_viste, 0);
}

}  // namespace
}  // namespace lottolab::agenda
