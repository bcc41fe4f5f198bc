// The picture area on its QImage: a few pixels of each primitive, the counts, the PNG written all at
// once.

#include <gtest/gtest.h>

#include <QImageReader>
#include <fstream>

#include "TempDir.h"
#include "disegno/TelaImmagine.h"

namespace lottolab::disegno {
namespace {

uint32_t Rgb(const QImage& immagine, int x, int y) { return immagine.pixel(x, y) & 0xFFFFFF; }

class Tela : public ::testing::Test {
 protected:
  void SetUp() override { AssicuraApplicazioneGrafica(); }
};

TEST_F(Tela, PrimitiviNeiLoroPixelEConteggi) {
  TelaPng tela;
  EXPECT_FALSE(tela.Disegnata());
  tela.ColoreSfondo(0x101010);
  tela.SetDimensioni(200, 100);
  EXPECT_EQ(tela.Immagine().size(), QSize(200, 100));
  EXPECT_EQ(Rgb(tela.Immagine(), 0, 0), 0x101010u);
  tela.Linea(0, 10.5, 200, 10.5, {0xFF0000, 1, false});
  tela.Linea(0, 30.5, 200, 30.5, {0x00FF00, 1, true});
  tela.Cerchio(150, 70, 20, {0xFFFFFF, 1, false}, 0x0000FF);
  tela.Poligono({{10, 50}, {60, 50}, {60, 90}, {10, 90}}, {0x000000, 1, false}, 0xFFFF00);
  tela.Punto(100.0, 60.0, {0xFF00FF, 1, false});
  EXPECT_EQ(Rgb(tela.Immagine(), 50, 10), 0xFF0000u);
  EXPECT_EQ(Rgb(tela.Immagine(), 150, 70), 0x0000FFu);  // the circle's fill
  EXPECT_EQ(Rgb(tela.Immagine(), 35, 70), 0xFFFF00u);   // the polygon's fill
  EXPECT_EQ(Rgb(tela.Immagine(), 100, 60), 0xFF00FFu);
  // A dashed line leaves gaps: some pixels of its row stay background.
  int tratti = 0;
  for (int x = 0; x < 200; ++x) tratti += Rgb(tela.Immagine(), x, 30) == 0x00FF00u;
  EXPECT_GT(tratti, 50);
  EXPECT_LT(tratti, 190);
  const ConteggioTela& conteggio = tela.Conteggio();
  EXPECT_EQ(conteggio.linee, 2);
  EXPECT_EQ(conteggio.cerchi, 1);
  EXPECT_EQ(conteggio.poligoni, 1);
  EXPECT_EQ(conteggio.punti, 1);
  EXPECT_TRUE(tela.Disegnata());
  tela.Clear();
  EXPECT_EQ(Rgb(tela.Immagine(), 150, 70), 0x101010u);
  EXPECT_EQ(tela.Conteggio().linee, 0);
  tela.Riempi(0x00FFFF);
  EXPECT_EQ(Rgb(tela.Immagine(), 199, 99), 0x00FFFFu);
}

TEST_F(Tela, TestoMisuratoEScritto) {
  TelaPng tela;
  const int corta = tela.TextWidth("ab", 20);
  const int lunga = tela.TextWidth("abababab", 20);
  EXPECT_GT(corta, 0);
  EXPECT_GT(lunga, 3 * corta);
  EXPECT_GT(tela.TextWidth("ab", 40), corta);
  EXPECT_EQ(tela.TextHeight("a\nb", 20), 2 * tela.TextHeight("a", 20));
  tela.StampaTesto(10, 10, "MMMM", 0x000000, 30, 0);
  int scuri = 0;
  for (int x = 10; x < 10 + tela.TextWidth("MMMM", 30); ++x)
    for (int y = 10; y < 40; ++y) scuri += Rgb(tela.Immagine(), x, y) == 0;
  EXPECT_GT(scuri, 20);
  EXPECT_EQ(tela.Conteggio().testi, 1);
}

TEST_F(Tela, DimensioniTenuteNeiLimiti) {
  TelaPng tela;
  tela.SetDimensioni(0, kLatoMassimo + 1);
  EXPECT_EQ(tela.Immagine().size(), QSize(1, kLatoMassimo));
}

TEST_F(Tela, PngScrittoTuttoOppureNiente) {
  test::CartellaTemporanea cartella;
  TelaPng tela;
  // The page never linked the picture: no file.
  tela.Riempi(0x00FF00);
  auto niente = tela.Salva();
  ASSERT_TRUE(niente);
  EXPECT_FALSE(*niente);
  ASSERT_EQ(tela.FileImmagine(cartella / "pagina.htm"), cartella / "pagina.png");
  tela.SetDimensioni(30, 20);
  tela.Riempi(0xFF0000);
  ASSERT_TRUE(tela.Esegui());
  QImage letta(QString::fromStdString((cartella / "pagina.png").string()));
  ASSERT_EQ(letta.size(), QSize(30, 20));
  EXPECT_EQ(Rgb(letta, 15, 10), 0xFF0000u);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(cartella.Percorso()), {}), 1);

  // A folder that does not exist: an Italian message, and nothing left behind.
  const auto errore = SalvaPng(tela.Immagine(), cartella / "manca" / "x.png");
  ASSERT_FALSE(errore);
  EXPECT_NE(errore.Errore().testo.find("Impossibile scrivere l'immagine"), std::string::npos);
  // A file in the way of the new one is replaced whole.
  std::ofstream(cartella / "vecchia.png") << "non un'immagine";
  ASSERT_TRUE(SalvaPng(tela.Immagine(), cartella / "vecchia.png"));
  EXPECT_EQ(QImage(QString::fromStdString((cartella / "vecchia.png").string())).size(), QSize(30, 20));
}

}  // namespace
}  // namespace lottolab::disegno
