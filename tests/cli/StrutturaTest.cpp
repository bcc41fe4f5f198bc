#include <gtest/gtest.h>

#include <sys/stat.h>

#include <fstream>
#include <sstream>

#include "LottolabDiProva.h"
#include "figures/FileStrutture.h"

namespace lottolab::cli {
namespace {

// No archive exists in the base folder: showing a structure must not need one.
class ComandoStrutturaTest : public LottolabDiProva {};

TEST_F(ComandoStrutturaTest, PrintsEveryVertexLineAndCondition) {
  const std::string file = (m_base / "figura.dat").string();
  const figures::Struttura struttura{{{.Index = 0, .Caption = "T"},
                                      {.Index = 3,
                                       .IdEstrazione = 123456,
                                       .FulcroOrizz = true,
                                       .Riga = 2,
                                       .Colonna = 37,
                                       .Riservato1 = 5,
                                       .VersoVert = -1,
                                       .VersoOrizz = 1,
                                       .Caption = "Città",
                                       .UsaPerChiusura = true},
                                      {.Index = 4,
                                       .IdEstrazione = -70000,
                                       .FulcroVert = true,
                                       .Riga = -3,
                                       .Colonna = 512,
                                       .VersoVert = 1,
                                       .VersoOrizz = -1,
                                       .Caption = ""}},
                                     {{1, 3, 4}},
                                     {"Cadenza([Città]) = 3", "[4] <> 90"}};
  ASSERT_TRUE(figures::SalvaStruttura(file, struttura));

  auto uscita = Lottolab({"struttura", file});
  EXPECT_EQ(uscita.codice, 0) << uscita.err;
  EXPECT_EQ(uscita.out,
            "vertici: 2\n"
            "V 3 123456 1 0 2 37 -1 1 1 Città\n"
            "V 4 -70000 0 1 -3 512 1 -1 0 \n"
            "linee: 1\n"
            "L 1 3 4\n"
            "condizioni: 2\n"
            "C Cadenza([Città]) = 3\n"
            "C [4] <> 90\n");
  EXPECT_EQ(uscita.err, "");
}

TEST_F(ComandoStrutturaTest, RefusesAFileThatIsNoStructureAndAMissingArgument) {
  const std::string file = (m_base / "testo.dat").string();
  std::ofstream(file, std::ios::binary) << "OFFSET_STRUCTFINEOFFSET_LINEEFINE";
  auto uscita = Lottolab({"struttura", file});
  EXPECT_EQ(uscita.codice, 1);
  EXPECT_EQ(uscita.out, "");
  EXPECT_EQ(uscita.err, "lottolab: File " + file + " non valido: manca la sezione delle condizioni (OFFSET_COND)\n");

  uscita = Lottolab({"struttura"});
  EXPECT_EQ(uscita.codice, 2);
  EXPECT_EQ(uscita.err, "lottolab: uso: lottolab struttura FILE\n");
}

// Both commands answer at once with one line on stderr, whatever the path names: a folder, a device
// that never ends, a pipe that no one writes, a file too big to be a structure.
TEST_F(ComandoStrutturaTest, APathThatIsNoStructureFileIsRefusedAtOnce) {
  const std::string pipe = (m_base / "pipe.dat").string();
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  const std::string grande = (m_base / "grande.dat").string();
  {
    std::ofstream out(grande, std::ios::binary);
    out << figures::CodificaStruttura({}) << std::string(2'000'000, ' ');
  }
  const std::string cartella = m_base.Percorso().string();
  const std::pair<std::string, std::string> casi[] = {
      {cartella, "è una cartella, non un file ordinario"},
      {"/dev/zero", "è una periferica, non un file ordinario"},
      {pipe, "è una pipe, non un file ordinario"},
      {grande, "supera 1 MB, troppo per una struttura"},
  };
  for (const auto& [percorso, motivo] : casi) {
    for (const char* comando : {"struttura", "cerca-figura"}) {
      auto uscita = Lottolab({comando, percorso});
      EXPECT_EQ(uscita.codice, 1) << comando << " " << percorso;
      EXPECT_EQ(uscita.out, "");
      EXPECT_EQ(uscita.err, "lottolab: File " + percorso + " non valido: " + motivo + "\n");
    }
  }
}

// Bari and Venezia only: 1 then 2 on Bari's first column, 10, 11, 12 down Venezia's.
constexpr const char* kTreEstrazioni =
    "2005/04/30\tBA\t1\t2\t3\t4\t5\n"
    "2005/04/30\tVE\t10\t11\t12\t13\t14\n"
    "2005/05/03\tBA\t2\t22\t23\t24\t25\n"
    "2005/05/03\tVE\t11\t7\t8\t9\t16\n"
    "2005/05/04\tBA\t31\t32\t33\t34\t35\n"
    "2005/05/04\tVE\t12\t62\t63\t64\t65\n";

TEST_F(ComandoStrutturaTest, CercaFiguraListsEachPlacementAndSumsUpWhatFollowed) {
  const std::string risultati = (m_base / "risultati.txt").string();
  std::ofstream(risultati) << kTreEstrazioni;
  const std::string archivio = (m_base / "archivio.dat").string();
  ASSERT_EQ(Lottolab({"--archivio", archivio, "importa", risultati}).codice, 0);
  // A above B in the next draw, B one more than A; A's number is the play.
  figures::Struttura coppia{{{.Index = 1, .Riga = 0, .Colonna = 1, .Caption = "A", .UsaPerChiusura = true},
                             {.Index = 2, .Riga = 1, .Colonna = 1, .Caption = "B"}},
                            {{1, 1, 2}},
                            {"[A] + 1 = [B]"}};
  const std::string file = (m_base / "coppia.dat").string();
  ASSERT_TRUE(figures::SalvaStruttura(file, coppia));

  auto cerca = [&](std::vector<std::string> opzioni) {
    opzioni.insert(opzioni.begin(), {"--archivio", archivio, "cerca-figura", file});
    return Lottolab(opzioni);
  };
  auto uscita = cerca({"--colpi", "1"});
  EXPECT_EQ(uscita.codice, 0) << uscita.err;
  EXPECT_EQ(uscita.out,
            "2 03/05/2005 BA 01 02\n"
            "2 03/05/2005 VE 10 11\n"
            "3 04/05/2005 VE 11 12\n"
            "trovate 3 figure\n"
            "in 1 colpi: ambata 0, ambo 0, terno 0, quaterna 0, cinquina 0, negativi 2, in corso 1\n"
            "colpo medio 0.00, ritardo 0, ritardo massimo 1\n");
  EXPECT_EQ(cerca({"--ruote", "BA"}).out, "2 03/05/2005 BA 01 02\ntrovata 1 figura\n");
  EXPECT_EQ(cerca({"--inizio", "4/5/2005"}).out, "3 04/05/2005 VE 11 12\ntrovata 1 figura\n");

  EXPECT_EQ(cerca({"--colpi", "0"}).codice, 2);
  coppia.condizioni = {"[A] + = [B]"};
  ASSERT_TRUE(figures::SalvaStruttura(file, coppia));
  uscita = cerca({});
  EXPECT_EQ(uscita.codice, 2);
  EXPECT_TRUE(uscita.err.starts_with("lottolab: Errore di sintassi")) << uscita.err;
}

}  // namespace
}  // namespace lottolab::cli
