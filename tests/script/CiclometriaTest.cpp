#include <gtest/gtest.h>

#include <fstream>

#include "LibreriaDiProva.h"
#include "TempDir.h"
#include "stats/ArchiviDiProva.h"
#include "stats/Ciclometria.h"

namespace lottolab::script {
namespace {

// Draw 1: the kite 10-18-55-2 joins Bari (10, 18) and Venezia (55, 2; 10 again); no other kite
// exists among those numbers, whose only diameter is 10-55. Draw 2: the chords 3-20, 3-70 and 20-70
// of Bari have their diametral chords on Venezia, which makes three parallelepipeds.
class Ciclometria : public Libreria {
 protected:
  void SetUp() override {
    Avvia(test::Archivio()
              .Estrazione({{BA, {10, 18, 30, 31, 32}}, {VE, {55, 2, 10, 34, 35}}})
              .Estrazione({{BA, {3, 20, 70, 4, 5}}, {VE, {48, 65, 25, 11, 12}}})
              .Tabella());
    Esegui(
        "Dim c, f, s, a, n\n"
        "Function Elenco(c)\n Elenco = \"\"\n For Each f In c : Elenco = Elenco & f & \";\" : Next\nEnd Function\n");
  }
};

TEST_F(Ciclometria, AFigureOfADrawGivesItsVerticesInOrderWithTheirWheels) {
  EXPECT_EQ(Testo("Elenco(GetCollAquiloneCiclometrico(1, Array(BA_, VE_)))"),
            "Aquilone 10-18-55-2 (BA/VE, BA, VE, VE);");
  Esegui("Set c = GetCollFigureCiclometriche(1, Array(BA_, VE_), 7)\nSet f = c(1)\n");
  EXPECT_EQ(Testo("c.Count & \" \" & f.Tipo & \" \" & f.IdTipo & \" \" & f.QuantitaVertici"), "1 Aquilone 7 4");
  EXPECT_EQ(Testo("Join(f.Numeri, \" \") & \"|\" & Join(f.Ruote, \" \") & \"|\" & Join(f.RuoteVertice(1), \" \")"),
            "10 18 55 2|1 1 10 10|1 10");
  EXPECT_EQ(Testo("f.Vertice(4) & \" \" & GetArrayNumeriFromFiguraCiclo(f, a) & \" \" & LBound(a) & a(3)"), "2 4 155");
  EXPECT_EQ(Testo("f.Vertice(5)"), "errore 5");
  EXPECT_EQ(Testo("GetCollAquiloneCiclometrico(1, BA_).Count"), "0") << "Venezia's numbers are not asked";
}

TEST_F(Ciclometria, ASetOfNumbersHasNoWheels) {
  Esegui("Set f = GetCollTriangoliEquilateri(Array(65, 6, 5, 35, 5))(1)\n");
  EXPECT_EQ(Testo("f"), "Triangolo equilatero 5-35-65");
  EXPECT_EQ(Testo("Join(f.Ruote, \",\") & \" \" & UBound(f.RuoteVertice(2))"), "0,0,0 0");
  EXPECT_EQ(Testo("Elenco(GetCollFigureCiclometriche(Array(1, 23, 46, 68)))"),
            "Diametro 1-46;Diametro 23-68;Quadrato ciclometrico 1-23-46-68;");
  EXPECT_EQ(Testo("Elenco(GetCollFigureCiclometriche(Array(1, 23, 46, 68), , Array(1, 5)))"),
            "Diametro 1-46;Diametro 23-68;")
      << "the near-square is no rectangle";
  EXPECT_EQ(Testo("Elenco(GetCollRettangoli(Array(3, 20, 48, 65)))"), "Rettangolo 3-20-48-65;");
  EXPECT_EQ(Testo("Elenco(GetCollTrapezioIsoscele(Array(2, 12, 24, 80)))"), "Trapezio isoscele 2-12-24-80;");
  EXPECT_EQ(Testo("Elenco(GetCollTriangoliIsosceli(Array(10, 3, 17)))"), "Triangolo isoscele 10-17-3;");
  EXPECT_EQ(Testo("Elenco(GetCollQuadratoCiclometrico(Array(90, 22, 45, 67)))"), "Quadrato ciclometrico 22-45-67-90;");
  EXPECT_EQ(Testo("GetCollTriangoliIsosceli(Array()).Count"), "0");
}

TEST_F(Ciclometria, AParallelepipedJoinsTwoWheelsOrTwoGroups) {
  EXPECT_EQ(Testo("Elenco(GetCollParallelepipedi(2, Array(BA_, VE_)))"),
            "Parallelepipedo 3-20-48-65 (BA, BA, VE, VE);Parallelepipedo 3-25-48-70 (BA, VE, VE, BA);"
            "Parallelepipedo 20-25-65-70 (BA, VE, VE, BA);");
  EXPECT_EQ(Testo("GetCollParallelepipedi(2).Count"), "3") << "the ten wheels by default";
  EXPECT_EQ(Testo("Elenco(GetCollParallelepipediQN(Array(3, 20), Array(48, 65, 25)))"), "Parallelepipedo 3-20-48-65;");
}

class CiclometriaGenerica : public Libreria {
 protected:
  void SetUp() override {
    ImpostazioniLibreria impostazioni;
    impostazioni.cartella_base = m_cartella.Percorso();
    Avvia(test::Archivio().Estrazione({{BA, {1, 2, 3, 4, 5}}}).Tabella(), impostazioni);
    Esegui("Function Elenco(c)\n Elenco = \"\"\n For Each f In c : Elenco = Elenco & f & \";\" : Next\nEnd Function\n");
  }
  test::CartellaTemporanea m_cartella;
};

// The generic archive has one wheel: its parallelepipeds join a draw to the one before it, or to
// the one named, on the circle of 90 only.
TEST_F(CiclometriaGenerica, TheGenericArchiveJoinsTwoOfItsDraws) {
  std::ofstream(m_cartella / "ft.txt", std::ios::binary)
      << "# numeri 5 massimo 90\n02/01/2020 3 20 1 2 4\n04/01/2020 48 65 25 11 12\n07/01/2020 70 3 6 7 8\n";
  ASSERT_EQ(Testo("ApriBaseDatiFT(\"ft.txt\")"), "3");
  EXPECT_EQ(Testo("Elenco(GetCollParallelepipediFT(2))"), "Parallelepipedo 3-20-48-65;");
  EXPECT_EQ(Testo("Elenco(GetCollParallelepipediFT(3, 2))"), "Parallelepipedo 3-25-48-70;");
  EXPECT_TRUE(Vuoto("GetCollParallelepipediFT(1)"));
  AvvisoErrore5("GetCollParallelepipediFT", "non ha una precedente", "the first draw");
  std::ofstream(m_cartella / "ft20.txt", std::ios::binary) << "# numeri 2 massimo 20\n02/01/2020 1 2\n04/01/2020 3 4\n";
  ASSERT_EQ(Testo("ApriBaseDatiFT(\"ft20.txt\")"), "2");
  EXPECT_TRUE(Vuoto("GetCollParallelepipediFT(2)"));
  AvvisoErrore5("GetCollParallelepipediFT", "cerchio dei 90 numeri", "numbers up to 20");
}

TEST_F(Ciclometria, BadArgumentsAreRefusedWithTheirReason) {
  struct Caso {
    const char* chiamata;
    const char* funzione;
    const char* motivo;
  } casi[] = {
      {"GetCollRettangoli(Array(1, 91))", "GetCollRettangoli", "Numero non valido: 91"},
      {"GetCollRettangoli(Array(1, 2.5))", "GetCollRettangoli", "Numero non valido"},
      {"GetCollRettangoli(Array(1, 46), BA_)", "GetCollRettangoli", "aRuote vale solo con IdEstr"},
      {"GetCollRettangoli(3)", "GetCollRettangoli", "IdEstr fuori dall'archivio: 3"},
      {"GetCollRettangoli(1, 13)", "GetCollRettangoli", "Ruota non valida: 13"},
      {"GetCollFigureCiclometriche(1, , 8)", "GetCollFigureCiclometriche", "GetCollParallelepipedi"},
      {"GetCollFigureCiclometriche(1, , 0)", "GetCollFigureCiclometriche", "Tipo di figura non valido"},
      {"GetCollParallelepipedi(1, Array(BA_, 1))", "GetCollParallelepipedi", "almeno due ruote"},
      {"GetCollParallelepipediQN(Array(1), Array(0))", "GetCollParallelepipediQN", "Numero non valido: 0"},
      {"GetArrayNumeriFromFiguraCiclo(GetNewCollection, a)", "GetArrayNumeriFromFiguraCiclo", "figura"},
  };
  for (const Caso& caso : casi) {
    EXPECT_TRUE(Vuoto(caso.chiamata)) << caso.chiamata;
    AvvisoErrore5(caso.funzione, caso.motivo, caso.chiamata);
  }
}

class CiclometriaCasuale : public Libreria {};

// The collections hold what stats finds, wheel by wheel, on draws of every wheel.
TEST_F(CiclometriaCasuale, TheCollectionsCountWhatTheSearchFinds) {
  const TabellaEstrazioni tab = test::ArchivioCasuale(12, 90, 18);
  Avvia(tab);
  const int dieci[] = {BA, CA, FI, GE, MI, NA, PA, RO, TO, VE};
  const int tutte[] = {BA, CA, FI, GE, MI, NA, PA, RO, TO, VE, NZ};
  for (int id : {7, 9, 12}) {
    const auto nelle_dieci = stats::TrovaFigure(stats::InsiemeDaEstrazione(tab[id], dieci), stats::kFigureDiUnInsieme);
    const auto in_tutte = stats::TrovaFigure(stats::InsiemeDaEstrazione(tab[id], tutte), stats::kFigureDiUnInsieme);
    EXPECT_EQ(Testo("GetCollFigureCiclometriche(" + std::to_string(id) + ").Count"),
              std::to_string(nelle_dieci.size()));
    EXPECT_EQ(Testo("GetCollFigureCiclometriche(" + std::to_string(id) + ", Array(TT_, NZ_)).Count"),
              std::to_string(in_tutte.size()));
    EXPECT_GT(in_tutte.size(), nelle_dieci.size()) << "Nazionale adds numbers";
  }
}

}  // namespace
}  // namespace lottolab::script
