#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

#include "stats/Combinazioni.h"
#include "stats/SistemiRidotti.h"

namespace lottolab::stats {
namespace {

using Colonne = std::vector<ColonnaSistema>;

int Comuni(const ColonnaSistema& colonna, const std::vector<int>& gruppo) {
  return static_cast<int>(std::count_if(gruppo.begin(), gruppo.end(), [&](int n) {
    return std::find(colonna.begin(), colonna.end(), n) != colonna.end();
  }));
}

// The plainest form of the guarantee, for the group the checker names: no column holds t of it.
bool Scoperto(const Colonne& colonne, const std::vector<int>& gruppo, int garanzia) {
  return std::none_of(colonne.begin(), colonne.end(),
                      [&](const ColonnaSistema& c) { return Comuni(c, gruppo) >= garanzia; });
}

// A light search: these tests are about the guarantee, not about the fewest columns.
ControlloSistema Leggero() {
  ControlloSistema controllo;
  controllo.sforzo = 1;
  return controllo;
}

Colonne Costruisci(int n, int k, int t, int m, std::uint64_t seme = 1) {
  auto sistema = CostruisciSistemaRidotto({n, k, t, m, seme}, Leggero());
  EXPECT_TRUE(sistema) << (sistema ? "" : sistema.Errore().testo);
  return sistema ? sistema->colonne : Colonne{};
}

const Colonne kFano = {{1, 2, 4}, {2, 3, 5}, {3, 4, 6}, {4, 5, 7}, {1, 5, 6}, {2, 6, 7}, {1, 3, 7}};

TEST(VerificaGaranzia, SistemiCheMantengonoLaGaranzia) {
  EXPECT_EQ(VerificaGaranzia(kFano, 7, 2, 2), std::nullopt);
  // Any two of the seven numbers lie on a line of the plane, so any three hold an ambo too.
  EXPECT_EQ(VerificaGaranzia(kFano, 7, 3, 2), std::nullopt);
  // The integral system: every column of 3 among 5 numbers.
  Colonne integrale;
  SviluppoCombinazioni sviluppo(5, 3);
  while (sviluppo.Avanza()) {
    ColonnaSistema c;
    for (int p : sviluppo.Gruppo()) c.push_back(p + 1);
    integrale.push_back(c);
  }
  EXPECT_EQ(VerificaGaranzia(integrale, 5, 3, 3), std::nullopt);
}

TEST(VerificaGaranzia, TogliereUnaColonnaLasciaScopertoUnGruppoVero) {
  for (size_t tolta = 0; tolta < kFano.size(); ++tolta) {
    Colonne meno = kFano;
    meno.erase(meno.begin() + static_cast<std::ptrdiff_t>(tolta));
    const auto scoperto = VerificaGaranzia(meno, 7, 2, 2);
    ASSERT_TRUE(scoperto.has_value()) << "senza la colonna " << tolta;
    EXPECT_TRUE(Scoperto(meno, *scoperto, 2));
    // The pair it names is one of the three the removed line alone held.
    EXPECT_EQ(Comuni(kFano[tolta], *scoperto), 2);
  }
  // Built systems too: without any one column, some group really is left without the guarantee.
  const auto costruito = Costruisci(11, 5, 3, 4);
  for (size_t tolta = 0; tolta < costruito.size(); ++tolta) {
    Colonne meno = costruito;
    meno.erase(meno.begin() + static_cast<std::ptrdiff_t>(tolta));
    if (const auto scoperto = VerificaGaranzia(meno, 11, 4, 3)) {
      EXPECT_TRUE(Scoperto(meno, *scoperto, 3));
    }
  }
}

TEST(VerificaGaranzia, SistemiFattiAManoCheFalliscono) {
  // Two columns of 1..6: the first uncovered pair in lexicographic order is {1, 4}.
  const Colonne due = {{1, 2, 3}, {4, 5, 6}};
  EXPECT_EQ(VerificaGaranzia(due, 6, 2, 2), (std::vector<int>{1, 4}));
  // A terno if four come out: every group 1 2 3 x holds the first column, and 1 2 4 5, the next
  // in order, holds only two numbers of each.
  EXPECT_EQ(VerificaGaranzia(due, 6, 4, 3), (std::vector<int>{1, 2, 4, 5}));
  // No columns at all: the very first group fails.
  EXPECT_EQ(VerificaGaranzia(Colonne{}, 90, 2, 1), (std::vector<int>{1, 2}));
  // An estratto guaranteed on 90 numbers needs every number in some column; 4 is the first missing.
  const Colonne poche = {{1, 2, 3}, {88, 89, 90}};
  EXPECT_EQ(VerificaGaranzia(poche, 90, 1, 1), (std::vector<int>{4}));
}

TEST(SistemiRidotti, CasiPiccoliAlMinimoNoto) {
  struct Caso {
    int n, k, t, m;
    size_t minimo;
  };
  // C(6,3,2) = 6, the Fano plane C(7,3,2) = 7, C(7,4,2) = 5 (one above the Schönheim bound),
  // C(8,4,3) = 14 (a Steiner system), and a lotto design checked by hand: 6 numbers in columns of 3
  // with an ambo whenever 4 come out take 2 columns ({1,2,3} and {4,5,6}: any 4 of the 6 hold two
  // of one of them), and one column is not enough.
  for (const auto& caso :
       {Caso{6, 3, 2, 2, 6}, Caso{7, 3, 2, 2, 7}, Caso{7, 4, 2, 2, 5}, Caso{8, 4, 3, 3, 14}, Caso{6, 3, 2, 4, 2}}) {
    auto sistema = CostruisciSistemaRidotto({caso.n, caso.k, caso.t, caso.m, 7}, Leggero());
    ASSERT_TRUE(sistema) << sistema.Errore().testo;
    EXPECT_EQ(sistema->colonne.size(), caso.minimo) << caso.n << " " << caso.k << " " << caso.t << " " << caso.m;
    EXPECT_TRUE(sistema->minimo_dimostrato);
    EXPECT_EQ(VerificaGaranzia(sistema->colonne, caso.n, caso.m, caso.t), std::nullopt);
  }
}

TEST(SistemiRidotti, OgniSistemaCostruitoMantieneLaGaranzia) {
  for (int n = 4; n <= 10; n += 2)
    for (int k = 2; k <= std::min(n - 1, 5); ++k)
      for (int t = 1; t <= std::min(k, 3); ++t)
        for (int m = t; m <= std::min(n, t + 2); ++m) {
          const auto colonne = Costruisci(n, k, t, m, static_cast<std::uint64_t>(n * 1000 + k * 100 + t * 10 + m));
          ASSERT_FALSE(colonne.empty());
          for (const auto& c : colonne) {
            ASSERT_EQ(c.size(), static_cast<size_t>(k));
            ASSERT_TRUE(std::is_sorted(c.begin(), c.end()));
            ASSERT_EQ(std::set<int>(c.begin(), c.end()).size(), c.size());
            ASSERT_GE(c.front(), 1);
            ASSERT_LE(c.back(), n);
          }
          EXPECT_EQ(VerificaGaranzia(colonne, n, m, t), std::nullopt) << n << " " << k << " " << t << " " << m;
          if (m == t) {
            EXPECT_GE(static_cast<std::int64_t>(colonne.size()), LimiteSchoenheim(n, k, t));
          }
        }
  // More numbers: every pair of 25 numbers in columns of 6, and an ambo on any three of 16.
  for (const auto& [n, k, t, m] : {std::array{25, 6, 2, 2}, std::array{16, 5, 2, 3}}) {
    const auto colonne = Costruisci(n, k, t, m);
    EXPECT_EQ(VerificaGaranzia(colonne, n, m, t), std::nullopt) << n;
  }
}

TEST(SistemiRidotti, StessoSemeStessoSistema) {
  EXPECT_EQ(Costruisci(13, 5, 3, 3, 42), Costruisci(13, 5, 3, 3, 42));
  EXPECT_EQ(Costruisci(12, 5, 2, 4, 9), Costruisci(12, 5, 2, 4, 9));
  EXPECT_NE(Costruisci(13, 5, 3, 3, 42), Costruisci(13, 5, 3, 3, 43));
}

TEST(SistemiRidotti, ParametriRifiutatiConUnMessaggio) {
  struct Caso {
    ParametriSistema parametri;
    const char* parola;
  };
  for (const auto& caso : {
           Caso{{0, 3, 2, 2, 1}, "numeri"},
           Caso{{91, 3, 2, 2, 1}, "numeri"},
           Caso{{10, 0, 2, 2, 1}, "colonne"},
           Caso{{10, 11, 2, 2, 1}, "colonne"},
           Caso{{30, 13, 2, 2, 1}, "colonne"},
           Caso{{10, 3, 0, 2, 1}, "sorte"},
           Caso{{10, 3, 4, 4, 1}, "sorte"},
           Caso{{10, 5, 3, 2, 1}, "condizione"},
           Caso{{10, 5, 3, 11, 1}, "condizione"},
           Caso{{90, 6, 3, 5, 1}, "gruppi"},
           Caso{{40, 2, 1, 6, 1}, "calcolo"},
       }) {
    auto sistema = CostruisciSistemaRidotto(caso.parametri);
    ASSERT_FALSE(sistema) << caso.parola;
    EXPECT_NE(sistema.Errore().testo.find(caso.parola), std::string::npos) << sistema.Errore().testo;
  }
}

TEST(SistemiRidotti, InterruzioneEAvanzamento) {
  int chiamate = 0;
  ControlloSistema controllo = Leggero();
  controllo.interrompi = [&] { return ++chiamate > 3; };
  auto interrotto = CostruisciSistemaRidotto({20, 4, 3, 3, 1}, controllo);
  ASSERT_FALSE(interrotto);
  EXPECT_NE(interrotto.Errore().testo.find("interrotta"), std::string::npos);

  // A time limit already past: the search returns what it has, and it keeps the guarantee.
  std::vector<AvanzamentoSistema> visti;
  ControlloSistema di_corsa;
  di_corsa.tempo_massimo = std::chrono::milliseconds(0);
  di_corsa.avanzamento = [&](const AvanzamentoSistema& a) { visti.push_back(a); };
  auto scaduto = CostruisciSistemaRidotto({16, 4, 3, 3, 1}, di_corsa);
  if (scaduto) {
    EXPECT_TRUE(scaduto->tempo_scaduto);
    EXPECT_EQ(VerificaGaranzia(scaduto->colonne, 16, 3, 3), std::nullopt);
  } else {
    EXPECT_NE(scaduto.Errore().testo.find("tempo"), std::string::npos);
  }
  ASSERT_FALSE(visti.empty());
  EXPECT_GT(visti.front().scoperti, 0);
}

TEST(SistemiRidotti, LimiteDiSchoenheim) {
  EXPECT_EQ(LimiteSchoenheim(7, 3, 2), 7);
  EXPECT_EQ(LimiteSchoenheim(20, 4, 3), 285);
  EXPECT_EQ(LimiteSchoenheim(20, 6, 3), 64);
  EXPECT_EQ(LimiteSchoenheim(90, 5, 1), 18);
}

}  // namespace
}  // namespace lottolab::stats
