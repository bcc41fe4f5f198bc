// Archive writes killed at random points, and imports run side by side. Each trial forks a child
// that writes, kills it after a random delay, and requires the archive to be the state before the
// write or the state after it: never a mixture, never a partial record.

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "TempDir.h"
#include "archive/ClsEstrazioni.h"
#include "archive/ImportaRisultati.h"

namespace lottolab {
namespace {

namespace fs = std::filesystem;
using Byte = std::vector<unsigned char>;
using test::CartellaTemporanea;
using test::LeggiByte;
using test::ScriviByte;

// A results file of `estrazioni` draws on every wheel, two or three days apart from 1939, with
// numbers that vary from draw to draw; long enough that an import takes a measurable time.
std::string RisultatiSintetici(int estrazioni) {
  std::string testo;
  std::mt19937 caso(7);
  GruppoData data{0, 7, 1, 1939};
  for (int k = 0; k < estrazioni; ++k) {
    for (int ruota = 1; ruota <= kNumeroRuote; ++ruota) {
      std::vector<int> numeri(90);
      for (int n = 0; n < 90; ++n) numeri[n] = n + 1;
      std::shuffle(numeri.begin(), numeri.end(), caso);
      testo += fmt::format("{:04}/{:02}/{:02}\t{}\t{}\t{}\t{}\t{}\t{}\n", data.anno, data.mese, data.giorno,
                           SiglaRuota(ruota), numeri[0], numeri[1], numeri[2], numeri[3], numeri[4]);
    }
    data.giorno = static_cast<int16_t>(data.giorno + 2 + k % 2);
    if (!DataValida(data)) {
      data.giorno = 1;
      if (++data.mese > 12) {
        data.mese = 1;
        ++data.anno;
      }
    }
  }
  return testo;
}

void ScriviTesto(const fs::path& file, const std::string& testo) { ScriviByte(file, Byte(testo.begin(), testo.end())); }

// Runs `lavoro` in a child process, which exits with the status it returns.
template <typename F>
pid_t Figlio(F lavoro) {
  pid_t pid = fork();
  if (pid == 0) _exit(lavoro());
  return pid;
}

int Attendi(pid_t pid) {
  int stato = 0;
  waitpid(pid, &stato, 0);
  return WIFEXITED(stato) ? WEXITSTATUS(stato) : -WTERMSIG(stato);
}

class ScrittureInterrotte : public testing::Test {
 protected:
  void SetUp() override {
    // The states before and after an import of the last 500 draws.
    ScriviTesto(m_cartella / "prima.txt", RisultatiSintetici(kPrima));
    ScriviTesto(m_risultati, RisultatiSintetici(kTutte));
    ClsEstrazioni prima(m_cartella / "prima.dat");
    ASSERT_TRUE(ImportaRisultati(prima, m_cartella / "prima.txt"));
    m_prima = LeggiByte(prima.Archivio());
    // The import is timed as the trials run it: in a child, from the fork to its end.
    ScriviByte(m_archivio, m_prima);
    const auto inizio = std::chrono::steady_clock::now();
    ASSERT_EQ(Attendi(Figlio([&] {
                ClsEstrazioni archivio(m_archivio);
                return ImportaRisultati(archivio, m_risultati).Riuscito() ? 0 : 1;
              })),
              0);
    m_durata_importazione = std::chrono::steady_clock::now() - inizio;
    m_dopo = LeggiByte(m_archivio);
    ASSERT_EQ(m_dopo.size(), size_t{kTutte} * kByteRecordArchivio);
  }

