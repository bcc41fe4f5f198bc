#include <gtest/gtest.h>

#include "archive/DateEstrazione.h"
#include "stats/PremiAltriGiochi.h"
#include "stats/PremiLotto.h"

namespace lottolab::stats {
namespace {

constexpr GruppoData kOggi = Data(25, 11, 2026);

PuntataLotto Linea(SorteLotto sorte, std::vector<int> numeri, std::vector<int> ruote, Centesimi posta) {
  return PuntataLotto{sorte, std::move(numeri), RuoteGiocate(ruote), posta, 0};
}

// The published worked examples fix the rounding: one rounding per winning combination, then the
// tax rounded on the ticket's gross.
TEST(PremiLotto, EsempiPubblicati) {
  EXPECT_EQ(PremioPerCombinazione(Linea(SorteLotto::Ambo, {1, 2, 3}, {BA}, 100), kOggi), 8'333);
  EXPECT_EQ(PremioPerCombinazione(Linea(SorteLotto::Ambo, {1, 2, 3, 4}, {BA}, 100), kOggi), 4'167);
  EXPECT_EQ(PremioPerCombinazione(Linea(SorteLotto::Ambo, {1, 2, 3, 4, 5}, {BA}, 100), kOggi), 2'500);
  EXPECT_EQ(PremioPerCombinazione(Linea(SorteLotto::Cinquina, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, {BA}, 10), kOggi),
            238'095);
  EXPECT_EQ(PremioPerCombinazione(Linea(SorteLotto::Estratto, {7}, {BA}, 100), kOggi), 1'123);

  const PuntataLotto ambetto = Linea(SorteLotto::Ambetto, {40, 50, 60}, {BA}, 100);
  const int64_t vinte = CombinazioniVincenti(ambetto, {20, 50, 61, 49, 39});
  EXPECT_EQ(vinte, 2) << "50 with 61 and with 39; 49 is 50's own neighbour";
  EXPECT_EQ(vinte * PremioPerCombinazione(ambetto, kOggi), 4'334);

  const Tassato banda = TassaVincitaLotto(54'348, Data(1, 10, 2017));
  EXPECT_EQ(banda.netto, 50'000);
  EXPECT_EQ(banda.ritenuta, 4'348);
  auto dieci = PremioDieciELotto(OpzioneDieciELotto::Base, 6, 5, 500, Data(1, 7, 2019));
  ASSERT_TRUE(dieci);
  EXPECT_EQ(dieci->lordo, 56'180) << "500 net at 11%";
  EXPECT_EQ(dieci->netto, 50'000);
}

TEST(PremiLotto, PostaDivisaTraLeRuote) {
  EXPECT_EQ(RuoteGiocate(std::vector<int>{kTutteLeRuote}), (std::vector<int>{BA, CA, FI, GE, MI, NA, PA, RO, TO, VE}))
      << "Tutte leaves Nazionale out";
  EXPECT_EQ(RuoteGiocate(std::vector<int>{VE, kTutteLeRuote, NZ}).size(), 11u);
  EXPECT_EQ(PremioPerCombinazione(Linea(SorteLotto::Ambo, {1, 2}, {kTutteLeRuote}, 100), kOggi), 2'500);
  EXPECT_EQ(PremioPerCombinazione(Linea(SorteLotto::Ambo, {1, 2}, {BA, VE, NZ}, 100), kOggi), 8'333);
  PuntataLotto determinato = Linea(SorteLotto::EstrattoDeterminato, {5, 6}, {BA}, 100);
  determinato.posizione = 2;
  EXPECT_EQ(PremioPerCombinazione(determinato, kOggi), 2'750);
  EXPECT_EQ(CombinazioniVincenti(determinato, {6, 5, 1, 2, 3}), 1);
  EXPECT_EQ(CombinazioniVincenti(determinato, {5, 1, 6, 2, 3}), 0) << "the right number in the wrong place";
}

TEST(PremiLotto, CombinazioniDellAmbetto) {
  struct Caso {
    std::vector<int> numeri;
    int combinazioni;
  };
  for (const Caso& caso :
       std::vector<Caso>{{{30, 55}, 4}, {{40, 41}, 2}, {{1, 2}, 2}, {{40, 50, 60}, 12}, {{40, 50, 52}, 11}})
    EXPECT_EQ(CombinazioniAmbetto(caso.numeri), caso.combinazioni) << caso.numeri.front() << "/" << caso.numeri[1];

  const PuntataLotto giro = Linea(SorteLotto::Ambetto, {1, 2}, {BA}, 100);
  EXPECT_EQ(CombinazioniVincenti(giro, {2, 90, 11, 12, 13}), 1) << "90 is 1's neighbour";
  EXPECT_EQ(CombinazioniVincenti(giro, {1, 3, 11, 12, 13}), 1);
  EXPECT_EQ(CombinazioniVincenti(giro, {1, 2, 11, 12, 13}), 0) << "the exact pair is no ambetto";
  EXPECT_EQ(PremioPerCombinazione(Linea(SorteLotto::Ambetto, {40, 41}, {BA}, 100), kOggi), 13'000);
  const auto esiti = EsitiPossibili(Linea(SorteLotto::Ambetto, {30, 55}, {BA}, 100));
  ASSERT_FALSE(esiti.empty());
  EXPECT_EQ(esiti.front().combinazioni, 1);
  EXPECT_EQ(esiti.back().combinazioni, 3) << "30, 55 and their four neighbours are six numbers, one too many";
}

TEST(PremiLotto, RegoleDatate) {
  struct Caso {
    GruppoData data;
    int lotto, dieci, superenalotto;
  };
  for (const Caso& caso : std::vector<Caso>{{Data(31, 12, 2004), 300, 600, 0},
                                            {Data(1, 1, 2005), 600, 600, 0},
                                            {Data(1, 1, 2012), 600, 600, 600},
                                            {Data(30, 9, 2017), 600, 600, 600},
                                            {Data(1, 10, 2017), 800, 800, 1'200},
                                            {Data(30, 6, 2019), 800, 800, 1'200},
                                            {Data(1, 7, 2019), 800, 1'100, 1'200},
                                            {Data(29, 2, 2020), 800, 1'100, 1'200},
                                            {Data(1, 3, 2020), 800, 1'100, 2'000}}) {
    SCOPED_TRACE(FormattaData(caso.data));
    EXPECT_EQ(RitenutaLotto(caso.data), caso.lotto);
    EXPECT_EQ(RitenutaDieciELotto(caso.data), caso.dieci);
    EXPECT_EQ(RitenutaSuperEnalotto(caso.data), caso.superenalotto);
  }
  EXPECT_FALSE(MoltiplicatoreLotto(SorteLotto::Ambetto, Data(4, 9, 2013)));
  EXPECT_TRUE(MoltiplicatoreLotto(SorteLotto::Ambetto, Data(5, 9, 2013)));
  EXPECT_FALSE(ControllaPuntata(Linea(SorteLotto::Ambetto, {1, 5}, {BA}, 100), Data(4, 9, 2013)));

  const PuntataLotto cinquina = Linea(SorteLotto::Cinquina, {1, 2, 3, 4, 5}, {BA}, 20'000);
  const Centesimi lordo = PremioPerCombinazione(cinquina, kOggi);
  EXPECT_EQ(TassaVincitaLotto(lordo, kOggi).lordo, 600'000'000) << "the largest win of a ticket";
  EXPECT_EQ(TassaVincitaLotto(lordo, Data(1, 1, 2004)).lordo, lordo) << "no limit known before 2005";
}

TEST(PremiLotto, PuntateRifiutate) {
  const GruppoData data = kOggi;
  PuntataLotto senza_posizione = Linea(SorteLotto::EstrattoDeterminato, {5}, {BA}, 100);
  PuntataLotto posizione_di_troppo = Linea(SorteLotto::Ambo, {5, 6}, {BA}, 100);
  posizione_di_troppo.posizione = 1;
  for (const PuntataLotto& puntata :
       {Linea(SorteLotto::Ambo, {5}, {BA}, 100), Linea(SorteLotto::Ambo, {5, 5}, {BA}, 100),
        Linea(SorteLotto::Ambo, {0, 5}, {BA}, 100), Linea(SorteLotto::Ambo, {5, 91}, {BA}, 100),
        Linea(SorteLotto::Ambo, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, {BA}, 100),
        Linea(SorteLotto::Ambo, {5, 6}, {}, 100), Linea(SorteLotto::Ambo, {5, 6}, {BA}, 4),
        Linea(SorteLotto::Ambo, {5, 6}, {BA}, 20'001), senza_posizione, posizione_di_troppo}) {
    auto controllo = ControllaPuntata(puntata, data);
    ASSERT_FALSE(controllo);
    EXPECT_FALSE(controllo.Errore().testo.empty());
  }
  EXPECT_TRUE(ControllaPuntata(Linea(SorteLotto::Ambo, {5, 6}, {BA}, 5), data));
  EXPECT_TRUE(ControllaBiglietto(100));
  EXPECT_TRUE(ControllaBiglietto(20'000));
  EXPECT_FALSE(ControllaBiglietto(50));
  EXPECT_FALSE(ControllaBiglietto(125)) << "steps of 0,50";
  EXPECT_FALSE(ControllaBiglietto(20'050));
}

TEST(Denaro, LetturaEScrittura) {
  EXPECT_EQ(FormattaEuro(238'095), "2.380,95");
  EXPECT_EQ(FormattaEuro(112'359'551), "1.123.595,51");
  EXPECT_EQ(FormattaEuro(-5), "-0,05");
  EXPECT_EQ(LeggiEuro("0,10").ValoreOppure(-1), 10);
  EXPECT_EQ(LeggiEuro("1.5").ValoreOppure(-1), 150);
  EXPECT_EQ(LeggiEuro("200").ValoreOppure(-1), 20'000);
  EXPECT_EQ(LeggiEuro("371053900").ValoreOppure(-1), 37'105'390'000) << "a jackpot's quota";
  for (const char* sbagliato : {"", ",5", "1,234", "1.000,00", "-1", "1e3", "99999999999999999999", "1000000001"})
    EXPECT_FALSE(LeggiEuro(sbagliato)) << sbagliato;
}

TEST(AltriGiochi, DieciELotto) {
  const GruppoData data = Data(1, 7, 2019);
  auto netto = [&](int giocati, int punti) {
    return PremioNettoPerEuroDieciELotto(OpzioneDieciELotto::Base, giocati, punti).value_or(-1) / kCentesimiPerEuro;
  };
  EXPECT_EQ((std::vector<Centesimi>{netto(5, 2), netto(5, 3), netto(5, 4), netto(5, 5)}),
            (std::vector<Centesimi>{1, 4, 15, 140}));
  EXPECT_EQ((std::vector<Centesimi>{netto(8, 5), netto(8, 6), netto(8, 7), netto(8, 8)}),
            (std::vector<Centesimi>{20, 200, 800, 10'000}));
  EXPECT_EQ(netto(7, 0), 1) << "no match on seven numbers pays";
  EXPECT_FALSE(PremioNettoPerEuroDieciELotto(OpzioneDieciELotto::Base, 11, 0));

  EXPECT_EQ(PremioNettoPerEuroDieciELotto(OpzioneDieciELotto::Oro, 3, 3), 13'000);
  EXPECT_EQ(PremioNettoPerEuroDieciELotto(OpzioneDieciELotto::Oro, 3, 3, {ColonneOro::Incrementi}), 17'500);
  EXPECT_FALSE(PremioNettoPerEuroDieciELotto(OpzioneDieciELotto::Oro, 5, 3)) << "a cell not known is not guessed";
  EXPECT_FALSE(PremioDieciELotto(OpzioneDieciELotto::Oro, 5, 3, 100, data));
  EXPECT_FALSE(PremioDieciELotto(OpzioneDieciELotto::Base, 5, 3, 100, Data(30, 6, 2019)));
  EXPECT_FALSE(PremioDieciELotto(OpzioneDieciELotto::Gong, 1, 1, 100, Data(25, 10, 2022)));
  auto gong = PremioDieciELotto(OpzioneDieciELotto::Gong, 1, 1, 200, Data(26, 10, 2022));
  ASSERT_TRUE(gong);
  EXPECT_EQ(gong->netto, 13'000);
}

TEST(AltriGiochi, CategorieEQuote) {
  const GruppoData oggi = kOggi;
  EXPECT_EQ(CategoriaSuperEnalottoDi(5, true, oggi), CategoriaSuperEnalotto::CinquePiuUno);
  EXPECT_EQ(CategoriaSuperEnalottoDi(4, true, oggi), CategoriaSuperEnalotto::Quattro)
      << "the Jolly counts with five only";
  EXPECT_EQ(CategoriaSuperEnalottoDi(2, false, Data(2, 2, 2016)), CategoriaSuperEnalotto::Due);
  EXPECT_FALSE(CategoriaSuperEnalottoDi(2, false, Data(30, 1, 2016)));
  EXPECT_FALSE(CategoriaSuperEnalottoDi(1, true, oggi));

  EXPECT_EQ(TassaVincitaSuperEnalotto(100'000, oggi).ritenuta, 10'000) << "20% of the 500 above 500";
  EXPECT_EQ(TassaVincitaSuperEnalotto(50'000, oggi).ritenuta, 0);
  EXPECT_EQ(TassaVincitaSuperEnalotto(100'000, Data(1, 1, 2011)).ritenuta, 0);

  EXPECT_EQ(CategoriaWinForLifeDi(10, true, BigliettoWinForLife::UnEuro), CategoriaWinForLife::WinForLife);
  EXPECT_EQ(CategoriaWinForLifeDi(0, true, BigliettoWinForLife::DueEuro), CategoriaWinForLife::WinForLife);
  EXPECT_EQ(CategoriaWinForLifeDi(2, false, BigliettoWinForLife::DueEuro), CategoriaWinForLife::Sesta);
  EXPECT_FALSE(CategoriaWinForLifeDi(2, false, BigliettoWinForLife::UnEuro));
  EXPECT_FALSE(CategoriaWinForLifeDi(5, true, BigliettoWinForLife::DueEuro));
}

}  // namespace
}  // namespace lottolab::stats
