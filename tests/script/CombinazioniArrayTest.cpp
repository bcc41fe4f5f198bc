#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "LibreriaDiProva.h"
#include "stats/ArchiviDiProva.h"

namespace lottolab::script {
namespace {

using Gruppi = std::vector<std::vector<int>>;

// Groups as the test scripts print them: elements joined by "-", groups ended by ";".
std::string Elenco(const Gruppi& gruppi) {
  std::string testo;
  for (const auto& gruppo : gruppi) {
    for (size_t i = 0; i < gruppo.size(); ++i) testo += (i ? "-" : "") + std::to_string(gruppo[i]);
    testo += ";";
  }
  return testo;
}

// The numbers of the script's array `n` (1..7, element 0 left Empty as scripts leave it).
constexpr int kNumeri[] = {3, 14, 15, 26, 55, 61, 90};
constexpr const char* kDichiaraNumeri =
    "Dim n(7)\nn(1) = 3 : n(2) = 14 : n(3) = 15 : n(4) = 26 : n(5) = 55 : n(6) = 61 : n(7) = 90\n";

// Prints a 1-based group, and a matrix of groups, in the form of Elenco.
constexpr const char* kStampa =
    "Function Gruppo(c)\n  Gruppo = Join(c, \"-\") & \";\"\nEnd Function\n"
    "Function Righe(m)\n  Dim r, k\n  For r = 1 To UBound(m, 1)\n    For k = 1 To UBound(m, 2)\n"
    "      If k > 1 Then Righe = Righe & \"-\"\n      Righe = Righe & m(r, k)\n    Next\n"
    "    Righe = Righe & \";\"\n  Next\nEnd Function\n";

class LibreriaCombinazioni : public Libreria {
 protected:
  void SetUp() override {
    Avvia(Estrazioni());
    Esegui(kStampa);
  }

  virtual TabellaEstrazioni Estrazioni() const { return TabellaEstrazioni(); }

  // The call fails with error 5, shown under the function's name, and gives no value.
  void ErroreArgomento(std::string_view chiamata, std::string_view funzione) {
    EXPECT_TRUE(Vuoto(chiamata)) << chiamata;
    AvvisoErrore5(funzione, "", chiamata);
  }

