#include <gtest/gtest.h>

#include "archive/DateEstrazione.h"
#include "archive/TabellaEstrazioni.h"

namespace lottolab {
namespace {

Estrazione Draw(int id, int giorno, int mese, int anno) {
  Estrazione e;
  e.id_estr = id;
  e.data = {static_cast<int16_t>(id), static_cast<int16_t>(giorno), static_cast<int16_t>(mese),
            static_cast<int16_t>(anno)};
  for (int r = 1; r <= kNumeroRuote; ++r)
    for (int p = 1; p <= kNumeriPerRuota; ++p) e.ImpostaNumero(r, p, (r * 7 + p * 3) % 90 + 1);
  return e;
}

TEST(Estratto, LeggeRuotaEPosizioneEdEsceDaiLimitiConZeroOErrore) {
  TabellaEstrazioni tabella({Draw(1, 3, 1, 2020), Draw(2, 5, 1, 2020)});
  EXPECT_EQ(*tabella.Estratto(2, VE, 5), (10 * 7 + 5 * 3) % 90 + 1);
  EXPECT_EQ(*tabella.Estratto(1, 0, 1), 0);
  EXPECT_EQ(*tabella.Estratto(1, 12, 1), 0);
  EXPECT_FALSE(tabella.Estratto(0, BA, 1));
  EXPECT_FALSE(tabella.Estratto(3, BA, 1));
  EXPECT_FALSE(tabella.Estratto(1, BA, 0));
  EXPECT_FALSE(tabella.Estratto(1, BA, 6));
}

TEST(DataEstrazione, GiornoEMeseADueCifreAnnoAQuattroODue) {
  TabellaEstrazioni tabella({Draw(1, 3, 1, 2005)});
  EXPECT_EQ(*tabella.DataEstrazione(1), "03/01/2005");
  EXPECT_EQ(*tabella.DataEstrazione(1, true), "03/01/05");
  EXPECT_EQ(*tabella.IndiceAnnuale(1), 1);
}

TEST(LeggiData, AccettaTrePartiSenzaZeriERifiutaIlResto) {
  GruppoData base{7, 0, 0, 0};
  auto data = LeggiData("1/2/2020", base);
  ASSERT_TRUE(data);
  EXPECT_EQ(*data, (GruppoData{7, 1, 2, 2020}));

  for (const char* sbagliata : {"12/2020", "1/2/3/2020", "", "aa/bb/cccc"}) {
    auto rifiutata = LeggiData(sbagliata, base);
    ASSERT_FALSE(rifiutata) << sbagliata;
    EXPECT_EQ(rifiutata.Errore().testo,
              std::string("Data non corretta scrivere la data in formato GG/MM/AAAA ") + sbagliata);
    EXPECT_EQ(rifiutata.Errore().tipo, TipoAvviso::Esclamativo);
  }
}

TEST(UltimaEstrazioneEntro, TrovaLUltimaNonSuccessiva) {
  TabellaEstrazioni tabella({Draw(1, 3, 1, 2020), Draw(2, 5, 1, 2020), Draw(3, 8, 1, 2020)});
  EXPECT_EQ(tabella.UltimaEstrazioneEntro({0, 5, 1, 2020}), 2);
  EXPECT_EQ(tabella.UltimaEstrazioneEntro({0, 7, 1, 2020}), 2);
  EXPECT_EQ(tabella.UltimaEstrazioneEntro({0, 1, 1, 2020}), 0);
  EXPECT_EQ(tabella.UltimaEstrazioneEntro({0, 1, 1, 2030}), 3);
}

TEST(GiornoAssoluto, ContaIGiorniAttraversoAnniBisestili) {
  EXPECT_EQ(GiornoAssoluto({0, 1, 3, 2020}) - GiornoAssoluto({0, 28, 2, 2020}), 2);
  EXPECT_EQ(GiornoAssoluto({0, 1, 1, 2021}) - GiornoAssoluto({0, 1, 1, 2020}), 366);
  EXPECT_EQ(GiornoAssoluto({0, 1, 3, 1900}) - GiornoAssoluto({0, 28, 2, 1900}), 1);
}

}  // namespace
}  // namespace lottolab
