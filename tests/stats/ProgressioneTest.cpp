#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include <fmt/format.h>

#include "stats/Giocata.h"
#include "stats/Progressione.h"

namespace lottolab::stats {
namespace {

// What the bet of one colpo pays when exactly `sorte` of its numbers come out on its first wheel:
// the account of a real bet on a draw made for it, not the formula of the progression.
Centesimi VintoNetto(const ParametriProgressione& p, Centesimi posta) {
  Estrazione estrazione;
  estrazione.id_estr = 1;
  estrazione.data = p.data;
  for (int r = 1; r <= kNumeroRuote; ++r)
    for (int pos = 1; pos <= kNumeriPerRuota; ++pos) estrazione.ImpostaNumero(r, pos, 60 + pos);
  for (int pos = 1; pos <= static_cast<int>(p.sorte); ++pos) estrazione.ImpostaNumero(1, pos, pos);
  Giocata giocata;
  giocata.colonne = {std::vector<int>(static_cast<size_t>(p.numeri))};
  std::iota(giocata.colonne[0].begin(), giocata.colonne[0].end(), 1);
  giocata.ruote.resize(static_cast<size_t>(p.ruote));
  std::iota(giocata.ruote.begin(), giocata.ruote.end(), 1);
  giocata.poste = {{p.sorte, posta, {}, 0}};
  return VerificaGiocata(giocata, TabellaEstrazioni({estrazione})).vinto.netto;
}

// Over a range of sorti, numbers, wheels, profits, first stakes, steps and dates: each colpo's
// smallest win pays back every stake up to it and the profit, each stake is the smallest that does
// in its steps, and a progression cut short stops where a ticket's largest stake would not do.
TEST(Progressione, OgniColpoVincenteRipagaLaSpesaEDaLUtile) {
  int controllate = 0, interrotte = 0;
  for (int sorte = 1; sorte <= 3; ++sorte)
    for (int numeri : {sorte, sorte + 1, 5})
      for (int ruote : {1, 2, 10})
        for (Centesimi utile : {0, 500})
          for (auto [minima, passo] : {std::pair<Centesimi, Centesimi>{100, 50}, {5, 5}, {300, 100}})
            for (GruppoData data : {Data(4, 3, 2004), Data(7, 3, 2020)}) {
              const ParametriProgressione p{
                  static_cast<SorteLotto>(sorte), numeri, ruote, 60, utile, minima, passo, data};
              const std::string dove = fmt::format("sorte {} numeri {} ruote {} utile {} minima {} passo {} anno {}",
                                                   sorte, numeri, ruote, utile, minima, passo, data.anno);
              auto poste = VettoreProgressione(p);
              ASSERT_TRUE(poste) << dove;
              Centesimi spesa = 0;
              for (size_t c = 0; c < poste->size(); ++c) {
                const Centesimi posta = (*poste)[c];
                spesa += posta;
                ASSERT_EQ(posta % passo, 0) << dove;
                ASSERT_GE(posta, minima) << dove;
                ASSERT_GE(VintoNetto(p, posta), spesa + utile) << dove << " colpo " << c + 1;
                const Centesimi minore = posta - passo;
                if (minore >= minima && (c == 0 || minore >= (*poste)[c - 1])) {
                  ASSERT_LT(VintoNetto(p, minore), spesa - posta + minore + utile) << dove << " colpo " << c + 1;
                }
                ++controllate;
              }
              if (poste->size() < 60) {
                ++interrotte;
                const Centesimi massima = LimitiPosteLotto().massima_biglietto;
                EXPECT_LT(VintoNetto(p, massima), spesa + massima + utile) << dove;
              }
            }
  EXPECT_GT(controllate, 1000);
  EXPECT_GT(interrotte, 10) << "the cases must include progressions cut short";
}

TEST(Progressione, ParametriRifiutati) {
  const GruppoData oggi = Data(7, 3, 2020);
  const ParametriProgressione casi[] = {
      {SorteLotto::Ambetto, 2, 1, 10, 0, 100, 50, oggi}, {SorteLotto::Ambo, 1, 1, 10, 0, 100, 50, oggi},
      {SorteLotto::Ambo, 11, 1, 10, 0, 100, 50, oggi},   {SorteLotto::Ambo, 2, 0, 10, 0, 100, 50, oggi},
      {SorteLotto::Ambo, 2, 1, 0, 0, 100, 50, oggi},     {SorteLotto::Ambo, 2, 1, 10, -1, 100, 50, oggi},
      {SorteLotto::Ambo, 2, 1, 10, 0, 100, 0, oggi},     {SorteLotto::Ambo, 2, 1, 10, 0, 30000, 50, oggi},
  };
  for (const ParametriProgressione& p : casi) {
    auto poste = VettoreProgressione(p);
    EXPECT_FALSE(poste) << static_cast<int>(p.sorte) << " " << p.numeri << " " << p.ruote << " " << p.colpi;
  }
}

}  // namespace
}  // namespace lottolab::stats
