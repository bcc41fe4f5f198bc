#include <sys/stat.h>
#include <unistd.h>

#include "LottolabDiProva.h"

namespace lottolab::cli {
namespace {

namespace fs = std::filesystem;

using ConfiniTest = LottolabDiProva;

// Paths that the system refuses or that name the wrong kind of file, in every place a command takes
// a path: whatever the command, the answer is one Italian line on stderr and a failure status,
// never an abort.
TEST_F(ConfiniTest, OgniPercorsoRifiutatoDiventaUnaRigaDiErrore) {
  const std::string cartella = m_base.Percorso().string();
  const std::string lungo = (m_base.Percorso() / std::string(5000, 'n')).string();
  const std::string sotto_un_file = (m_base.Percorso() / "file" / "x.dat").string();
  { std::ofstream(m_base.Percorso() / "file") << "x"; }

  const std::vector<std::vector<std::string>> comandi = {
      {"--archivio", cartella, "info"},
      {"--archivio", "/dev/null", "info"},
      {"--archivio", lungo, "info"},
      {"--archivio", lungo, "importa", cartella},
      {"--archivio", sotto_un_file, "importa", cartella},
      {"importa", lungo},
      {"importa", cartella},
      {"struttura", cartella},
      {"struttura", lungo},
      {"struttura", "/dev/null"},
      {"cerca-figura", cartella},
      {"esegui", lungo},
      {"vbs", lungo},
      {"nuovo-script", lungo},
      {"nuovo-script", sotto_un_file},
      {"funzioni", "--html", cartella},
      {"funzioni", "--html", lungo},
  };
  for (const auto& parole : comandi) {
    Uscita uscita = Lottolab(parole);
    std::string comando;
    for (const std::string& parola : parole) comando += parola.substr(0, 40) + " ";
    EXPECT_NE(uscita.codice, 0) << comando;
    EXPECT_TRUE(uscita.err.starts_with("lottolab: ")) << comando << "\n" << uscita.err;
    EXPECT_EQ(std::count(uscita.err.begin(), uscita.err.end(), '\n'), 1) << comando << "\n" << uscita.err;
  }
}

// A base folder that cannot be read stops every command before it starts, saying which file.
TEST_F(ConfiniTest, UnaCartellaBaseIllegibileSiDiceSubito) {
  { std::ofstream(m_base.Percorso() / "file") << "x"; }
  setenv("LOTTOLAB_HOME", (m_base.Percorso() / "file").c_str(), 1);
  Uscita uscita = Lottolab({"info"});
  EXPECT_NE(uscita.codice, 0);
  EXPECT_NE(uscita.err.find("Impossibile leggere il file di configurazione"), std::string::npos) << uscita.err;
  EXPECT_NE(uscita.err.find("una parte del percorso non è una cartella"), std::string::npos) << uscita.err;

  // Permissions bind only an ordinary user: root reads a folder whatever its mode.
  if (geteuid() == 0) return;
  fs::create_directory(m_base.Percorso() / "chiusa");
  setenv("LOTTOLAB_HOME", (m_base.Percorso() / "chiusa").c_str(), 1);
  ASSERT_EQ(chmod((m_base.Percorso() / "chiusa").c_str(), 0), 0);
  uscita = Lottolab({"info"});
  chmod((m_base.Percorso() / "chiusa").c_str(), 0700);
  EXPECT_NE(uscita.codice, 0);
  EXPECT_NE(uscita.err.find("permesso negato"), std::string::npos) << uscita.err;
}

}  // namespace
}  // namespace lottolab::cli