  void EseguiSenzaAvvisi(std::string_view codice) {
    Esegui(codice);
    EXPECT_TRUE(m_ospite.avvisi.empty()) << (m_ospite.avvisi.empty() ? "" : m_ospite.avvisi.front().testo);
  }
};

// Pascal's triangle in whole numbers, exact up to row 90 for the classes tested.
uint64_t Binomiale(int n, int k) {
  std::vector<std::vector<uint64_t>> tartaglia(n + 1);
  for (int r = 0; r <= n; ++r) {
    tartaglia[r].assign(r + 1, 1);
    for (int c = 1; c < r; ++c) tartaglia[r][c] = tartaglia[r - 1][c - 1] + tartaglia[r - 1][c];
  }
  return tartaglia[n][k];
}

TEST_F(LibreriaCombinazioni, ConteggiEFattoriali) {
  EXPECT_EQ(Testo("Combinazioni(90, 5)"), std::to_string(Binomiale(90, 5)));
  EXPECT_EQ(Testo("TypeName(Combinazioni(90, 5))"), "Long");
  EXPECT_EQ(Testo("Combinazioni(90, 10)"), std::to_string(Binomiale(90, 10)));
  EXPECT_EQ(Testo("TypeName(Combinazioni(90, 10))"), "Double") << "beyond a Long";
  EXPECT_EQ(Testo("Combinazioni(5, 7)"), "0");
  EXPECT_EQ(Testo("Permutazioni(90, 2)"), "8010");
  EXPECT_EQ(Testo("Permutazioni(5)"), "120") << "all the elements: the permutations";
  EXPECT_EQ(Testo("FattN(10)"), "3628800");
  EXPECT_EQ(Testo("FattorialeNum(0) & TypeName(FattN(3))"), "1Double");
  EXPECT_TRUE(m_ospite.avvisi.empty());

  ErroreArgomento("Combinazioni(-1, 2)", "Combinazioni");
  ErroreArgomento("Permutazioni(5, -1)", "Permutazioni");
  ErroreArgomento("FattN(171)", "FattN");
  ErroreArgomento("FattorialeNum(-1)", "FattorialeNum");
}

TEST_F(LibreriaCombinazioni, SviluppoIntegraleUnaCombinazioneAllaVolta) {
  Gruppi attesi;
  for (int a = 0; a < 7; ++a)
    for (int b = a + 1; b < 7; ++b)
      for (int c = b + 1; c < 7; ++c) attesi.push_back({kNumeri[a], kNumeri[b], kNumeri[c]});

  EseguiSenzaAvvisi(std::string("Dim totale, testo, basi, meta, c, fine\n") + kDichiaraNumeri +
                    "totale = InitSviluppoIntegrale(n, 3)\n"
                    "Do While GetCombSviluppo(c)\n"
                    "  testo = testo & Gruppo(c)\n  basi = basi & LBound(c)\n"
                    "  If GetCombSviluppate() = 7 Then meta = GetPercCombSviluppate()\n"
                    "Loop\n"
                    "c = \"intatto\"\nfine = GetCombSviluppo(c)\n");
  EXPECT_EQ(Testo("totale"), "35");
  EXPECT_EQ(Testo("testo"), Elenco(attesi));
  EXPECT_EQ(Testo("basi"), std::string(35, '1'));
  EXPECT_EQ(Testo("meta"), "20");
  EXPECT_EQ(Testo("GetCombSviluppate() & \" \" & GetPercCombSviluppate()"), "35 100");
  EXPECT_EQ(Testo("fine & \" \" & c"), "Falso intatto") << "a finished development leaves the variable alone";
  EXPECT_EQ(Testo("GetNumPerSviluppo(c) & \" \" & Gruppo(c) & LBound(c)"), "7 3-14-15-26-55-61-90;1");

  EseguiSenzaAvvisi("Dim m, quante\nquante = SviluppoIntegrale(n, 3, m)\n");
  EXPECT_EQ(Testo("quante"), "35");
  EXPECT_EQ(Testo("LBound(m, 1) & LBound(m, 2) & \" \" & UBound(m, 1) & \" \" & UBound(m, 2)"), "11 35 3");
  EXPECT_EQ(Testo("Righe(m)"), Elenco(attesi));
  EXPECT_EQ(Testo("SviluppoIntegrale(n, 7, m) & Righe(m)"), "1" + Elenco({{3, 14, 15, 26, 55, 61, 90}}));
}

TEST_F(LibreriaCombinazioni, SviluppoDellePermutazioni) {
  Gruppi coppie;
  for (int a = 1; a <= 3; ++a)
    for (int b = 1; b <= 3; ++b)
      if (a != b) coppie.push_back({a * 10, b * 10});
  Gruppi permutazioni;
  for (int a = 5; a <= 8; ++a)
    for (int b = 5; b <= 8; ++b)
      for (int c = 5; c <= 8; ++c)
        for (int d = 5; d <= 8; ++d)
          if (a != b && a != c && a != d && b != c && b != d && c != d) permutazioni.push_back({a, b, c, d});

  EseguiSenzaAvvisi(
      "Dim totale, testo, c, m, quante\n"
      "totale = InitSviluppoPermutazioni(Array(10, 20, 30), 2)\n"
      "Do While GetCombPermutazioni(c)\n  testo = testo & Gruppo(c)\nLoop\n"
      "quante = SviluppoPermutazioni(Array(5, 6, 7, 8), 4, m)\n");
  EXPECT_EQ(Testo("totale"), "6");
  EXPECT_EQ(Testo("testo"), Elenco(coppie));
  EXPECT_EQ(Testo("quante"), "24");
  EXPECT_EQ(Testo("Righe(m)"), Elenco(permutazioni));
}

TEST_F(LibreriaCombinazioni, SviluppiImpossibiliOTroppoGrandiSonoRifiutati) {
  Esegui("Dim c, m, tutti(90), i\nFor i = 1 To 90 : tutti(i) = i : Next\n");
  ErroreArgomento("GetCombSviluppo(c)", "GetCombSviluppo");
  EXPECT_TRUE(Vuoto("GetNumPerSviluppo(c)"));
  AvvisoErrore5("GetNumPerSviluppo", "sviluppo avviato", "GetNumPerSviluppo before InitSviluppoIntegrale");
  ErroreArgomento("GetCombSviluppate()", "GetCombSviluppate");
  ErroreArgomento("GetCombPermutazioni(c)", "GetCombPermutazioni");
  ErroreArgomento("InitSviluppoIntegrale(Array(1, 2), 3)", "InitSviluppoIntegrale");
  ErroreArgomento("InitSviluppoIntegrale(Array(1, 2), 0)", "InitSviluppoIntegrale");
  ErroreArgomento("InitSviluppoPermutazioni(Array(1, 2), 3)", "InitSviluppoPermutazioni");
  ErroreArgomento("SviluppoIntegrale(tutti, 5, m)", "SviluppoIntegrale");
  ErroreArgomento("SviluppoPermutazioni(tutti, 4, m)", "SviluppoPermutazioni");
  EXPECT_TRUE(Vuoto("m")) << "a refused development leaves the variable alone";

  // Walked one at a time, the same development needs no memory and is accepted.
  EXPECT_EQ(Testo("InitSviluppoIntegrale(tutti, 5)"), "43949268");
  EXPECT_EQ(Testo("GetCombSviluppo(c) & Gruppo(c) & GetCombSviluppo(c) & Gruppo(c)"), "Vero1-2-3-4-5;Vero1-2-3-4-6;");
}

TEST_F(LibreriaCombinazioni, ProbabilitaECicliTeorici) {
  EXPECT_EQ(Testo("CicloTeorico(1, 1)"), "18");
  EXPECT_EQ(Testo("CicloTeorico(2, 2)"), "400,5");
  EXPECT_EQ(Testo("CicloTeorico(3, 3)"), "11748");
  // Ambo on three numbers: two of them among the five drawn (3 ways, with 3 of the other 87) or all three.
  const double favorevoli = 3.0 * Binomiale(87, 3) + Binomiale(87, 2);
  EXPECT_EQ(Testo("Round(Prob(2, 3) * " + std::to_string(Binomiale(90, 5)) + ", 6)"),
            std::to_string(static_cast<int64_t>(favorevoli)));

  // Of the 90 numbers, each out with probability 1/18: 90 (1/18) (17/18)^r at delay exactly r.
  EXPECT_EQ(Testo("Abs(QuantitaTeoricaCombAlRitX(1, 1, 3) - 90 / 18 * (17 / 18) ^ 3) < 1E-9"), "Vero");
  EXPECT_EQ(Testo("Abs(QuantitaTeoricaCombAlRitX(2, 2, 0) - 10) < 1E-9"), "Vero") << "4005 ambi / 400.5";
  EXPECT_EQ(Testo("Round(QuantitaTeoricaCombMagUgAlRitX(2, 2, 0), 6)"), "4005") << "every ambo has some delay";
  Esegui(
      "Function Somma(a, b)\n  Dim r\n  For r = a To b : Somma = Somma + QuantitaTeoricaCombAlRitX(1, 1, r) : Next\n"
      "End Function\n");
  EXPECT_EQ(Testo("Abs(QuantitaTeoricaCombCompreseTraRit(1, 1, 4, 30) - Somma(4, 30)) < 1E-9"), "Vero");
  EXPECT_EQ(Testo("Abs(QuantitaTeoricaCombMagUgAlRitX(1, 1, 4) - Somma(4, 2000)) < 1E-9"), "Vero");
  EXPECT_TRUE(m_ospite.avvisi.empty());

  ErroreArgomento("Prob(6, 10)", "Prob");
  ErroreArgomento("Prob(3, 2)", "Prob");
  ErroreArgomento("CicloTeorico(1, 91)", "CicloTeorico");
  ErroreArgomento("QuantitaTeoricaCombAlRitX(2, 2, -1)", "QuantitaTeoricaCombAlRitX");
  ErroreArgomento("QuantitaTeoricaCombCompreseTraRit(2, 2, 5, 3)", "QuantitaTeoricaCombCompreseTraRit");
}

TEST_F(LibreriaCombinazioni, NumeriCasualiNelLoroIntervalloESenzaRipetizioni) {
  ErroreArgomento("GetNumeroUnivoco()", "GetNumeroUnivoco");
  EseguiSenzaAvvisi(
      "Dim visti(9), fuori, i, x\n"
      "For i = 1 To 300\n  x = NumeroCasuale(5, 9)\n  If x < 5 Or x > 9 Then fuori = True Else visti(x) = True\n"
      "  x = NumeroCasuale()\n  If x < 1 Or x > 90 Then fuori = True\nNext\n");
  EXPECT_TRUE(Vuoto("fuori"));
  EXPECT_EQ(Testo("visti(5) And visti(6) And visti(7) And visti(8) And visti(9)"), "Vero") << "every value can come";

  Esegui(
      "Function Crescenti(c, massimo)\n  Dim i\n  Crescenti = LBound(c) = 1\n"
      "  For i = 1 To UBound(c)\n    If c(i) < 1 Or c(i) > massimo Then Crescenti = False\n"
      "    If i > 1 Then\n      If c(i) <= c(i - 1) Then Crescenti = False\n    End If\n  Next\nEnd Function\n"
      "Dim c\n");
  for (int prova = 0; prova < 20; ++prova) {
    EXPECT_EQ(Testo("IsEmpty(GetColonnaCasuale(10, c)) & UBound(c) & Crescenti(c, 90)"), "Vero10Vero");
    EXPECT_EQ(Testo("IsEmpty(GetColonnaCasuale(3, c, 4)) & UBound(c) & Crescenti(c, 4)"), "Vero3Vero");
  }
  EXPECT_EQ(Testo("IsEmpty(GetColonnaCasuale(5, c, 5)) & Join(c, \" \")"), "Vero1 2 3 4 5");
  ErroreArgomento("GetColonnaCasuale(6, c, 5)", "GetColonnaCasuale");
  ErroreArgomento("GetColonnaCasuale(0, c)", "GetColonnaCasuale");
  ErroreArgomento("NumeroCasuale(9, 5)", "NumeroCasuale");

  EseguiSenzaAvvisi(
      "Dim dati(12), doppi, u\nInitGenNumUnivoci 3, 12\n"
      "For i = 1 To 10\n  u = GetNumeroUnivoco()\n"
      "  If u < 3 Or u > 12 Then\n    doppi = True\n  ElseIf dati(u) Then\n    doppi = True\n"
      "  Else\n    dati(u) = True\n  End If\n"
      "Next\n");
  EXPECT_TRUE(Vuoto("doppi"));
  ErroreArgomento("GetNumeroUnivoco()", "GetNumeroUnivoco");
  ErroreArgomento("InitGenNumUnivoci(1, 20000000)", "InitGenNumUnivoci");
}

TEST_F(LibreriaCombinazioni, AmbiPerDistanzaEPerSomma) {
  Esegui("Dim m\n");
  // Distances of 1, 10, 46, 55: 9, 45, 36 (from 54), 36, 45, 9.
  EXPECT_EQ(Testo("GetAmbiDistanzaX(Array(1, 10, 46, 55), 9, m) & \" \" & Righe(m)"), "2 1-10;46-55;");
  EXPECT_EQ(Testo("GetAmbiDistanzaX(Array(1, 10, 46, 55), 45, m) & \" \" & Righe(m)"), "2 1-46;10-55;");
  // Sums of 1, 89, 45, 46, 90 in 1..90: only 1 + 89 is 90; 45 + 46 and 1 + 90 are 91, that is 1.
  EXPECT_EQ(Testo("GetAmbiSommaX(Array(1, 89, 45, 46, 90), 90, m) & \" \" & Righe(m)"), "1 1-89;");
  EXPECT_EQ(Testo("GetAmbiSommaX(Array(1, 89, 45, 46, 90), 1, m) & \" \" & Righe(m)"), "2 1-90;45-46;");
  EXPECT_EQ(Testo("GetAmbiSommaX(Array(1, 2), 50, m) & \" \" & UBound(m, 1)"), "0 0");
}

TEST_F(LibreriaCombinazioni, ListeDiNumeriEVettoriDiPresenze) {
  EXPECT_EQ(Testo("Join(EliminaRipetuti(Array(5, 3, 5, 90, 3, 1)), \" \")"), "5 3 90 1");
  EXPECT_EQ(Testo("LBound(EliminaRipetuti(Array(5)))"), "1");

  Esegui(
      "Dim b\nb = ArrayNumeriToBool(Array(1, 45, 90, 45))\n"
      "Function Veri(v)\n  Dim i\n  For i = 1 To 90 : If v(i) Then Veri = Veri + 1\n  Next\nEnd Function\n");
  EXPECT_EQ(Testo("LBound(b) & \" \" & UBound(b) & \" \" & Veri(b) & b(1) & b(2) & b(45) & b(90)"),
            "1 90 3VeroFalsoVeroVero");
  EXPECT_EQ(Testo("Join(ArrayBNumToArrayNum(b), \" \")"), "1 45 90");
  EXPECT_EQ(Testo("ArrayBToString(b)"), "01.45.90");
  EXPECT_EQ(Testo("ArrayBToString(ArrayNumToArrayBNum(Array(7, 3)), \" - \")"), "03 - 07");
  EXPECT_EQ(Testo("Join(ArrayBNumToArrayNum(StringaNumeriToArrayB(\"90.3\")), \" \")"), "3 90");
  EXPECT_EQ(Testo("Join(StringaNumeriToArray(\"1.2.45\"), \" \") & TypeName(StringaNumeriToArray(\"7\")(1))"),
            "1 2 45Long");
  EXPECT_EQ(Testo("Join(StringaNumeriToArray(\" 5-7 --9\", \"-\"), \" \")"), "5 7 9") << "blank pieces skipped";
  EXPECT_EQ(Testo("UBound(StringaNumeriToArray(\"\"))"), "0");

  Esegui("Dim t(2, 3), r, k\nFor r = 1 To 2 : For k = 1 To 3 : t(r, k) = r * 10 + k : Next : Next\n");
  EXPECT_EQ(Testo("Join(MatriceNumToVetNum(t), \" \")"), "11 12 13 21 22 23") << "row by row, Empty left out";
  EXPECT_EQ(Testo("Join(ArrayBNumToArrayNum(MatriceNumToBNum(t)), \" \")"), "11 12 13 21 22 23");
  EXPECT_TRUE(m_ospite.avvisi.empty());

  ErroreArgomento("ArrayNumeriToBool(Array(0))", "ArrayNumeriToBool");
  ErroreArgomento("ArrayNumToArrayBNum(Array(91))", "ArrayNumToArrayBNum");
  ErroreArgomento("ArrayNumeriToBool(Array(4.5))", "ArrayNumeriToBool");
  ErroreArgomento("StringaNumeriToArray(\"1.x\")", "StringaNumeriToArray");
  ErroreArgomento("StringaNumeriToArray(\"1.2\", \"\")", "StringaNumeriToArray");
  ErroreArgomento("ArrayBToString(5)", "ArrayBToString");
}

TEST_F(LibreriaCombinazioni, ConteggiDentroUnaLista) {
  // Odd 1, 7, 11, 45; even 2, 90 and 0 (which is 90); zero 0; primes 2, 7, 11.
  Esegui("Dim v, r\nv = Array(1, 2, 7, 11, 90, 45, 0)\n");
  EXPECT_EQ(Testo("NumeriDispari(v, r) & \" \" & Join(r, \" \")"), "4 1 7 11 45");
  EXPECT_EQ(Testo("NumeriPari(v, r) & \" \" & Join(r, \" \")"), "3 2 90 0");
  EXPECT_EQ(Testo("NumeriNulli(v, r) & \" \" & Join(r, \" \")"), "1 0");
  EXPECT_EQ(Testo("NumeriPrimi(v, r) & \" \" & Join(r, \" \")"), "3 2 7 11");
  EXPECT_EQ(Testo("NumeriNonPrimi(v, r) & \" \" & Join(r, \" \")"), "4 1 90 45 0");
  EXPECT_EQ(Testo("NumeriPrimi(v)"), "3") << "the list is optional";

  Esegui("Dim w\nw = Array(4, 8, 4, 9, 8, 4)\n");
  EXPECT_EQ(Testo("NumeriRipetuti(w, r) & \" \" & Join(r, \" \")"), "2 4 8");
  EXPECT_EQ(Testo("Ripetizioni(w, 4) & Ripetizioni(w, 9) & Ripetizioni(w, 5)"), "310");
  EXPECT_EQ(Testo("Differenza(Array(1, 2, 3, 4, 5, 3), Array(2, 4, 6), r) & \" \" & Join(r, \" \")"), "4 1 3 5 3");
  EXPECT_EQ(Testo("Massimo(Array(5, -2, 90.5, 7)) & \" \" & Minimo(Array(5, -2, 90.5, 7))"), "90,5 -2");
  EXPECT_EQ(Testo("Massimo(4)"), "4");
  EXPECT_TRUE(m_ospite.avvisi.empty());
  ErroreArgomento("Massimo(Array())", "Massimo");
}

TEST_F(LibreriaCombinazioni, PosizioneDelMassimoEDelMinimoENumeriComuni) {
  EXPECT_EQ(Testo("MassimoV(Array(5, 9, 2, 9, 2)) & MinimoV(Array(5, 9, 2, 9, 2))"), "23") << "the first of equals";
  // Elements 0 and 2 are Empty: the values read are 7, 1, 7.
  Esegui("Dim v(4), r\nv(1) = 7 : v(3) = 1 : v(4) = 7\n");
  EXPECT_EQ(Testo("MassimoV(v) & MinimoV(v)"), "12") << "positions among the values, not array indices";
  EXPECT_EQ(Testo("MassimoV(Array()) & MinimoV(Array()) & MinimoV(-4)"), "001");

  EXPECT_EQ(Testo("NumeriRipetutiRilevatiV(Array(5, 3, 9, 3, 7), Array(7, 3, 1, 3), r) & \" \" & Join(r, \" \")"),
            "2 3 7");
  EXPECT_EQ(Testo("NumeriRipetutiRilevatiV(v, Array(1, 2), r) & \" \" & Join(r, \" \") & LBound(r)"), "1 11");
  EXPECT_EQ(Testo("NumeriRipetutiRilevatiV(Array(1, 2), Array(3), r) & UBound(r)"), "00");
  EXPECT_TRUE(m_ospite.avvisi.empty());
}

// Three draws. Nazionale is drawn from draw 3; Cagliari is not drawn in draw 2. Draw 3 writes every
// wheel: 7 and 30 are at positions 1-2 on Bari and Firenze and at 2-1 on Cagliari, 15 and 16 at 3-4
// on Firenze and Nazionale; no other two wheels share two numbers.
class LibreriaTreEstrazioni : public LibreriaCombinazioni {
 protected:
  TabellaEstrazioni Estrazioni() const override {
    return test::Archivio()
        .NazionaleDa(3)
        .Estrazione({{BA, {10, 20, 30, 40, 50}}, {CA, {1, 2, 3, 4, 5}}})
        .Estrazione({{BA, {20, 11, 50, 10, 60}}, {CA, {0, 0, 0, 0, 0}}})
        .Estrazione({{BA, {7, 30, 61, 12, 44}},
                     {CA, {30, 7, 1, 4, 90}},
                     {FI, {7, 30, 15, 16, 17}},
                     {GE, {21, 22, 23, 24, 25}},
                     {MI, {26, 27, 28, 29, 31}},
                     {NA, {32, 33, 34, 35, 36}},
                     {PA, {37, 38, 39, 40, 41}},
                     {RO, {42, 43, 45, 46, 47}},
                     {TO, {48, 49, 51, 52, 53}},
                     {VE, {54, 55, 56, 57, 58}},
                     {NZ, {59, 60, 15, 16, 8}}})
        .Tabella();
  }
};

TEST_F(LibreriaTreEstrazioni, MassimoEMinimoDiUnaRuota) {
  EXPECT_EQ(Testo("MassimoE(1, BA_) & \" \" & MinimoE(1, BA_) & \" \" & MassimoE(2, BA_) & \" \" & MinimoE(2, BA_)"),
            "50 10 60 10");
  EXPECT_EQ(Testo("MassimoE(3, 12) & \" \" & MinimoE(3, NZ_)"), "60 8") << "12 is NZ_ in scripts";
  EXPECT_EQ(Testo("MassimoE(2, CA_) & MinimoE(2, CA_) & MassimoE(2, NZ_)"), "000") << "wheels not drawn";
  EXPECT_TRUE(m_ospite.avvisi.empty());
  ErroreArgomento("MassimoE(3, 11)", "MassimoE");
  ErroreArgomento("MinimoE(1, 13)", "MinimoE");
  ErroreArgomento("MassimoE(4, BA_)", "MassimoE");
  ErroreArgomento("MinimoE(0, BA_)", "MinimoE");
}

TEST_F(LibreriaTreEstrazioni, NumeriRipetutiDallUltimaEstrazioneDellaRuota) {
  Esegui("Dim r\n");
  EXPECT_EQ(Testo("NumeriRipetutiRilevatiE(2, BA_, r) & \" \" & Join(r, \" \") & LBound(r)"), "3 20 50 101");
  EXPECT_EQ(Testo("NumeriRipetutiRilevatiE(3, CA_, r) & \" \" & Join(r, \" \")"), "2 1 4")
      << "draw 2, where Cagliari was not drawn, is passed over";
  EXPECT_EQ(Testo("NumeriRipetutiRilevatiE(3, BA_, r) & UBound(r)"), "00");
  EXPECT_EQ(Testo("NumeriRipetutiRilevatiE(2, CA_, r) & NumeriRipetutiRilevatiE(1, BA_, r) & "
                  "NumeriRipetutiRilevatiE(3, 12, r)"),
            "000")
      << "a wheel not drawn, and the first draw of a wheel, have no repeats";
  EXPECT_TRUE(m_ospite.avvisi.empty());
  ErroreArgomento("NumeriRipetutiRilevatiE(3, TU_, r)", "NumeriRipetutiRilevatiE");
  ErroreArgomento("NumeriRipetutiRilevatiE(4, BA_, r)", "NumeriRipetutiRilevatiE");
}

TEST_F(LibreriaTreEstrazioni, AmbiUgualiSuDueRuote) {
  Esegui("Dim m\n");
  EXPECT_EQ(Testo("GetAmbiUguali(3, m) & \" \" & Righe(m)"), "4 7-30-1-2;7-30-1-3;7-30-2-3;15-16-3-12;");
  EXPECT_EQ(Testo("GetAmbiUgualiIsotopi(3, m) & \" \" & Righe(m)"), "2 7-30-1-3;15-16-3-12;");
  EXPECT_EQ(Testo("GetAmbiUgualiDistanzaX(3, 23, m) & \" \" & Righe(m)"), "3 7-30-1-2;7-30-1-3;7-30-2-3;");
  EXPECT_EQ(Testo("GetAmbiUgualiIsotopiDistanzaX(3, 1, m) & \" \" & Righe(m)"), "1 15-16-3-12;");
  EXPECT_EQ(Testo("GetAmbiUgualiSommaX(3, 121, m) & \" \" & Righe(m)"), "1 15-16-3-12;") << "121 is 31 in 1..90";
  EXPECT_EQ(Testo("GetAmbiUgualiIsotopiSommaX(3, 37, m) & \" \" & Righe(m)"), "1 7-30-1-3;");
  EXPECT_EQ(Testo("GetAmbiUgualiSommaX(3, 50, m) & \" \" & UBound(m, 1) & \" \" & UBound(m, 2)"), "0 0 4");

  // Draw 2: the eight wheels Firenze..Venezia hold the same five numbers, 10 ambi on each of their 28
  // pairs; Cagliari and Nazionale, not drawn, share nothing.
  EXPECT_EQ(Testo("GetAmbiUguali(2, m) & \" \" & GetAmbiUgualiIsotopi(2, m)"), "280 280");
  EXPECT_EQ(Testo("m(1, 1) & \"-\" & m(1, 2) & \"-\" & m(1, 3) & \"-\" & m(1, 4) & \" \" & "
                  "m(280, 1) & \"-\" & m(280, 2) & \"-\" & m(280, 3) & \"-\" & m(280, 4)"),
            "81-82-3-4 84-85-9-10");
  EXPECT_TRUE(m_ospite.avvisi.empty());
  ErroreArgomento("GetAmbiUguali(4, m)", "GetAmbiUguali");
  ErroreArgomento("GetAmbiUgualiSommaX(0, 5, m)", "GetAmbiUgualiSommaX");
}

TEST_F(LibreriaCombinazioni, OrdinaMatriceSulPosto) {
  Esegui("Dim v(5)\nv(1) = 5 : v(2) = 3 : v(3) = 9 : v(4) = 1 : v(5) = 7\nOrdinaMatrice v\n");
  EXPECT_EQ(Testo("IsEmpty(v(0)) & \" \" & Join(v, \" \")"), "Vero  1 3 5 7 9") << "element 0 stays where it is";
  Esegui("OrdinaMatrice v, -1\n");
  EXPECT_EQ(Testo("Join(v, \" \")"), " 9 7 5 3 1");

  Esegui("Dim w\nw = Array(\"b\", 10, \"a\", 2)\nOrdinaMatrice w\n");
  EXPECT_EQ(Testo("Join(w, \" \")"), "2 10 a b") << "numbers before texts";

  Esegui(
      "Dim m(4, 2)\nm(1, 1) = 3 : m(1, 2) = \"c\" : m(2, 1) = 1 : m(2, 2) = \"a\"\n"
      "m(3, 1) = 2 : m(3, 2) = \"b\" : m(4, 1) = 1 : m(4, 2) = \"z\"\nOrdinaMatrice m, 1, 1\n");
  EXPECT_EQ(Testo("Righe(m)"), "1-a;1-z;2-b;3-c;") << "whole rows move, equal keys keep their order";
  Esegui("OrdinaMatrice m, -1, 2\n");
  EXPECT_EQ(Testo("Righe(m)"), "1-z;3-c;2-b;1-a;");
  Esegui("OrdinaMatriceTurbo m\n");
  EXPECT_EQ(Testo("Righe(m)"), "1-z;1-a;2-b;3-c;") << "OrdinaMatriceTurbo sorts as OrdinaMatrice, stably";
  EXPECT_TRUE(m_ospite.avvisi.empty());

  ErroreArgomento("OrdinaMatrice(m, 0)", "OrdinaMatrice");
  ErroreArgomento("OrdinaMatrice(m, 1, 3)", "OrdinaMatrice");
  ErroreArgomento("OrdinaMatrice(5)", "OrdinaMatrice");
  ErroreArgomento("OrdinaMatrice(Array(1, Null))", "OrdinaMatrice");
}

TEST_F(LibreriaCombinazioni, AiutiDelloScript) {
  Esegui("Dim r\n");
  EXPECT_EQ(Testo("SplitByChar(\"a;b;;c\", \";\", r) & \" \" & Join(r, \"|\") & LBound(r)"), "4 a|b||c1");
  EXPECT_EQ(Testo("SplitByChar(\"\", \";\", r)"), "0");
  EXPECT_EQ(Testo("MidX(\"abcdef\", 3) & \" \" & MidX(\"abcdef\", 0, 2) & \" \" & MidX(\"abcdef\", 2, -1)"),
            "cdef ab bcdef");
  EXPECT_EQ(Testo("\"[\" & MidX(\"abcdef\", 9) & \"]\""), "[]");
  EXPECT_EQ(Testo("RimuoviLastChr(\"1.2.3.\") & \" \" & RimuoviLastChr(\"abc\", \".\") & \" \" & "
                  "RimuoviLastChr(\"1-2--\", \"--\") & \"[\" & RimuoviLastChr(\"\") & \"]\""),
            "1.2.3 abc 1-2[]");
  EXPECT_EQ(Testo("Iif(1 > 0, \"si\", \"no\") & Iif(False, 1, 2)"), "si2");

  Esegui(
      "Dim a, b, origine, copia\na = 1 : b = \"x\"\nScambia a, b\n"
      "origine = Array(1, 2)\nCopiaArray origine, copia\ncopia(0) = 9\n");
  EXPECT_EQ(Testo("a & \" \" & b"), "x 1");
  EXPECT_EQ(Testo("Join(origine, \" \") & \" \" & Join(copia, \" \")"), "1 2 9 2") << "the copy is its own";
  EXPECT_TRUE(m_ospite.avvisi.empty());

  ErroreArgomento("SplitByChar(\"a\", \"\", r)", "SplitByChar");
  ErroreArgomento("CopiaArray(5, copia)", "CopiaArray");
}

}  // namespace
}  // namespace lottolab::script
