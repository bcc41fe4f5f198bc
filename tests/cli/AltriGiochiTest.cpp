#include <gtest/gtest.h>

#include <fstream>

#include "LottolabDiProva.h"

namespace lottolab::cli {
namespace {

class AltriGiochi : public LottolabDiProva {
 protected:
  std::string Scrivi(const std::string& nome, const std::string& testo) {
    std::ofstream(m_base / nome) << testo;
    return (m_base / nome).string();
  }
};

TEST_F(AltriGiochi, OgniGiocoHaIlSuoArchivioNellaCartellaBase) {
  const std::string risultati = Scrivi("se.txt",
                                       "# date contest n1 n2 n3 n4 n5 n6 jolly superstar\n"
                                       "2010/01/02\t1\t1\t2\t3\t4\t5\t6\t7\t8\n"
                                       "2010/01/05\t2\t11\t12\t13\t14\t15\t90\t17\t0\n");
  auto importa = Lottolab({"--gioco", "SE", "importa", risultati});
  EXPECT_EQ(importa.codice, 0) << importa.err;
  EXPECT_EQ(importa.out, "importate 2 estrazioni del SuperEnalotto\n");
  EXPECT_NE(importa.err.find("L'archivio del Lotto"), std::string::npos) << "nothing to derive the years before from";
  EXPECT_TRUE(std::filesystem::exists(m_base / "SuperEnalotto.dat"));
  EXPECT_FALSE(std::filesystem::exists(m_base / "BaseDati.dat")) << "the Lotto archive is not touched";

  EXPECT_EQ(Lottolab({"--gioco", "SE", "importa", risultati}).out, "importate 0 estrazioni del SuperEnalotto\n");
  EXPECT_EQ(Lottolab({"--gioco", "SE", "info"}).out,
            "gioco: SuperEnalotto\nestrazioni: 2\nprima: 02/01/2010\nultima: 05/01/2010\n");
  EXPECT_EQ(Lottolab({"--gioco", "SE", "estrazione", "2"}).out,
            "2 05/01/2010 concorso 2: 11 12 13 14 15 90  Jolly 17\n");
  EXPECT_EQ(Lottolab({"--gioco", "SE", "estrazione", "2/1/2010"}).out,
            "1 02/01/2010 concorso 1: 01 02 03 04 05 06  Jolly 07  SuperStar 08\n");

  // A correction is never made behind the user's back.
  auto diversa =
      Lottolab({"--gioco", "SE", "importa", Scrivi("corretto.txt", "2010/01/02\t1\t1\t2\t3\t4\t5\t9\t7\t8\n")});
  EXPECT_EQ(diversa.codice, 2);
  EXPECT_TRUE(diversa.err.ends_with(
      "lottolab: L'estrazione del 02/01/2010 nell'archivio del SuperEnalotto ha numeri diversi da quella che si "
      "vuole importare: l'archivio non è stato cambiato\n"))
      << diversa.err;

  // Statistics on the main numbers alone: 7 is the Jolly of the first draw, not a number of it.
  EXPECT_EQ(Lottolab({"--gioco", "SE", "ritardo", "7"}).out, "2\n");
  EXPECT_EQ(Lottolab({"--gioco", "SE", "frequenza", "1", "90", "--sorte", "1"}).out, "2\n");
  EXPECT_EQ(Lottolab({"--gioco", "SE", "storico", "--fine", "1", "12"}).out, "1\n");
  EXPECT_EQ(Lottolab({"--gioco", "SE", "ritardo", "91"}).err,
            "lottolab: \"91\" non è un numero del SuperEnalotto (da 1 a 90)\n");
  EXPECT_EQ(Lottolab({"--gioco", "SE", "ritardo", "--ruote", "BA", "1"}).codice, 2);
  const std::string tabellone = Lottolab({"--gioco", "SE", "tabellone"}).out;
  EXPECT_TRUE(tabellone.starts_with("numero   ritardo frequenza   storico\n     1         1         1         1\n"))
      << tabellone;
  EXPECT_NE(tabellone.find("\n     7         2         0         2\n"), std::string::npos) << "a Jolly is no number";

  const std::string win = Scrivi("wf.txt", "2026/03/02 08:00 1 1 3 5 7 9 11 13 15 17 19 20\n");
  EXPECT_EQ(Lottolab({"--gioco", "WF", "importa", win}).out, "importata 1 estrazione del Win for Life\n");
  EXPECT_EQ(Lottolab({"--gioco", "WF", "estrazione", "1"}).out,
            "1 02/03/2026 08:00 concorso 1: 01 03 05 07 09 11 13 15 17 19  Numerone 20\n");
}

TEST_F(AltriGiochi, LArchivioGenericoSiImportaESiLeggeDalSuoFile) {
  auto mancante = Lottolab({"--gioco", "FT", "info"});
  EXPECT_EQ(mancante.codice, 2) << "no file, no format";
  auto importa = Lottolab({"--gioco", "FT", "importa", Scrivi("ft.txt", "# numeri 3 massimo 40\n01/02/2026 1 2 40\n")});
  EXPECT_EQ(importa.codice, 0) << importa.err;
  EXPECT_EQ(importa.out, "importata 1 estrazione dell'archivio generico\n");
  // A text that does not say its measures is read in the archive's: 40 is then no number out of range.
  EXPECT_EQ(Lottolab({"--gioco", "FT", "importa", Scrivi("ft2.txt", "08/02/2026 3 4 40\n")}).out,
            "importata 1 estrazione dell'archivio generico\n");
  EXPECT_EQ(Lottolab({"--gioco", "FT", "info"}).out,
            "gioco: Archivio generico\nnumeri: 3 da 1 a 40\nestrazioni: 2\nprima: 01/02/2026\nultima: 08/02/2026\n");
  EXPECT_EQ(Lottolab({"--gioco", "FT", "estrazione", "2"}).out, "2 08/02/2026 concorso 0: 03 04 40\n");
  EXPECT_EQ(Lottolab({"--gioco", "FT", "ritardo", "1"}).out, "1\n");
  EXPECT_EQ(Lottolab({"--gioco", "FT", "frequenza", "40"}).out, "2\n");
  EXPECT_EQ(Lottolab({"--gioco", "FT", "ritardo", "41"}).err,
            "lottolab: \"41\" non è un numero dell'archivio generico (da 1 a 40)\n");
  const std::string tabellone = Lottolab({"--gioco", "FT", "tabellone"}).out;
  EXPECT_TRUE(tabellone.ends_with("    40         0         2         0\n")) << tabellone;

  auto altre = Lottolab({"--gioco", "FT", "importa", Scrivi("ft3.txt", "# numeri 3 massimo 90\n15/02/2026 5 6 7\n")});
  EXPECT_EQ(altre.codice, 2);
  EXPECT_NE(altre.err.find("ha estrazioni di 3 numeri da 1 a 40, quelle da importare sono di 3 numeri da 1 a 90"),
            std::string::npos)
      << altre.err;
  // Another generic archive's file is taken whole.
  std::filesystem::copy_file(m_base / "ArchivioGenerico.dat", m_base / "copia.dat");
  EXPECT_EQ(Lottolab({"--gioco", "FT", "--archivio", (m_base / "altro.dat").string(), "importa",
                      (m_base / "copia.dat").string()})
                .out,
            "importate 2 estrazioni dell'archivio generico\n");
}

TEST_F(AltriGiochi, GiocoSconosciutoOComandoSoloDelLotto) {
  auto sconosciuto = Lottolab({"--gioco", "EJ", "info"});
  EXPECT_EQ(sconosciuto.codice, 2);
  EXPECT_EQ(sconosciuto.err, "lottolab: gioco sconosciuto: EJ (LO, SE, DL, DL5, WF o FT)\n");
  auto solo_lotto = Lottolab({"--gioco", "DL", "ripara"});
  EXPECT_EQ(solo_lotto.codice, 2);
  EXPECT_EQ(solo_lotto.err, "lottolab: il comando ripara per ora vale solo per il Lotto, non per il 10eLotto\n");
  EXPECT_EQ(Lottolab({"--gioco", "LO", "info"}).err, Lottolab({"info"}).err) << "LO is the Lotto";
  auto vuoto = Lottolab({"--gioco", "DL", "info"});
  EXPECT_EQ(vuoto.out, "gioco: 10eLotto\nestrazioni: 0\nprima: -\nultima: -\n");
}

}  // namespace
}  // namespace lottolab::cli
