#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "LibreriaDiProva.h"
#include "stats/ArchiviDiProva.h"

namespace lottolab::script {
namespace {

using test::Archivio;

// The rows of the text output that hold something other than blanks and dashes.
std::vector<std::string> RigheScritte(const std::string& testo) {
  std::vector<std::string> righe;
  size_t inizio = 0;
  for (size_t fine; (fine = testo.find('\n', inizio)) != std::string::npos; inizio = fine + 1) {
    std::string riga = testo.substr(inizio, fine - inizio);
    while (riga.ends_with(' ')) riga.pop_back();
    if (riga.find_first_not_of(" -") != std::string::npos) righe.push_back(riga);
  }
  return righe;
}

TEST_F(Libreria, ScriviGoesToANewLineUnlessTheScriptChangesTheDefault) {
  Avvia(Archivio().Estrazione().Tabella());
  Esegui(
      "Scrivi \"a\"\nSetComportamentoACapo False\nScrivi \"b\"\nScriviConColori \"c\", 2\n"
      "Scrivi \"d\", , True\nSetComportamentoACapo True\nScrivi \"e\"\n");
  EXPECT_EQ(m_ospite.testo, "a\nbcd\ne\n");
}

// Bari at draw 3 holds 1 89 45 46 2; 44 came out at draw 1 only. The pyramid, by hand:
//   1 89 45 46 2 / 90 44 1 48 / 44 45 49 / 89 4 / 3
TEST_F(Libreria, ThePyramidOfADrawShowsEachNumberWithItsDelayAtThatDraw) {
  Avvia(Archivio()
            .NazionaleDa(3)
            .Estrazione({{BA, {44, 20, 30, 40, 50}}})
            .Estrazione()
            .Estrazione({{BA, {1, 89, 45, 46, 2}}})
            .Tabella());
  Esegui("CreaPiramideRitardi 3, BA_\n");
  const std::vector<std::string> righe = RigheScritte(m_ospite.testo);
  ASSERT_EQ(righe.size(), 6u) << m_ospite.testo;
  EXPECT_EQ(righe[1], "01 (0)  89 (0)  45 (0)  46 (0)  02 (0)");
  EXPECT_EQ(righe[2], "90 (3)  44 (2)  01 (0)  48 (3)");
  EXPECT_EQ(righe[3], "44 (2)  45 (0)  49 (3)");
  EXPECT_EQ(righe[4], "89 (0)  04 (3)");
  EXPECT_EQ(righe[5], "03 (3)");

  EXPECT_TRUE(Vuoto("CreaPiramideRitardi(1, NZ_)")) << "Nazionale was not drawn yet";
  AvvisoErrore5("CreaPiramideRitardi", "non è stata estratta", "an absent wheel");
  EXPECT_TRUE(Vuoto("CreaPiramideRitardi(3, TU_)"));
  AvvisoErrore5("CreaPiramideRitardi", "una sola ruota", "all the wheels");
  EXPECT_TRUE(Vuoto("CreaPiramideRitardi(4, BA_)"));
  AvvisoErrore5("CreaPiramideRitardi", "IdEstr", "outside the archive");
}

}  // namespace
}  // namespace lottolab::script
