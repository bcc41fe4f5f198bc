#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "LottolabDiProva.h"

namespace lottolab::cli {
namespace {

namespace fs = std::filesystem;
class ComandoEseguiTest : public LottolabDiProva {
 protected:

  std::string Leggi(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::stringstream testo;
    testo << in.rdbuf();
    return testo.str();
  }

};

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

}  // namespace
}  // namespace lottolab::cli
