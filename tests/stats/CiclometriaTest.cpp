#include "stats/Ciclometria.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "ArchiviDiProva.h"
#include "stats/Numeri.h"

namespace lottolab::stats {
namespace {

using V = std::vector<int>;

InsiemeCiclometrico Insieme(const V& numeri) {
  InsiemeCiclometrico insieme;
  for (int n : numeri) insieme.Aggiungi(n);
  return insieme;
}

// A figure as "Kind: v1-v2-...", the vertices in the order given.
std::string Scritta(const FiguraCiclometrica& f) {
  std::string s(NomeTipoFigura(f.tipo));
  s += ":";
  for (size_t i = 0; i < f.quanti; ++i) s += (i ? "-" : " ") + std::to_string(f.vertici[i]);
  return s;
}

std::vector<std::string> Scritte(const std::vector<FiguraCiclometrica>& figure) {
  std::vector<std::string> scritte;
  for (const auto& f : figure) scritte.push_back(Scritta(f));
  return scritte;
}

TEST(Ciclometria, EachDefinitionOnASetCountedByHand) {
  using S = std::vector<std::string>;
  struct Caso {
    V numeri;
    S figure;
  } casi[] = {
      {{}, {}},
      {{7}, {}},
      {{7, 52}, {"Diametro: 7-52"}},
      {{90, 45}, {"Diametro: 45-90"}},
      {{65, 5, 35}, {"Triangolo equilatero: 5-35-65"}},
      {{10, 3, 17}, {"Triangolo isoscele: 10-17-3"}},
      {{1, 89, 45}, {"Triangolo isoscele: 45-89-1"}},
      {{1, 23, 46, 68}, {"Diametro: 1-46", "Diametro: 23-68", "Quadrato ciclometrico: 1-23-46-68"}},
      {{3, 20, 48, 65}, {"Diametro: 3-48", "Diametro: 20-65", "Rettangolo: 3-20-48-65"}},
      {{2, 12, 24, 80}, {"Trapezio isoscele: 2-12-24-80"}},
      {{10, 18, 55, 2},
       {"Diametro: 10-55", "Triangolo isoscele: 10-18-2", "Triangolo isoscele: 55-2-18", "Aquilone: 10-18-55-2"}},
      {{10, 40, 55, 70},
       {"Diametro: 10-55", "Triangolo equilatero: 10-40-70", "Triangolo isoscele: 55-70-40", "Aquilone: 55-70-10-40"}},
  };
  for (const Caso& caso : casi) {
    auto trovate = Scritte(TrovaFigure(Insieme(caso.numeri), kFigureDiUnInsieme));
    EXPECT_EQ(trovate, caso.figure) << ::testing::PrintToString(caso.numeri);
  }
}

// Every kind on the whole circle, counted by hand: a near-square is a diameter and the one 22
// further on (45 of them); rectangles are the other pairs of diameters, C(45, 2) - 45; a class of
// parallel chords (same sum modulo 90) holds 45 chords when the sum is odd, one a diameter, and 44
// when it is even, the others paired with their diametral chords; two chords of a class make a
// trapezium unless they are such a pair.
TEST(Ciclometria, TheWholeCircleHoldsTheCountedFigures) {
  V tutti(90);
  for (int n = 1; n <= 90; ++n) tutti[static_cast<size_t>(n - 1)] = n;
  std::map<TipoFigura, int> conteggi;
  for (const auto& f : TrovaFigure(Insieme(tutti), kFigureDiUnInsieme)) ++conteggi[f.tipo];
  const std::map<TipoFigura, int> attesi{
      {TipoFigura::Diametro, 45},
      {TipoFigura::TriangoloEquilatero, 30},
      {TipoFigura::TriangoloIsoscele, 90 * 43},
      {TipoFigura::QuadratoCiclometrico, 45},
      {TipoFigura::Rettangolo, 45 * 44 / 2 - 45},
      {TipoFigura::TrapezioIsoscele, 45 * (45 * 44 / 2 - 22) + 45 * (44 * 43 / 2 - 22)},
      {TipoFigura::Aquilone, 45 * 44},
  };
  EXPECT_EQ(conteggi, attesi);
  EXPECT_TRUE(TrovaFigure(Insieme(tutti), Tipo(TipoFigura::Parallelepipedo)).empty());
}

// ---- A second search, over every group of two, three and four numbers, by distances alone ----

// The figure that the numbers (in increasing order, so in order around the circle) make, if any.
std::optional<FiguraCiclometrica> Classifica(const V& g, const InsiemeCiclometrico& insieme) {
  auto d = [&](size_t i, size_t j) { return Distanza(g[i], g[j]); };
  FiguraCiclometrica f;
  size_t inizio = 0;
  if (g.size() == 2) {
    if (d(0, 1) != 45) return std::nullopt;
    f.tipo = TipoFigura::Diametro;
  } else if (g.size() == 3) {
    if (d(0, 1) == 30 && d(1, 2) == 30 && d(0, 2) == 30) {
      f.tipo = TipoFigura::TriangoloEquilatero;
    } else {
      f.tipo = TipoFigura::TriangoloIsoscele;
      if (d(0, 1) == d(0, 2))
        inizio = 0;
      else if (d(1, 0) == d(1, 2))
        inizio = 1;
      else if (d(2, 0) == d(2, 1))
        inizio = 2;
      else
        return std::nullopt;
    }
  } else {
    const int lati[] = {d(0, 1), d(1, 2), d(2, 3), d(3, 0)};
    if (d(0, 2) == 45 && d(1, 3) == 45) {
      const bool quasi_quadrato = (lati[0] == 22 && lati[1] == 23) || (lati[0] == 23 && lati[1] == 22);
      f.tipo = quasi_quadrato ? TipoFigura::QuadratoCiclometrico : TipoFigura::Rettangolo;
    } else if ((lati[0] == lati[2]) != (lati[1] == lati[3])) {
      f.tipo = TipoFigura::TrapezioIsoscele;
    } else if (lati[0] == lati[1] && lati[2] == lati[3]) {
      f.tipo = TipoFigura::Aquilone;
      inizio = lati[0] < lati[2] ? 1 : 3;
    } else if (lati[1] == lati[2] && lati[3] == lati[0]) {
      f.tipo = TipoFigura::Aquilone;
      inizio = lati[1] < lati[3] ? 2 : 0;
    } else {
      return std::nullopt;
    }
  }
  f.quanti = static_cast<uint8_t>(g.size());
  for (size_t k = 0; k < g.size(); ++k) {
    const int v = g[(inizio + k) % g.size()];
    f.vertici[k] = static_cast<uint8_t>(v);
    f.ruote[k] = insieme.Ruote(v);
  }
  return f;
}

// Every figure, by trying every group.
std::vector<FiguraCiclometrica> ForzaBruta(const InsiemeCiclometrico& insieme) {
  const auto numeri = insieme.Numeri();
  std::vector<FiguraCiclometrica> figure;
  const size_t n = numeri.size();
  for (size_t a = 0; a < n; ++a)
    for (size_t b = a + 1; b < n; ++b) {
      if (auto f = Classifica({numeri[a], numeri[b]}, insieme)) figure.push_back(*f);
      for (size_t c = b + 1; c < n; ++c) {
        if (auto f = Classifica({numeri[a], numeri[b], numeri[c]}, insieme)) figure.push_back(*f);
        for (size_t e = c + 1; e < n; ++e)
          if (auto f = Classifica({numeri[a], numeri[b], numeri[c], numeri[e]}, insieme)) figure.push_back(*f);
      }
    }
  return figure;
}

// The parallelepipeds by trying every pair of the first face with every pair of the second.
std::vector<FiguraCiclometrica> ParallelepipediForzaBruta(const InsiemeCiclometrico& f1,
                                                          const InsiemeCiclometrico& f2) {
  std::vector<FiguraCiclometrica> figure;
  const auto n1 = f1.Numeri();
  const auto n2 = f2.Numeri();
  for (size_t a = 0; a < n1.size(); ++a)
    for (size_t b = a + 1; b < n1.size(); ++b)
      for (size_t c = 0; c < n2.size(); ++c)
        for (size_t e = c + 1; e < n2.size(); ++e) {
          V g{n1[a], n1[b], n2[c], n2[e]};
          std::sort(g.begin(), g.end());
          if (std::adjacent_find(g.begin(), g.end()) != g.end() || Distanza(n1[a], n1[b]) == 45) continue;
          if (Distanza(g[0], g[2]) != 45 || Distanza(g[1], g[3]) != 45) continue;
          FiguraCiclometrica f;
          f.tipo = TipoFigura::Parallelepipedo;
          f.quanti = 4;
          for (size_t k = 0; k < 4; ++k) {
            f.vertici[k] = static_cast<uint8_t>(g[k]);
            f.ruote[k] = (g[k] == n1[a] || g[k] == n1[b]) ? f1.Ruote(g[k]) : f2.Ruote(g[k]);
          }
          figure.push_back(f);
        }
  return figure;
}

void StessiInsiemi(std::vector<FiguraCiclometrica> a, std::vector<FiguraCiclometrica> b, const std::string& dove) {
  auto minore = [](const FiguraCiclometrica& x, const FiguraCiclometrica& y) {
    return std::tie(x.tipo, x.quanti, x.vertici, x.ruote) < std::tie(y.tipo, y.quanti, y.vertici, y.ruote);
  };
  std::sort(a.begin(), a.end(), minore);
  std::sort(b.begin(), b.end(), minore);
  ASSERT_EQ(a.size(), b.size()) << dove;
  for (size_t i = 0; i < a.size(); ++i) ASSERT_EQ(Scritta(a[i]), Scritta(b[i])) << dove;
  EXPECT_EQ(a, b) << dove << ": the wheels of the vertices";
}

TEST(Ciclometria, RandomSetsAgreeWithTheSearchOverEveryGroup) {
  std::mt19937 generatore(18);
  for (int prova = 0; prova < 30; ++prova) {
    InsiemeCiclometrico insieme;
    const int quanti = std::uniform_int_distribution<int>(0, 40)(generatore);
    for (int i = 0; i < quanti; ++i)
      insieme.Aggiungi(std::uniform_int_distribution<int>(1, 90)(generatore),
                       static_cast<uint16_t>(1u << std::uniform_int_distribution<int>(0, 10)(generatore)));
    StessiInsiemi(TrovaFigure(insieme, kFigureDiUnInsieme), ForzaBruta(insieme), "prova " + std::to_string(prova));
  }
}

TEST(Ciclometria, RealDrawsAgreeWithTheSearchOverEveryGroup) {
  LOTTOLAB_RICHIEDI_DATI_REALI();
  const TabellaEstrazioni& tab = test::ArchivioReale();
  const int tutte[] = {BA, CA, FI, GE, MI, NA, PA, RO, TO, VE, NZ};
  const int ultima = tab.EstrazioniArchivio();
  for (int id : {1, ultima / 3, ultima / 2, ultima - 1000, ultima - 1, ultima}) {
    const Estrazione& estrazione = tab[id];
    const auto insieme = InsiemeDaEstrazione(estrazione, tutte);
    const auto trovate = TrovaFigure(insieme, kFigureDiUnInsieme);
    StessiInsiemi(trovate, ForzaBruta(insieme), "estrazione " + std::to_string(id));

    for (int k = 1; k < kTipiFigura; ++k) {
      const auto tipo = static_cast<TipoFigura>(k);
      std::vector<FiguraCiclometrica> di_un_tipo;
      std::copy_if(trovate.begin(), trovate.end(), std::back_inserter(di_un_tipo),
                   [tipo](const FiguraCiclometrica& f) { return f.tipo == tipo; });
      EXPECT_EQ(TrovaFigure(insieme, Tipo(tipo)), di_un_tipo) << NomeTipoFigura(tipo) << " alone";
    }

    for (int r1 = BA; r1 <= NZ; ++r1)
      for (int r2 = BA; r2 <= NZ; ++r2) {
        if (r1 == r2) continue;
        const int uno[] = {r1};
        const int due[] = {r2};
        const auto f1 = InsiemeDaEstrazione(estrazione, uno);
        const auto f2 = InsiemeDaEstrazione(estrazione, due);
        std::vector<FiguraCiclometrica> parallelepipedi;
        TrovaParallelepipedi(f1, f2, parallelepipedi);
        StessiInsiemi(parallelepipedi, ParallelepipediForzaBruta(f1, f2),
                      fmt::format("parallelepipedi {}-{} dell'estrazione {}", r1, r2, id));
      }
  }
}

TEST(Ciclometria, AParallelepipedJoinsAChordToItsDiametralChordOnAnotherFace) {
  InsiemeCiclometrico bari;
  for (int n : {3, 20, 70}) bari.Aggiungi(n, 1u << (BA - 1));
  InsiemeCiclometrico venezia;
  for (int n : {48, 65, 25, 11}) venezia.Aggiungi(n, 1u << (VE - 1));
  std::vector<FiguraCiclometrica> figure;
  TrovaParallelepipedi(bari, venezia, figure);
  ASSERT_EQ(Scritte(figure), (std::vector<std::string>{"Parallelepipedo: 3-20-48-65", "Parallelepipedo: 3-25-48-70",
                                                       "Parallelepipedo: 20-25-65-70"}));
  EXPECT_EQ(figure[0].ruote, (std::array<uint16_t, 4>{1, 1, 1u << 9, 1u << 9}));

  InsiemeCiclometrico diametro;
  for (int n : {3, 48}) diametro.Aggiungi(n);
  figure.clear();
  TrovaParallelepipedi(diametro, diametro, figure);
  EXPECT_TRUE(figure.empty()) << "a diameter is its own diametral chord: no four vertices";
}

}  // namespace
}  // namespace lottolab::stats
