#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "LibreriaDiProva.h"
#include "stats/ArchiviDiProva.h"
#include "stats/RegolePremi.h"

namespace lottolab::script {
namespace {

// Three draws across the changes of the rules: 2004 (tax 3%, no estratto determinato, no largest
// win), 2006 (6%) and 2020 (8%). Bari holds 10, 20 and 30 in the last one.
TabellaEstrazioni TreEpoche() {
  TabellaEstrazioni tab = test::Archivio().Estrazione().Estrazione().Estrazione({{BA, {10, 20, 30, 40, 50}}}).Tabella();
  tab[1].data = stats::Data(6, 3, 2004);
  tab[2].data = stats::Data(4, 3, 2006);
  tab[3].data = stats::Data(7, 3, 2020);
  return tab;
}

TEST_F(Libreria, IPremiDelLottoSonoQuelliDellaTabellaInVigoreAllaData) {
  Avvia(TreEpoche());
  const std::pair<std::string, std::string> casi[] = {
      {"GetPremioLotto(2, 3)", "83,33"},
      {"GetPremioLotto(2, 4)", "41,67"},
      {"GetPremioLotto(5, 10, 0.1)", "2380,95"},
      {"GetPremioLotto(1, 1)", "11,23"},
      {"GetPremioLotto(2, 2, 1, 10)", "25"},  // Tutte: the euro split over ten wheels
      {"GetPremioLotto(6, 2, 1, 1, 3)", "27,5"},
      // The estratto determinato came back in March 2005: nothing to win before.
      {"GetPremioLotto(6, 1, 1, 1, 1)", "0"},
      {"GetPremioLotto(6, 1, 1, 1, 2)", "55"},
      // Three numbers of five out: three ambi of 25 each; taxed 8%, 6% and 3% by date.
      {"GetPremioPerSorte(2, 5, 3)", "75"},
      {"GetPremioPerSorte(2, 5, 1)", "0"},
      {"GetPremioPerSorte(3, 10, 5, 1, 1, 3)", "375"},
  };
  for (const auto& [chiamata, atteso] : casi) EXPECT_EQ(Testo(chiamata), atteso) << chiamata;
  Esegui("Dim n");
  const std::pair<std::string, std::string> netti[] = {
      {"GetPremioPerSorte(2, 5, 3, 1, 1, 3, n)", "69"},
      {"GetPremioPerSorte(2, 5, 3, 1, 1, 2, n)", "70,5"},
      {"GetPremioPerSorte(2, 5, 3, 1, 1, 1, n)", "72,75"},
      // The largest win of a ticket, from 2005, holds the cinquina of 2 euro to six million.
      {"GetPremioPerSorte(5, 5, 5, 2, 1, 3, n)", "5520000"},
      {"GetPremioPerSorte(5, 5, 5, 2, 1, 1, n)", "11640000"},
  };
  for (const auto& [chiamata, atteso] : netti) {
    Testo(chiamata);
    EXPECT_EQ(Testo("n"), atteso) << chiamata;
  }
  EXPECT_EQ(Testo("GetPremioPerSorte(5, 5, 5, 2, 1, 3)"), "6000000");

  const std::pair<std::string, std::string> errori[] = {
      {"GetPremioLotto(2, 11)", "QuantitaNumeri"}, {"GetPremioLotto(3, 2)", "numeri"},
      {"GetPremioLotto(8, 2)", "Sorte"},           {"GetPremioLotto(2, 2, 0.001)", "centesimi"},
      {"GetPremioLotto(2, 2, 0.01)", "posta"},     {"GetPremioLotto(2, 2, 1, 12)", "QuantitaRuote"},
      {"GetPremioPerSorte(2, 3, 4)", "Punti"},
  };
  for (const auto& [chiamata, parola] : errori) {
    EXPECT_TRUE(Vuoto(chiamata)) << chiamata;
    AvvisoErrore5(chiamata.substr(0, chiamata.find('(')), parola, chiamata);
  }
}

TEST_F(Libreria, VincitaEIlNettoDiUnaGiocataInUnEstrazione) {
  Avvia(TreEpoche());
  Esegui("Dim p(5), l, s : p(1) = 1 : p(2) = 1");
  // Two of the three numbers on Bari: an ambo of 83.33 and two estratti of 3.74; 8% of 90.81 is 7.26.
  EXPECT_EQ(Testo("Vincita(Array(10, 20, 77), BA_, 3, p, l, s)"), "83,55");
  EXPECT_EQ(Testo("l & \" \" & s"), "90,81 2");
  EXPECT_EQ(Testo("Vincita(Array(10, 20, 77), Array(BA_, CA_), 3, p)"), "41,78");
  EXPECT_EQ(Testo("Vincita(Array(10, 20, 77), BA_, 2, p, l, s)"), "0");
  Esegui("Dim q(5)");
  EXPECT_TRUE(Vuoto("Vincita(Array(10, 20), BA_, 3, q)"));
  AvvisoErrore5("Vincita", "Nessuna posta", "no stake");
}

TEST_F(Libreria, UnaProgressioneRipagaLaSpesaAOgniColpo) {
  Avvia(TreEpoche());
  Esegui("Dim a, n, i, spesa, ok : ok = True");
  // The ambo on two numbers and one wheel pays 230 net a euro: one euro is enough for the first
  // 230 colpi less the profit of 30.
  EXPECT_EQ(Testo("GetVettoreProgressione(2, 2, 1, 250, 30, 1, a)"), "250");
  EXPECT_EQ(Testo("a(1) & \" \" & a(200) & \" \" & a(201) & \" \" & a(250)"), "1 1 1,5 1,5");
  // Every colpo's smallest win covers what was spent up to it and the profit.
  Esegui(
      "For i = 1 To 250 : spesa = spesa + a(i) : If GetPremioPerSorte(2, 2, 2, a(i), 1, 3, n) < 0 Or n < spesa + 30 "
      "Then ok = False\nNext");
  EXPECT_EQ(Testo("ok"), "Vero");
  // Ten numbers on Tutte for the ambo pay 0.51 net a euro: no stake pays itself back.
  EXPECT_EQ(Testo("GetVettoreProgressione(2, 10, 10, 5, 0, 1, a)"), "0");
  EXPECT_EQ(Testo("UBound(a)"), "0");
  EXPECT_TRUE(Vuoto("GetVettoreProgressione(2, 2, 1, 5, 0, 1, a, 0.001)"));
  AvvisoErrore5("GetVettoreProgressione", "centesimi", "a step below the cent");
}

}  // namespace
}  // namespace lottolab::script
