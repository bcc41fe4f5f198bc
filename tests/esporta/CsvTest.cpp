#include "esporta/Csv.h"

#include <gtest/gtest.h>

#include "TempDir.h"

namespace lottolab::esporta {
namespace {

TEST(Csv, ScrittoERilettoUguale) {
  const RigheCsv righe = {{"Ruota", "Numero", "Nota"},
                          {"Bari", "12", "uno; due"},
                          {"Città", "", "disse \"sì\""},
                          {"a capo", "riga\r\nnuova", ""},
                          {""}};
  const std::string testo = TestoCsv(righe);
  EXPECT_TRUE(testo.starts_with("\xEF\xBB\xBFRuota;Numero;Nota\r\nBari;12;\"uno; due\"\r\n"));
  auto letto = LeggiTestoCsv(testo);
  ASSERT_TRUE(letto) << letto.Errore().testo;
  EXPECT_EQ(*letto, righe);

  test::CartellaTemporanea cartella;
  ASSERT_TRUE(ScriviCsv(righe, cartella / "t.csv"));
  EXPECT_EQ(*LeggiTestoCsv(test::Leggi(cartella / "t.csv")), righe);
}

TEST(Csv, TestiDaFuori) {
  EXPECT_EQ(*LeggiTestoCsv("a;b\nc;d"), (RigheCsv{{"a", "b"}, {"c", "d"}}));
  EXPECT_EQ(*LeggiTestoCsv("a;\n;b;\n"), (RigheCsv{{"a", ""}, {"", "b", ""}}));
  EXPECT_EQ(*LeggiTestoCsv(""), RigheCsv{});
  auto aperto = LeggiTestoCsv("a;b\r\nc;\"non chiuso\r\nd;e\r\n");
  ASSERT_FALSE(aperto);
  EXPECT_EQ(aperto.Errore().testo, "Riga 2: un campo tra virgolette non si chiude");
  auto troppi = LeggiTestoCsv("1;2;3\n4;5;6\n", 5);
  ASSERT_FALSE(troppi);
  EXPECT_NE(troppi.Errore().testo.find("più di 5 campi"), std::string::npos);
}

TEST(Csv, FoglioConVirgolaDecimale) {
  Foglio foglio;
  foglio.celle[{1, 1}].valore = std::string("Ritardo");
  foglio.celle[{2, 1}].valore = 12.5;
  foglio.celle[{2, 3}].valore = true;
  foglio.celle[{3, 2}].valore = -1e20;
  EXPECT_EQ(RigheDelFoglio(foglio), (RigheCsv{{"Ritardo", "", ""}, {"12,5", "", "VERO"}, {"", "-1e+20", ""}}));
}

}  // namespace
}  // namespace lottolab::esporta
