#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <vector>

#include "stats/Combinazioni.h"

namespace lottolab::stats {
namespace {

using Gruppi = std::vector<std::vector<int>>;

template <typename Sviluppo>
Gruppi Tutti(Sviluppo sviluppo) {
  Gruppi gruppi;
  while (sviluppo.Avanza()) gruppi.emplace_back(sviluppo.Gruppo().begin(), sviluppo.Gruppo().end());
  return gruppi;
}

// Every k-tuple of 0..n-1 counted like an odometer, which is lexicographic order, kept when its
// positions are all different.
Gruppi DisposizioniPerForzaBruta(int n, int k) {
  Gruppi gruppi;
  std::vector<int> tupla(static_cast<size_t>(k), 0);
  while (true) {
    if (std::set<int>(tupla.begin(), tupla.end()).size() == tupla.size()) gruppi.push_back(tupla);
    int i = k - 1;
    while (i >= 0 && tupla[i] == n - 1) tupla[i--] = 0;
    if (i < 0) return gruppi;
    ++tupla[i];
  }
}

TEST(Combinazioni, ConteggiContatiAMano) {
  EXPECT_EQ(Combinazioni(90, 2), 4005);
  EXPECT_EQ(Combinazioni(90, 5), 43949268);
  EXPECT_EQ(Combinazioni(7, 3), 35);
  EXPECT_EQ(Combinazioni(5, 0), 1);
  EXPECT_EQ(Combinazioni(5, 5), 1);
  EXPECT_EQ(Combinazioni(5, 6), 0);
  EXPECT_EQ(Combinazioni(5, -1), 0);

  EXPECT_EQ(Disposizioni(90, 2), 8010);
  EXPECT_EQ(Disposizioni(7, 3), 210);
  EXPECT_EQ(Disposizioni(5, 5), 120);
  EXPECT_EQ(Disposizioni(5, 0), 1);
  EXPECT_EQ(Disposizioni(3, 4), 0);

  EXPECT_EQ(Fattoriale(0), 1);
  EXPECT_EQ(Fattoriale(-3), 1);
  EXPECT_EQ(Fattoriale(10), 3628800);
  EXPECT_TRUE(std::isfinite(Fattoriale(170)));
  EXPECT_TRUE(std::isinf(Fattoriale(171)));
}

TEST(Combinazioni, CoincidonoColTriangoloDiTartaglia) {
  // Up to row 50 every entry is below 2^53, so the two sums must agree exactly.
  std::vector<double> riga{1};
  for (int n = 1; n <= 50; ++n) {
    std::vector<double> successiva(riga.size() + 1, 1);
    for (size_t k = 1; k < riga.size(); ++k) successiva[k] = riga[k - 1] + riga[k];
    riga = std::move(successiva);
    for (int k = 0; k <= n; ++k) EXPECT_EQ(Combinazioni(n, k), riga[k]) << n << " su " << k;
  }
  EXPECT_NEAR(Combinazioni(90, 45) / 1.0382742128755342e26, 1, 1e-12);
}

TEST(Combinazioni, ProbabilitaDelleSorti) {
  // The classic cycles of one number per sorte: 18, 400.5, 11748, 511038, 43949268.
  EXPECT_NEAR(1 / ProbabilitaSorte(1, 1), 18, 1e-9);
  EXPECT_NEAR(1 / ProbabilitaSorte(2, 2), 400.5, 1e-9);
  EXPECT_NEAR(1 / ProbabilitaSorte(3, 3), 11748, 1e-7);
  EXPECT_NEAR(1 / ProbabilitaSorte(4, 4), 511038, 1e-5);
  EXPECT_NEAR(1 / ProbabilitaSorte(5, 5), 43949268, 1e-3);
  // Ambo on three numbers: two of them drawn (3 ways, 3 of the other 87) or all three (2 of the 87).
  EXPECT_NEAR(ProbabilitaSorte(2, 3), (3.0 * 105995 + 3741) / 43949268, 1e-15);
  EXPECT_NEAR(ProbabilitaSorte(1, 90), 1, 1e-12) << "playing every number wins the estratto";
  EXPECT_EQ(ProbabilitaSorte(3, 2), 0);
  EXPECT_EQ(ProbabilitaSorte(6, 10), 0);
  EXPECT_EQ(ProbabilitaSorte(0, 10), 0);
  EXPECT_EQ(ProbabilitaSorte(1, 91), 0);
}

TEST(Combinazioni, SviluppoInOrdineLessicografico) {
  Gruppi attesi;
  for (int a = 0; a < 7; ++a)
    for (int b = a + 1; b < 7; ++b)
      for (int c = b + 1; c < 7; ++c) attesi.push_back({a, b, c});
  SviluppoCombinazioni sviluppo(7, 3);
  EXPECT_EQ(sviluppo.Totale(), 35);
  EXPECT_EQ(sviluppo.Sviluppati(), 0);
  Gruppi ottenuti;
  while (sviluppo.Avanza()) ottenuti.emplace_back(sviluppo.Gruppo().begin(), sviluppo.Gruppo().end());
  EXPECT_EQ(ottenuti, attesi);
  EXPECT_EQ(sviluppo.Sviluppati(), 35);
  EXPECT_FALSE(sviluppo.Avanza()) << "a finished development stays finished";
  EXPECT_EQ(sviluppo.Sviluppati(), 35);

  EXPECT_EQ(Tutti(SviluppoCombinazioni(4, 4)), (Gruppi{{0, 1, 2, 3}}));
  EXPECT_EQ(Tutti(SviluppoCombinazioni(3, 1)), (Gruppi{{0}, {1}, {2}}));
}

TEST(Combinazioni, DisposizioniInOrdineLessicografico) {
  for (auto [n, k] : {std::pair{3, 2}, {4, 4}, {5, 3}, {5, 1}, {6, 2}, {1, 1}}) {
    SviluppoDisposizioni sviluppo(n, k);
    EXPECT_EQ(sviluppo.Totale(), Disposizioni(n, k));
    const Gruppi ottenuti = Tutti(sviluppo);
    EXPECT_EQ(ottenuti, DisposizioniPerForzaBruta(n, k)) << n << " a " << k;
    EXPECT_EQ(static_cast<double>(ottenuti.size()), Disposizioni(n, k));
  }
}

}  // namespace
}  // namespace lottolab::stats
