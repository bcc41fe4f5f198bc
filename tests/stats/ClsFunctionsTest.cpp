#include <gtest/gtest.h>

#include <initializer_list>
#include <string_view>

#include "stats/ClsFunctions.h"

namespace lottolab::stats {
namespace {

struct Caso {
  double n;
  int atteso;
};

TEST(ClsFunctions, Fuori90NonFaGirareINegativi) {
  for (const Caso& caso : std::initializer_list<Caso>{{0, 90},
                                                      {0.4, 90},
                                                      {1, 1},
                                                      {90, 90},
                                                      {91, 1},
                                                      {180, 90},
                                                      {181, 1},
                                                      {1000, 10},
                                                      {2.5, 2},
                                                      {-1, -1},
                                                      {-90, -90}}) {
    EXPECT_EQ(ClsFunctions::Fuori90(caso.n), caso.atteso) << caso.n;
  }
  for (const Caso& caso : std::initializer_list<Caso>{{1, 46}, {45, 90}, {46, 1}, {90, 45}, {-45, 90}, {-50, -5}}) {
    EXPECT_EQ(ClsFunctions::Diametrale(caso.n), caso.atteso) << caso.n;
  }
}

TEST(ClsFunctions, SimmetricoDa91SoloPerIPositivi) {
  for (const Caso& caso : std::initializer_list<Caso>{{1, 90}, {90, 1}, {45, 46}, {0, -1}, {-3, -1}, {100, -9}}) {
    EXPECT_EQ(ClsFunctions::Simmetrico(caso.n), caso.atteso) << caso.n;
  }
}

TEST(ClsFunctions, DifferenzaEDistanzaSenzaRiduzione) {
  struct CasoDoppio {
    double a;
    double b;
    int differenza;
    int distanza;
  };
  for (const CasoDoppio& caso : std::initializer_list<CasoDoppio>{{5, 10, 5, 5},
                                                                  {10, 5, 5, 5},
                                                                  {7, 7, 90, 90},
                                                                  {1, 90, 89, 1},
                                                                  {1, 46, 45, 45},
                                                                  {1, 47, 46, 44},
                                                                  {0, 90, 90, 90},
                                                                  {1, 100, 99, -9}}) {
    EXPECT_EQ(ClsFunctions::Differenza_ab(caso.a, caso.b), caso.differenza) << caso.a << ", " << caso.b;
    EXPECT_EQ(ClsFunctions::DiffCiclometrica(caso.a, caso.b), caso.distanza) << caso.a << ", " << caso.b;
  }
}

TEST(ClsFunctions, CadenzaDelTestoRipulito) {
  struct CasoTesto {
    std::string_view testo;
    int atteso;
  };
  for (const CasoTesto& caso : std::initializer_list<CasoTesto>{
           {"12", 2}, {" 12 ", 2}, {"7   ", 7}, {"90", 0}, {"12abc", 0}, {"", 0}, {"   ", 0}}) {
    EXPECT_EQ(ClsFunctions::Cadenza(caso.testo), caso.atteso) << '"' << caso.testo << '"';
  }
}

}  // namespace
}  // namespace lottolab::stats
