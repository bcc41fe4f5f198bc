#include <gtest/gtest.h>

#include <sys/stat.h>

#include <fstream>
#include <sstream>

#include "LottolabDiProva.h"

namespace lottolab::cli {
namespace {

namespace fs = std::filesystem;
using test::Leggi;

class ComandoEseguiTest : public LottolabDiProva {};

TEST_F(ComandoEseguiTest, ANewScriptFromTheTemplateRunsAndAnExistingFileIsKept) {
  const std::string file = (m_base / "nuovo.ls").string();
  ASSERT_EQ(Lottolab({"nuovo-script", file}).codice, 0);
  EXPECT_EQ(Leggi(file), "Option Explicit\n\nSub Main\n\nEnd Sub\n");
  auto uscita = Lottolab({"esegui", file});
  EXPECT_EQ(uscita.codice, 0) << uscita.err;
  EXPECT_EQ(uscita.out, "");

  std::ofstream(file, std::ios::binary) << "mio";
  auto ancora = Lottolab({"nuovo-script", file});
  EXPECT_EQ(ancora.codice, 2);
  EXPECT_EQ(Leggi(file), "mio");
}

TEST_F(ComandoEseguiTest, ThePageGoesWhereAsked) {
  const fs::path script = m_base / "s.ls";
  std::ofstream(script, std::ios::binary) << "Sub Main\r\nScrivi \"ciao\"\r\nEnd Sub\r\n";
  const fs::path pagina = m_base / "pagine" / "mia.htm";
  fs::create_directories(pagina.parent_path());
  auto uscita = Lottolab({"esegui", script.string(), "--html", pagina.string()});
  EXPECT_EQ(uscita.codice, 0) << uscita.err;
  EXPECT_EQ(uscita.out, "ciao\n");
  EXPECT_NE(Leggi(pagina).find("ciao"), std::string::npos);

  auto predefinita = Lottolab({"esegui", script.string()});
  ASSERT_EQ(predefinita.codice, 0);
  int pagine = 0;
  for (const auto& voce : fs::directory_iterator(m_base / "scriptOutput")) {
    EXPECT_TRUE(voce.path().filename().string().starts_with("Output"));
    ++pagine;
  }
  EXPECT_EQ(pagine, 1);
}

TEST_F(ComandoEseguiTest, BadArgumentsAreRefusedWithUsage) {
  EXPECT_EQ(Lottolab({"esegui"}).codice, 2);
  EXPECT_EQ(Lottolab({"esegui", "manca.ls"}).codice, 2);
  EXPECT_EQ(Lottolab({"esegui", "x.ls", "--timeout", "tre"}).codice, 2);
  EXPECT_EQ(Lottolab({"esegui", "x.ls", "--timeout"}).codice, 2);
}

// Minutes are held as milliseconds in 32 bits: 35,792 minutes would wrap round and stop the script
// at once.
TEST_F(ComandoEseguiTest, ATimeOutBeyondWhatTheEngineHoldsIsRefusedAndTheLongestOneRuns) {
  const fs::path script = m_base / "s.ls";
  std::ofstream(script, std::ios::binary) << "Sub Main\nDim i: For i = 1 To 200000: Next\nScrivi \"fine\"\nEnd Sub\n";
  for (const char* minuti : {"35792", "99999999"}) {
    auto troppo = Lottolab({"esegui", script.string(), "--timeout", minuti});
    EXPECT_EQ(troppo.codice, 2) << minuti;
    EXPECT_NE(troppo.err.find("al massimo 35791 minuti"), std::string::npos) << troppo.err;
  }
  for (const char* minuti : {"35791", "35791.3", "0.001"}) {
    auto uscita = Lottolab({"esegui", script.string(), "--timeout", minuti});
    EXPECT_EQ(uscita.codice, 0) << minuti << uscita.err;
    EXPECT_EQ(uscita.out, "fine\n") << minuti;
  }
}

TEST_F(ComandoEseguiTest, AScriptOrAnswersFileThatIsADeviceOrAPipeIsRefusedAtOnce) {
  const fs::path tubo = m_base / "tubo";
  ASSERT_EQ(mkfifo(tubo.c_str(), 0600), 0);
  const fs::path script = m_base / "s.ls";
  std::ofstream(script, std::ios::binary) << "Sub Main\nEnd Sub\n";
  for (const std::string& file : {std::string("/dev/zero"), tubo.string()}) {
    auto uscita = Lottolab({"esegui", file});
    EXPECT_EQ(uscita.codice, 2) << file;
    EXPECT_NE(uscita.err.find("non un file"), std::string::npos) << uscita.err;
    auto risposte = Lottolab({"esegui", script.string(), "--risposte", file});
    EXPECT_EQ(risposte.codice, 2) << file;
    EXPECT_NE(risposte.err.find("non un file"), std::string::npos) << risposte.err;
  }
}

TEST_F(ComandoEseguiTest, AProtectedRunStopsAtItsFirstWriteOutsideTheOutputFolder) {
  test::CartellaTemporanea fuori;
  const fs::path script = m_base / "s.ls";
  std::ofstream(script, std::ios::binary) << "Sub Main\nScriviFile \"scriptOutput/ok.txt\", \"si\"\nScriviFile \""
                                          << (fuori / "no.txt").string() << "\", \"no\"\nScrivi \"dopo\"\nEnd Sub\n";
  auto protetta = Lottolab({"esegui", "--protetto", script.string()});
  EXPECT_EQ(protetta.codice, 1);
  EXPECT_EQ(protetta.out, "");
  EXPECT_NE(protetta.err.find("70 - Permesso negato: ScriviFile non può scrivere " + (fuori / "no.txt").string()),
            std::string::npos)
      << protetta.err;
  EXPECT_EQ(Leggi(m_base / "scriptOutput" / "ok.txt"), "si\n");
  EXPECT_FALSE(fs::exists(fuori / "no.txt"));

  auto normale = Lottolab({"esegui", script.string()});
  EXPECT_EQ(normale.codice, 0) << normale.err;
  EXPECT_EQ(Leggi(fuori / "no.txt"), "no\n");
}

}  // namespace
}  // namespace lottolab::cli
