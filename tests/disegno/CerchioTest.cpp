// The circle of the 90 numbers: where the numbers sit, which figures are drawn under the settings,
// and a few pixels of the painted image.

#include <gtest/gtest.h>

#include <cmath>

#include "disegno/TelaImmagine.h"

namespace lottolab::disegno {
namespace {

class Cerchio : public ::testing::Test {
 protected:
  void SetUp() override { AssicuraApplicazioneGrafica(); }
};

TEST_F(Cerchio, NumeriInSensoOrarioDallAlto) {
  const QRectF area(0, 0, 200, 200);
  const double r = kRaggioCerchio * 100;
  struct Caso {
    int numero;
    QPointF atteso;
  };
  // 1 at the top, 4 degrees a step: 23 is just short of three o'clock, 69 just past nine.
  const Caso casi[] = {{1, {100, 100 - r}},
                       {46, {100, 100 + r}},
                       {23, {100 + r * std::sin(88 * M_PI / 180), 100 - r * std::cos(88 * M_PI / 180)}},
                       {69, {100 - r * std::sin(88 * M_PI / 180), 100 - r * std::cos(88 * M_PI / 180)}}};
  for (const Caso& caso : casi) {
    const QPointF punto = PuntoDelNumero(caso.numero, area);
    EXPECT_NEAR(punto.x(), caso.atteso.x(), 1e-9) << caso.numero;
    EXPECT_NEAR(punto.y(), caso.atteso.y(), 1e-9) << caso.numero;
  }
  // A rectangle area holds the circle in its centred square.
  EXPECT_NEAR(PuntoDelNumero(1, QRectF(0, 0, 300, 200)).x(), 150, 1e-9);
}

TEST_F(Cerchio, FigureDisegnateSecondoITipiAccesi) {
  script::DisegnoCerchio disegno;
  disegno.marcati = {1, 46, 91, 0};
  for (std::vector<int> numeri :
       std::vector<std::vector<int>>{{1, 46}, {1, 31, 61}, {1, 24, 46, 69}, {1, 19, 37, 55, 73}, {7}, {}})
    disegno.figure.push_back({std::move(numeri), {}, {}, {}});
  struct Caso {
    uint32_t flag;
    int poligoni;
    int marcati;
    int numeri;
  };
  const Caso casi[] = {
      {script::kFlagTutti, 4, 2, 90},
      {script::kFlagTutti & ~(1u << 0), 3, 2, 90},  // no diameters
      {(1u << 1) | (1u << 2), 2, 0, 0},             // triangles and quadrilaterals only
      {0, 0, 0, 0},
  };
  for (const Caso& caso : casi) {
    disegno.impostazioni.flag = caso.flag;
    ConteggioCerchio conteggio;
    (void)ImmagineCerchio(disegno, 300, &conteggio);
    EXPECT_EQ(conteggio.poligoni, caso.poligoni) << caso.flag;
    EXPECT_EQ(conteggio.marcati, caso.marcati) << caso.flag;
    EXPECT_EQ(conteggio.numeri, caso.numeri) << caso.flag;
  }
}

TEST_F(Cerchio, PixelDelleFigureEDellEvidenziata) {
  script::DisegnoCerchio disegno;
  disegno.impostazioni.flag = script::kFlagTutti & ~script::kFlagNumeri;
  disegno.impostazioni.figure = 0x0000FF;
  disegno.impostazioni.evidenziata = 0x00FF00;
  disegno.impostazioni.spessore_figure = 5;
  // A diameter 1-46 (vertical) in the figures' colour, 23-68 nearly horizontal in its own red, and
  // the vertical one highlighted in a second circle.
  disegno.figure = {{{1, 46}, {}, {}, {}}, {{23, 68}, 0xFF0000, 5.0, {}}};
  const QImage immagine = ImmagineCerchio(disegno, 400);
  EXPECT_EQ(immagine.pixelColor(200, 120).rgb() & 0xFFFFFF, 0x0000FFu);
  const QRectF area(0, 0, 400, 400);
  const QPointF su_rossa = 0.75 * PuntoDelNumero(23, area) + 0.25 * PuntoDelNumero(68, area);
  // A slanted wide side is antialiased hairlines overlapping: nearly, not exactly, pure red.
  const QColor rossa = immagine.pixelColor(su_rossa.toPoint());
  EXPECT_TRUE(rossa.red() == 0xFF && rossa.green() < 0x30 && rossa.blue() < 0x30) << rossa.name().toStdString();
  EXPECT_EQ(immagine.pixelColor(5, 5).rgb() & 0xFFFFFF, 0xFFFFFFu);  // background outside the circle
  disegno.evidenziata = 0;
  const QImage evidenziata = ImmagineCerchio(disegno, 400);
  EXPECT_EQ(evidenziata.pixelColor(200, 120).rgb() & 0xFFFFFF, 0x00FF00u);
}

}  // namespace
}  // namespace lottolab::disegno
