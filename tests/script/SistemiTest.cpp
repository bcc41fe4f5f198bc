#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "LibreriaDiProva.h"
#include "TempDir.h"

namespace lottolab::script {
namespace {

// The columns a script receives hold its own numbers and keep the guarantee: whichever three of
// the nine come out, some column holds two of them, counted here over every group of three.
TEST_F(Libreria, UnSistemaRidottoHaINumeriDelloScriptEMantieneLaGaranzia) {
  Avvia(TabellaEstrazioni());
  const std::vector<int> numeri{3, 11, 19, 27, 38, 44, 52, 69, 90};
  Esegui("Dim a, n : n = GetMatriceSistemaRidotto(Array(3, 11, 19, 27, 38, 44, 52, 69, 90), 4, 2, a, 3)");
  const int colonne = std::stoi(Testo("n"));
  ASSERT_GT(colonne, 0);
  EXPECT_EQ(Testo("UBound(a, 1) & \" \" & UBound(a, 2)"), fmt::format("{} 4", colonne));
  std::vector<std::vector<int>> sistema(static_cast<size_t>(colonne));
  for (int c = 1; c <= colonne; ++c)
    for (int j = 1; j <= 4; ++j)
      sistema[static_cast<size_t>(c - 1)].push_back(std::stoi(Testo(fmt::format("a({}, {})", c, j))));
  for (const auto& colonna : sistema)
    for (int numero : colonna) ASSERT_NE(std::find(numeri.begin(), numeri.end(), numero), numeri.end()) << numero;
  for (size_t x = 0; x < numeri.size(); ++x)
    for (size_t y = x + 1; y < numeri.size(); ++y)
      for (size_t z = y + 1; z < numeri.size(); ++z) {
        const bool coperto = std::any_of(sistema.begin(), sistema.end(), [&](const std::vector<int>& colonna) {
          return std::count_if(colonna.begin(), colonna.end(),
                               [&](int n) { return n == numeri[x] || n == numeri[y] || n == numeri[z]; }) >= 2;
        });
        ASSERT_TRUE(coperto) << numeri[x] << " " << numeri[y] << " " << numeri[z];
      }
  EXPECT_LT(colonne, 9 * 8 * 7 * 6 / 24) << "reduced, not the integral development";

  EXPECT_TRUE(Vuoto("GetMatriceSistemaRidotto(Array(1, 2, 2, 4), 2, 2, a)"));
  AvvisoErrore5("GetMatriceSistemaRidotto", "diversi", "a number given twice");
}

// The columns GetCombSviluppoRid gives one at a time are the matrix's, for the system it built
// from its own arguments and for the one GetMatriceSistemaRidotto built.
TEST_F(Libreria, GetCombSviluppoRidDaLeColonneDelSistemaUnaAllaVolta) {
  Avvia(TabellaEstrazioni());
  EXPECT_TRUE(Vuoto("GetCombSviluppoRid(a)"));
  AvvisoErrore5("GetCombSviluppoRid", "Nessun sistema", "no system built yet");
  Esegui(
      "Dim m, n, c, k, righe, uguali : n = GetMatriceSistemaRidotto(Array(5, 6, 7, 8, 9, 10, 11), 3, 2, m)\n"
      "uguali = True : righe = 0\n"
      "Do While GetCombSviluppoRid(c)\n"
      "  righe = righe + 1\n"
      "  For k = 1 To 3 : If c(k) <> m(righe, k) Then uguali = False\n  Next\n"
      "Loop");
  EXPECT_EQ(Testo("righe = n And uguali"), "Vero");
  EXPECT_EQ(Testo("GetCombSviluppoRid(c)"), "Falso") << "the walk stays at its end";
  EXPECT_EQ(Testo("GetCombSviluppoRid(c, Array(1, 2, 3, 4, 5), 2, 2) & \" \" & c(1) & \" \" & c(2)"), "Vero 1 2");
  // The same arguments in the loop's condition walk on through that system: the nine other ambi.
  Esegui("Dim v : v = 0 : Do While GetCombSviluppoRid(c, Array(1, 2, 3, 4, 5), 2, 2) : v = v + 1 : Loop");
  EXPECT_EQ(Testo("v"), "9");
  EXPECT_EQ(Testo("GetCombSviluppoRid(c, Array(1, 2, 3, 4, 6), 2, 2) & \" \" & c(2)"), "Vero 2")
      << "other numbers, another system from its first column";
  EXPECT_TRUE(Vuoto("GetCombSviluppoRid(c, Array(1, 2, 3, 4, 5))"));
  AvvisoErrore5("GetCombSviluppoRid", "Classe", "a system without its class");
}

// A search that prunes every combination whose first two numbers add up to an odd sum sees
// exactly the combinations of the whole development that pass the filter, in the same order, and
// the count reaches the whole development.
TEST_F(Libreria, UnoSviluppoPotatoEQuelloCompletoFiltrato) {
  Avvia(TabellaEstrazioni());
  const std::vector<int> numeri{3, 8, 11, 14, 20, 27, 33, 41, 56};
  std::string attese;
  int saltate = 0;
  for (size_t a = 0; a < numeri.size(); ++a)
    for (size_t b = a + 1; b < numeri.size(); ++b)
      for (size_t c = b + 1; c < numeri.size(); ++c)
        for (size_t d = c + 1; d < numeri.size(); ++d) {
          if ((numeri[a] + numeri[b]) % 2 == 0)
            attese += fmt::format("{}-{}-{}-{} ", numeri[a], numeri[b], numeri[c], numeri[d]);
          else
            ++saltate;
        }
  Esegui(
      "Dim c, visti, saltate, tot\n"
      "tot = InitSviluppoIntegrale(Array(3, 8, 11, 14, 20, 27, 33, 41, 56), 4)\n"
      "Do While GetCombSviluppo(c)\n"
      "  If (c(1) + c(2)) Mod 2 = 1 Then\n"
      "    saltate = saltate + 1 + ForzaIncrementoPuntatoreSvilSisInt(2)\n"
      "  Else\n"
      "    visti = visti & c(1) & \"-\" & c(2) & \"-\" & c(3) & \"-\" & c(4) & \" \"\n"
      "  End If\n"
      "Loop");
  EXPECT_EQ(Testo("visti"), attese);
  EXPECT_EQ(Testo("saltate"), std::to_string(saltate));
  EXPECT_EQ(Testo("GetCombSviluppate & \" \" & tot & \" \" & GetPercCombSviluppate"), "126 126 100");
  EXPECT_EQ(Testo("ForzaIncrementoPuntatoreSvilSisInt(1)"), "0") << "nothing left to skip";
  Esegui("tot = InitSviluppoIntegrale(Array(1, 2, 3, 4, 5), 3)");
  EXPECT_EQ(Testo("ForzaIncrementoPuntatoreSvilSisInt(1)"), "0") << "nothing to skip before the first";
  Esegui("GetCombSviluppo c");
  EXPECT_EQ(Testo("ForzaIncrementoPuntatoreSvilSisInt(1)"), "5") << "1-2-4 .. 1-4-5 after 1-2-3";
  EXPECT_EQ(Testo("GetCombSviluppo(c) & \" \" & c(1) & c(2) & c(3)"), "Vero 234");
  EXPECT_EQ(Testo("ForzaIncrementoPuntatoreSvilSisInt(3)"), "0");
  EXPECT_TRUE(Vuoto("ForzaIncrementoPuntatoreSvilSisInt(4)"));
  AvvisoErrore5("ForzaIncrementoPuntatoreSvilSisInt", "Livello", "a level beyond the class");
}

// Two developments walked in turns give each what a run of its own gives, and skipping in one
// leaves the other where it was.
TEST_F(Libreria, DueMotoriAlternatiDannoCiòCheDannoDaSoli) {
  Avvia(TabellaEstrazioni());
  Esegui(
      "Function DaSolo(numeri, classe)\n"
      "  Dim c : InitSviluppoIntegrale numeri, classe\n"
      "  Do While GetCombSviluppo(c) : DaSolo = DaSolo & Join(c, \"-\") & \" \" : Loop\n"
      "End Function\n"
      "Dim m1, m2, c1, c2, t1, t2, va1, va2\n"
      "Set m1 = GetMotoreSviluppoIntegrale(Array(1, 2, 3, 4, 5, 6), 3)\n"
      "Set m2 = GetMotoreSviluppoIntegrale(Array(10, 11, 12, 13, 14), 2)\n"
      "va1 = True : va2 = True\n"
      "Do While va1 Or va2\n"
      "  If va1 Then va1 = m1.GetCombSviluppo(c1) : If va1 Then t1 = t1 & Join(c1, \"-\") & \" \"\n"
      "  If va2 Then va2 = m2.GetCombSviluppo(c2) : If va2 Then t2 = t2 & Join(c2, \"-\") & \" \"\n"
      "Loop");
  EXPECT_EQ(Testo("t1 = DaSolo(Array(1, 2, 3, 4, 5, 6), 3)"), "Vero");
  EXPECT_EQ(Testo("t2 = DaSolo(Array(10, 11, 12, 13, 14), 2)"), "Vero");
  EXPECT_EQ(Testo("m1.QuantitaCombinazioni & \" \" & m1.GetCombSviluppate & \" \" & m2.GetPercCombSviluppate"),
            "20 20 100");
  Esegui("m1.Riavvia : m2.Riavvia : m1.GetCombSviluppo c1 : m2.GetCombSviluppo c2");
  EXPECT_EQ(Testo("m1.ForzaIncrementoPuntatoreSvilSisInt(1)"), "9");
  EXPECT_EQ(Testo("m1.GetCombSviluppo(c1) & \" \" & Join(c1, \"-\")"), "Vero 2-3-4");
  EXPECT_EQ(Testo("m2.GetCombSviluppo(c2) & \" \" & Join(c2, \"-\")"), "Vero 10-12");
  EXPECT_EQ(Testo("m2.GetNumPerSviluppo(c2) & \" \" & c2(5)"), "5 14");
  EXPECT_TRUE(Vuoto("GetMotoreSviluppoIntegrale(Array(1, 2), 3)"));
  AvvisoErrore5("GetMotoreSviluppoIntegrale", "Classe", "a class above the numbers");
}

class FileDiSistemi : public Libreria {
 protected:
  std::string Leggi(const std::string& nome) {
    std::ifstream file(m_cartella / nome, std::ios::binary);
    std::stringstream testo;
    testo << file.rdbuf();
    return testo.str();
  }
  void Crea(const std::string& nome, const std::string& testo) {
    std::ofstream(m_cartella / nome, std::ios::binary) << testo;
  }
  test::CartellaTemporanea m_cartella;
};

// Columns saved one at a time and as a whole system read back as they were; the file is the
// documented text, which a user's own file with comments, commas and CRLF matches too.
TEST_F(FileDiSistemi, LeColonneSalvateSiRileggonoUguali) {
  ImpostazioniLibreria impostazioni;
  impostazioni.cartella_base = m_cartella.Percorso();
  Avvia(TabellaEstrazioni(), impostazioni);
  Esegui("Dim m, c, n : n = GetMatriceSistemaRidotto(Array(3, 11, 19, 27, 38, 44, 52), 3, 2, m)");
  EXPECT_TRUE(Vuoto("SalvaColonnaSistema(\"sistemi\\sette.txt\", Array(90, 1, 45))"));
  AvvisoErrore5("SalvaColonnaSistema", "sette.txt", "a folder that does not exist");
  EXPECT_EQ(Testo("SalvaColonnaSistema(\"sette.txt\", Array(90, 1, 45))"), "1");
  EXPECT_EQ(Testo("SalvaColonnaSistema(\"sette.txt\", m) = n + 1"), "Vero");
  EXPECT_EQ(Leggi("sette.txt").substr(0, 9), "90 1 45\n3");
  Esegui(
      "Dim i, uguali : uguali = LeggiColonnaSistema(\"sette.txt\", 1, c) And Join(c, \" \") = \"90 1 45\"\n"
      "For i = 1 To n\n"
      "  If Not LeggiColonnaSistema(\"sette.txt\", i + 1, c) Then uguali = False\n"
      "  If c(1) <> m(i, 1) Or c(2) <> m(i, 2) Or c(3) <> m(i, 3) Then uguali = False\n"
      "Next");
  EXPECT_EQ(Testo("uguali"), "Vero");
  EXPECT_EQ(Testo("LeggiColonnaSistema(\"sette.txt\", n + 2, c)"), "Falso");

  Crea("mio.txt", "\xEF\xBB\xBF# il mio sistema\r\n1, 2, 3\r\n\r\n  4;5\t6  \r\n# fine\r\n7 8");
  EXPECT_EQ(Testo("LeggiColonnaSistema(\"mio.txt\", 2, c) & \" \" & Join(c, \"-\")"), "Vero 4-5-6");
  EXPECT_EQ(Testo("SalvaColonnaSistema(\"mio.txt\", Array(9, 10))"), "4");
  EXPECT_EQ(Testo("LeggiColonnaSistema(\"mio.txt\", 3, c) & \" \" & Join(c, \"-\")"), "Vero 7-8")
      << "a last line without its newline keeps its column";
  EXPECT_EQ(Testo("LeggiColonnaSistema(\"mio.txt\", 4, c) & \" \" & Join(c, \"-\")"), "Vero 9-10");
  EXPECT_TRUE(m_ospite.avvisi.empty());

  EXPECT_TRUE(Vuoto("SalvaColonnaSistema(\"mio.txt\", Array(9, 9))"));
  AvvisoErrore5("SalvaColonnaSistema", "ripetuto", "a number twice");
  EXPECT_TRUE(Vuoto("SalvaColonnaSistema(\"mio.txt\", Array(9, 91))"));
  AvvisoErrore5("SalvaColonnaSistema", "da 1 a 90", "a number beyond 90");
}

// A file that is not a system, or is one with a bad line, is refused whole with its line named,
// and a save never touches it.
TEST_F(FileDiSistemi, UnFileDannegiatoERifiutatoConLaSuaRiga) {
  ImpostazioniLibreria impostazioni;
  impostazioni.cartella_base = m_cartella.Percorso();
  Avvia(TabellaEstrazioni(), impostazioni);
  Esegui("Dim c");
  const std::pair<std::string, std::string> guasti[] = {
      {"1 2 3\n4 x 6\n", "riga 2"},
      {"1 2 3\n4 91\n", "\"91\" non è un numero da 1 a 90"},
      {"1 2 3\n\n5 5\n", "riga 3"},
      {"1 2 3\n4 -5\n", "riga 2"},
      {"1 2 3\n" + std::string("\x00\x01\xff", 3) + "\n", "riga 2"},
      {"99999999999999999999 1\n", "riga 1"},
  };
  for (const auto& [testo, spiegazione] : guasti) {
    Crea("guasto.txt", testo);
    EXPECT_TRUE(Vuoto("LeggiColonnaSistema(\"guasto.txt\", 1, c)")) << testo;
    AvvisoErrore5("LeggiColonnaSistema", spiegazione, testo);
    EXPECT_TRUE(Vuoto("SalvaColonnaSistema(\"guasto.txt\", Array(1, 2))")) << testo;
    AvvisoErrore5("SalvaColonnaSistema", "non viene modificato", testo);
    EXPECT_EQ(Leggi("guasto.txt"), testo);
  }
  std::filesystem::create_directory(m_cartella / "cartella");
  EXPECT_TRUE(Vuoto("LeggiColonnaSistema(\"cartella\", 1, c)"));
  AvvisoErrore5("LeggiColonnaSistema", "non un file", "a folder");
  EXPECT_TRUE(Vuoto("LeggiColonnaSistema(\"manca.txt\", 1, c)"));
  AvvisoErrore5("LeggiColonnaSistema", "manca.txt", "a missing file");
  EXPECT_TRUE(Vuoto("LeggiColonnaSistema(\"guasto.txt\", 0, c)"));
  AvvisoErrore5("LeggiColonnaSistema", "NumeroColonna", "column 0");
}

}  // namespace
}  // namespace lottolab::script
