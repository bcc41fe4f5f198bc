#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <vector>

#include "archive/Ruote.h"
#include "stats/Numeri.h"

namespace lottolab::stats {
namespace {

struct Caso {
  double n;
  int atteso;
};

void Verifica(int16_t (*funzione)(double), std::initializer_list<Caso> casi) {
  for (const Caso& caso : casi) EXPECT_EQ(funzione(caso.n), caso.atteso) << "n = " << caso.n;
}

struct CasoDoppio {
  double a;
  double b;
  int atteso;
};

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinito = std::numeric_limits<double>::infinity();

TEST(FuoriX, RiportaNelCerchioArrotondandoAlPariEGirandoINegativi) {
  struct CasoX {
    double n;
    int16_t base;
    int atteso;
  };
  for (const CasoX& caso : std::initializer_list<CasoX>{
           {0, 90, 90},   {90, 90, 90},   {91, 90, 1},      {180, 90, 90},      {181, 90, 1},   {-1, 90, 89},
           {-90, 90, 90}, {-91, 90, 89},  {49, 49, 49},     {50, 49, 1},        {0, 49, 49},    {46, 45, 1},
           {0, 42, 42},   {2.5, 90, 2},   {3.5, 90, 4},     {-0.5, 90, 90},     {90.5, 90, 90}, {91.5, 90, 2},
           {0.4, 90, 90}, {32767, 90, 7}, {-32768, 90, 82}, {-32768.5, 90, 82}, {17, 1, 1},     {-1, -90, -91},
       }) {
    EXPECT_EQ(FuoriX(caso.n, caso.base), caso.atteso) << caso.n << " in " << caso.base;
    EXPECT_EQ(RiduciInX(caso.n, caso.base), caso.atteso) << caso.n << " in " << caso.base;
  }
  EXPECT_EQ(Fuori90(-1), 89);
  EXPECT_EQ(Fuori49(50), 1);
  EXPECT_EQ(Fuori45(0), 45);
  EXPECT_EQ(Fuori42(43), 1);
}

TEST(FuoriX, UnNumeroOltreI16BitTornaLaBaseConIlSuoMessaggio) {
  for (double troppo : {32767.5, 32768.0, -32769.0, 1e20, -1e20, kNaN, kInfinito, -kInfinito}) {
    EXPECT_FALSE(RiduciInX(troppo, 90)) << troppo;
    EXPECT_EQ(FuoriX(troppo, 49), 49) << troppo;
  }
  // Reduced with a negative base, -1 lands below the 16-bit range: that too answers the base.
  EXPECT_FALSE(RiduciInX(-1, -32768));
  EXPECT_EQ(FuoriX(-1, -32768), -32768);

  EXPECT_EQ(MessaggioNumeroTroppoGrande(40000, 90), "Numero 40000 troppo grande la funzione tornera 90");
  EXPECT_EQ(MessaggioNumeroTroppoGrande(32767.5, 49), "Numero 32767.5 troppo grande la funzione tornera 49");
  EXPECT_EQ(MessaggioNumeroTroppoGrande(-1e20, 90), "Numero -1E+20 troppo grande la funzione tornera 90");
}

TEST(FuoriX, UnaBaseZeroDaZeroSenzaMessaggio) {
  EXPECT_EQ(RiduciInX(5, 0), 0);
  EXPECT_EQ(FuoriX(5, 0), 0);
}

TEST(Diametrale, QuarantacinquePostiPiuAvantiNelCerchio) {
  Verifica(Diametrale, {{1, 46}, {45, 90}, {46, 1}, {90, 45}, {0, 45}, {-1, 44}});
}

TEST(DiametraleD, CinquePostiPiuAvantiNellaDecinaCon90InTestaAllaPrima) {
  Verifica(DiametraleD, {{10, 15},
                         {15, 10},
                         {19, 14},
                         {90, 5},
                         {5, 90},
                         {4, 9},
                         {9, 4},
                         {1, 6},
                         {80, 85},
                         {89, 84},
                         {0, 0},
                         {91, 0},
                         {-5, 0},
                         {5.5, 0}});
  for (int n = 1; n <= 90; ++n) {
    EXPECT_EQ(DiametraleD(DiametraleD(n)), n) << n;
    EXPECT_EQ(DecinaCabalistica(DiametraleD(n)), DecinaCabalistica(n)) << n;
  }
}

TEST(Cadenza, UltimoCarattereDelTestoDecimale) {
  Verifica(Cadenza, {{90, 0}, {5, 5}, {89, 9}, {0, 0}, {-0.0, 0}, {-7, 7}, {123, 3}, {12.5, 5}, {1e20, 0}});
}

TEST(Figura, SommaDelleCifreFinoANonOltre9) {
  Verifica(Figura, {{90, 9},
                    {89, 8},
                    {10, 1},
                    {19, 1},
                    {99, 9},
                    {9, 9},
                    {1, 1},
                    {0, 0},
                    {-5, -5},
                    {-123, -123},
                    {2.5, 2},
                    {12.5, 8},
                    {9.5, 5},
                    {1e20, 3},
                    {kNaN, 0}});
}

TEST(Decine, TreMisureDellaDecinaAiLoroBordi) {
  Verifica(
      Decina,
      {{-15, 0}, {0, 0}, {1, 0}, {9, 0}, {10, 1}, {19, 1}, {20, 2}, {89, 8}, {90, 9}, {95, 9}, {123, 0}, {9.5, 0}});
  Verifica(
      DecinaNaturale,
      {{-5, 0}, {0, 0}, {1, 0}, {10, 0}, {11, 1}, {20, 1}, {21, 2}, {80, 7}, {81, 8}, {90, 8}, {91, 0}, {10.5, 0}});
  Verifica(DecinaCabalistica,
           {{-5, 0}, {0, 0}, {1, 1}, {9, 1}, {90, 1}, {10, 2}, {19, 2}, {20, 3}, {80, 9}, {89, 9}, {91, 0}, {9.5, 0}});
}

TEST(ControFigura, RigaDellaTabellaCon37DoppioE38Assente) {
  Verifica(ControFigura, {{37, 4},
                          {38, 0},
                          {90, 2},
                          {11, 3},
                          {1, 1},
                          {10, 10},
                          {12, 1},
                          {22, 4},
                          {33, 5},
                          {88, 10},
                          {89, 1},
                          {0, 0},
                          {-1, 0},
                          {1.5, 0},
                          {91, 0}});
  std::vector<int> senza_gruppo;
  for (int n = 1; n <= 90; ++n) {
    if (ControFigura(n) == 0) senza_gruppo.push_back(n);
  }
  EXPECT_EQ(senza_gruppo, std::vector<int>{38});
}

TEST(Radicale, RigaDellaTabellaSenza9E90) {
  Verifica(Radicale, {{9, 0},
                      {90, 0},
                      {10, 1},
                      {39, 3},
                      {1, 1},
                      {11, 1},
                      {19, 1},
                      {2, 2},
                      {30, 3},
                      {44, 4},
                      {88, 8},
                      {89, 8},
                      {12, 0},
                      {0, 0},
                      {-1, 0}});
}

TEST(Vert, GemelliENumeriCheFinisconoPer9SiScambianoTraLoro) {
  Verifica(vert, {{9, 90},
                  {90, 9},
                  {33, 39},
                  {39, 33},
                  {11, 19},
                  {19, 11},
                  {88, 89},
                  {89, 88},
                  {5, 50},
                  {1, 10},
                  {10, 1},
                  {12, 21},
                  {80, 8},
                  {0, -1},
                  {-5, -1},
                  {123, 31},
                  {121, 19},
                  {129, 11}});
}

TEST(Vert, EInversoDiSeStessoDa1A90) {
  for (int n = 1; n <= 90; ++n) {
    const int v = vert(n);
    EXPECT_GE(v, 1) << n;
    EXPECT_LE(v, 90) << n;
    EXPECT_EQ(vert(v), n) << n;
  }
}

TEST(RuoteCollegate, DiametraleEGemellaScambianoCoppieDiRuoteELascianoIlResto) {
  struct CasoRuota {
    int16_t r;
    int diametrale;
    int gemella;
  };
  for (const CasoRuota& caso : std::initializer_list<CasoRuota>{{BA, NA, VE},
                                                                {CA, PA, TO},
                                                                {FI, RO, RO},
                                                                {GE, TO, PA},
                                                                {MI, VE, NA},
                                                                {NA, BA, MI},
                                                                {PA, CA, GE},
                                                                {RO, FI, FI},
                                                                {TO, GE, CA},
                                                                {VE, MI, BA},
                                                                {NZ, NZ, NZ},
                                                                {0, 0, 0},
                                                                {12, 12, 12},
                                                                {-3, -3, -3}}) {
    EXPECT_EQ(RuotaDiametrale(caso.r), caso.diametrale) << SiglaRuota(caso.r);
    EXPECT_EQ(RuotaGemella(caso.r), caso.gemella) << SiglaRuota(caso.r);
  }
}

TEST(ComplAdX, ComplementoConZeroCome90ENonPositivoComeX) {
  struct CasoCompl {
    double n;
    int16_t x;
    int atteso;
  };
  for (const CasoCompl& caso : std::initializer_list<CasoCompl>{{30, 90, 60},
                                                                {90, 90, 90},
                                                                {95, 90, 90},
                                                                {89, 90, 1},
                                                                {30, 0, 60},
                                                                {10, 49, 39},
                                                                {-5, 90, 95},
                                                                {89.5, 90, 90},
                                                                {88.5, 90, 2}}) {
    EXPECT_EQ(ComplAdX(caso.n, caso.x), caso.atteso) << caso.n << " a " << caso.x;
  }
}

TEST(Gemello, PrimoEUltimoCarattereUguali) {
  Verifica(Gemello, {{33, kVero},
                     {11, kVero},
                     {88, kVero},
                     {3, kFalso},
                     {90, kFalso},
                     {10, kFalso},
                     {0, kFalso},
                     {99, kVero},
                     {101, kVero},
                     {-5, kFalso},
                     {-10, kVero}});
}

TEST(DiffCiclometrica, DifferenzaOrientataChePassaSopraLo0) {
  for (const CasoDoppio& caso : std::initializer_list<CasoDoppio>{{10, 5, 5},
                                                                  {5, 10, 85},
                                                                  {7, 7, 90},
                                                                  {1, 90, 1},
                                                                  {90, 1, 89},
                                                                  {5, 185, 90},
                                                                  {-100, 0, 80},
                                                                  {200, 5, 195},
                                                                  {2.5, 1, 1}}) {
    EXPECT_EQ(DiffCiclometrica(caso.a, caso.b), caso.atteso) << caso.a << " - " << caso.b;
  }
  EXPECT_EQ(DiffCiclometricaX(5, 10, 49), 44);
  EXPECT_EQ(DiffCiclometricaX(3, 3, 0), 90);
  EXPECT_EQ(DiffCiclometricaX(1, 2, -7), 89);
  EXPECT_EQ(DiffCiclometricaX(-1e12, 0, 90), 80);
}

TEST(Distanza, PiuBreveTra1E45EDa90TraNumeriUguali) {
  for (const CasoDoppio& caso : std::initializer_list<CasoDoppio>{{1, 90, 1},
                                                                  {1, 46, 45},
                                                                  {1, 47, 44},
                                                                  {4, 4, 90},
                                                                  {46, 1, 45},
                                                                  {91, 1, 90},
                                                                  {0, 45, 45},
                                                                  {-1, 1, 2},
                                                                  {181, 44, 43}}) {
    EXPECT_EQ(Distanza(caso.a, caso.b), caso.atteso) << caso.a << ", " << caso.b;
  }
  for (int a = 1; a <= 90; ++a) {
    for (int b = 1; b <= 90; ++b) {
      const int d = Distanza(a, b);
      EXPECT_EQ(d, Distanza(b, a));
      if (a == b) {
        EXPECT_EQ(d, 90) << a;
      } else {
        EXPECT_TRUE(d >= 1 && d <= 45) << a << ", " << b << " -> " << d;
        EXPECT_TRUE(DiffCiclometrica(a, b) == d || DiffCiclometrica(b, a) == d) << a << ", " << b;
      }
    }
  }
}

TEST(Distanza, SuUnCerchioQualunqueNonRiduceGliArgomenti) {
  struct CasoX {
    double a;
    double b;
    int16_t x;
    int atteso;
  };
  for (const CasoX& caso : std::initializer_list<CasoX>{{1, 23, 45, 22},
                                                        {1, 24, 45, 22},
                                                        {1, 1, 45, 45},
                                                        {1, 25, 49, 24},
                                                        {1, 26, 49, 24},
                                                        {3, 3, 0, 90},
                                                        {1, 90, -1, 1},
                                                        {1, 100, 90, -9}}) {
    EXPECT_EQ(DistanzaX(caso.a, caso.b, caso.x), caso.atteso) << caso.a << ", " << caso.b << " su " << caso.x;
  }
}

TEST(Classi, PariDispariEPrimiDopoLaRiduzione) {
  Verifica(Pari, {{2, kVero}, {90, kVero}, {0, kVero}, {1, kFalso}, {91, kFalso}, {-1, kFalso}});
  Verifica(Dispari, {{1, kVero}, {89, kVero}, {91, kVero}, {2, kFalso}, {0, kFalso}, {-1, kVero}});
  Verifica(Primo, {{1, kFalso},
                   {2, kVero},
                   {3, kVero},
                   {9, kFalso},
                   {49, kFalso},
                   {89, kVero},
                   {90, kFalso},
                   {91, kFalso},
                   {92, kVero},
                   {0, kFalso}});
  int primi = 0;
  for (int n = 1; n <= 90; ++n) {
    EXPECT_NE(Pari(n), Dispari(n)) << n;
    if (Primo(n) == kVero) ++primi;
  }
  EXPECT_EQ(primi, 24);
}

TEST(Trasposizione, CifreScambiateEDiNuovoNelCerchio) {
  Verifica(Trasposizione, {{12, 21}, {5, 50}, {39, 3}, {90, 9}, {9, 90}, {33, 33}, {10, 1}, {0, 9}, {95, 50}, {-1, 8}});
}

TEST(Piramide, SommeDiCoppieVicineFinoADueCifre) {
  struct CasoPiramide {
    std::vector<double> numeri;
    int atteso;
  };
  for (const CasoPiramide& caso : std::initializer_list<CasoPiramide>{
           {{12, 34, 56, 78, 90}, 6}, {{5}, 5}, {{0}, 90}, {{1, 2}, 23}, {{91, 1}, 22}, {{55, 55}, 90}, {{}, 0}}) {
    EXPECT_EQ(Piramide(caso.numeri), caso.atteso) << ::testing::PrintToString(caso.numeri);
  }
}

}  // namespace
}  // namespace lottolab::stats