  static constexpr int kPrima = 6000;
  static constexpr int kTutte = 6500;
  CartellaTemporanea m_cartella;
  fs::path m_archivio = m_cartella / "BaseDati.dat";
  fs::path m_risultati = m_cartella / "risultati.txt";
  Byte m_prima, m_dopo;
  std::chrono::steady_clock::duration m_durata_importazione{};
  std::mt19937 m_caso{20261124};
};

TEST_F(ScrittureInterrotte, UnaImportazioneUccisaLasciaLArchivioDiPrimaODiDopo) {
  constexpr int kProve = 100;
  int cattivi = 0, interrotte = 0, completate = 0;
  // Delays spread over the whole import and a little past it, so that kills land in the reading,
  // the parsing, the writing aside and the rename alike.
  const auto fino_a = std::chrono::duration_cast<std::chrono::microseconds>(m_durata_importazione) * 6 / 5;
  for (int prova = 0; prova < kProve; ++prova) {
    ScriviByte(m_archivio, m_prima);
    pid_t pid = Figlio([&] {
      ClsEstrazioni archivio(m_archivio);
      return ImportaRisultati(archivio, m_risultati).Riuscito() ? 0 : 1;
    });
    std::this_thread::sleep_for(std::chrono::microseconds(m_caso() % (fino_a.count() + 1)));
    kill(pid, SIGKILL);
    int uscita = Attendi(pid);
    if (uscita == -SIGKILL)
      ++interrotte;
    else
      EXPECT_EQ(uscita, 0);
    const Byte ora = LeggiByte(m_archivio);
    if (ora == m_dopo) ++completate;
    if (ora != m_prima && ora != m_dopo) {
      ++cattivi;
      ADD_FAILURE() << "trial " << prova << ": " << ora.size() << " bytes, neither before nor after";
    }
  }
  std::cout << "killed imports: " << kProve << " trials, " << interrotte << " killed before exiting, " << completate
            << " with the draws written, " << cattivi << " bad files\n";
  EXPECT_EQ(cattivi, 0);
  EXPECT_GT(interrotte, kProve / 4) << "the delays must catch imports under way";
  EXPECT_GT(completate, 0) << "the delays must reach the end of the write too";

  // A kill lets the lock go: the next import completes the archive.
  ClsEstrazioni archivio(m_archivio);
  ASSERT_TRUE(ImportaRisultati(archivio, m_risultati));
  EXPECT_EQ(LeggiByte(m_archivio), m_dopo);
}

TEST_F(ScrittureInterrotte, UnaRiscritturaUccisaLasciaUnRecordIntero) {
  constexpr int kProve = 100;
  // The child rewrites the last draw over and over with one of two versions of it.
  const Estrazione originale = DecodificaRecord(m_dopo.data() + m_dopo.size() - kByteRecordArchivio);
  std::vector<Byte> ammessi;
  std::vector<Estrazione> versioni;
  for (int v = 0; v < 2; ++v) {
    Estrazione versione = originale;
    versione.ImpostaNumero(BA, 5, v == 0 ? 0 : originale.Numero(BA, 5));
    for (int p = 1; p <= kNumeriPerRuota; ++p) versione.ImpostaNumero(VE, p, 10 * v + p);
    versioni.push_back(versione);
    Byte stato = m_dopo;
    CodificaRecord(versione, stato.data() + stato.size() - kByteRecordArchivio);
    ammessi.push_back(stato);
  }
  ammessi.push_back(m_dopo);

  int cattivi = 0;
  for (int prova = 0; prova < kProve; ++prova) {
    ScriviByte(m_archivio, m_dopo);
    pid_t pid = Figlio([&] {
      ClsEstrazioni archivio(m_archivio);
      for (int i = 0;; ++i)
        if (!archivio.ScriviEstrazione(versioni[i % 2], kTutte)) return 1;
    });
    std::this_thread::sleep_for(std::chrono::microseconds(m_caso() % 20000));
    kill(pid, SIGKILL);
    EXPECT_EQ(Attendi(pid), -SIGKILL) << "the writing loop stopped by itself";
    if (std::find(ammessi.begin(), ammessi.end(), LeggiByte(m_archivio)) == ammessi.end()) ++cattivi;
  }
  std::cout << "killed rewrites: " << kProve << " trials, " << cattivi << " bad files\n";
  EXPECT_EQ(cattivi, 0);
}

TEST_F(ScrittureInterrotte, DueImportazioniInsiemeNonRaddoppianoNulla) {
  for (bool da_vuoto : {true, false}) {
    for (int giro = 0; giro < 3; ++giro) {
      fs::remove(m_archivio);
      if (!da_vuoto) ScriviByte(m_archivio, m_prima);
      // Both children start together when the parent closes the pipe they wait on.
      int via[2];
      ASSERT_EQ(pipe(via), 0);
      std::vector<pid_t> figli;
      for (int i = 0; i < 2; ++i) {
        figli.push_back(Figlio([&] {
          close(via[1]);
          char c;
          (void)!read(via[0], &c, 1);
          ClsEstrazioni archivio(m_archivio);
          auto aggiunte = ImportaRisultati(archivio, m_risultati);
          return aggiunte ? (*aggiunte == 0 ? 10 : 20) : 1;
        }));
      }
      close(via[0]);
      close(via[1]);
      std::vector<int> uscite{Attendi(figli[0]), Attendi(figli[1])};
      std::sort(uscite.begin(), uscite.end());
      EXPECT_EQ(uscite, (std::vector<int>{10, 20})) << "one import adds the draws, the other finds them there";
      EXPECT_EQ(LeggiByte(m_archivio), m_dopo);
    }
  }
}

}  // namespace
}  // namespace lottolab
