#include "esporta/CartellaLavoro.h"

#include <gtest/gtest.h>

namespace lottolab::esporta {
namespace {

TEST(CartellaLavoro, ColonneELettere) {
  const std::pair<int, std::string_view> casi[] = {{1, "A"},    {26, "Z"},    {27, "AA"},    {52, "AZ"},
                                                   {702, "ZZ"}, {703, "AAA"}, {16384, "XFD"}};
  for (const auto& [colonna, lettere] : casi) {
    EXPECT_EQ(LetteraColonna(colonna), lettere);
    auto letto = LeggiRiferimento(std::string(lettere) + "7");
    ASSERT_TRUE(letto) << lettere;
    EXPECT_EQ(letto->colonna, colonna);
    EXPECT_EQ(letto->riga, 7);
  }
  EXPECT_EQ(LetteraColonna(0), "");
  EXPECT_EQ(LetteraColonna(16385), "");
  for (std::string_view errato : {"", "A", "7", "A0", "XFE1", "A1048577", "A-1", "1A", "A1B", "AAAAAAAAAAAAA1"})
    EXPECT_FALSE(LeggiRiferimento(errato)) << errato;
  EXPECT_EQ(LeggiRiferimento("b3")->colonna, 2);
}

TEST(CartellaLavoro, NomiDeiFogli) {
  CartellaLavoro cartella;
  EXPECT_EQ(*cartella.AggiungiFoglio(""), 0u);
  EXPECT_EQ(cartella.fogli[0].nome, "Foglio1");
  EXPECT_EQ(*cartella.AggiungiFoglio("Città"), 1u);
  EXPECT_EQ(cartella.IndiceFoglio("CITTÀ"), 1u);
  EXPECT_FALSE(cartella.AggiungiFoglio("foglio1"));
  for (std::string nome : {std::string("a/b"), std::string("a[1]"), std::string("'a"), std::string("a'"),
                           std::string("x?"), std::string(32, 'x')})
    EXPECT_FALSE(cartella.AggiungiFoglio(nome)) << nome;
  EXPECT_TRUE(cartella.AggiungiFoglio(std::string(31, 'x')));
  EXPECT_EQ(cartella.fogli.size(), 3u);
  // A name taken by the user is skipped when the next one is chosen.
  EXPECT_TRUE(cartella.AggiungiFoglio("Foglio4"));
  EXPECT_EQ(cartella.fogli[*cartella.AggiungiFoglio("")].nome, "Foglio5");
}

TEST(CartellaLavoro, UnioniEFormati) {
  Foglio foglio;
  EXPECT_TRUE(foglio.AggiungiUnione({{1, 1}, {2, 3}}));
  EXPECT_FALSE(foglio.AggiungiUnione({{2, 3}, {4, 4}}));  // shares C2
  EXPECT_FALSE(foglio.AggiungiUnione({{5, 5}, {5, 5}}));  // one cell
  EXPECT_FALSE(foglio.AggiungiUnione({{6, 3}, {7, 1}}));  // upside down
  EXPECT_TRUE(foglio.AggiungiUnione({{3, 1}, {3, 2}}));

  CartellaLavoro cartella;
  Formato grassetto{.grassetto = true};
  EXPECT_EQ(cartella.IndiceFormato(Formato{}), 0u);
  EXPECT_EQ(cartella.IndiceFormato(grassetto), 1u);
  EXPECT_EQ(cartella.IndiceFormato(Formato{.colore_testo = 0xFF0000}), 2u);
  EXPECT_EQ(cartella.IndiceFormato(grassetto), 1u);
}

}  // namespace
}  // namespace lottolab::esporta
