// The PNG painting of a script's chart: a few pixels where the plane says the values land, and the
// counts of what was drawn.

#include <gtest/gtest.h>

#include "disegno/GraficoImmagine.h"
#include "disegno/TelaImmagine.h"

namespace lottolab::disegno {
namespace {

QRgb Pixel(const QImage& immagine, QPointF punto) { return immagine.pixel(punto.toPoint()) & 0xFFFFFF; }

// Whether a pixel next to the point has the colour: a line 2 pixels wide covers at least one whole
// pixel across it, the others blended by the antialiasing.
bool ColoreVicino(const QImage& immagine, QPointF punto, QRgb colore) {
  const QPoint centro = punto.toPoint();
  for (int dx = -1; dx <= 1; ++dx)
    for (int dy = -1; dy <= 1; ++dy)
      if ((immagine.pixel(centro + QPoint(dx, dy)) & 0xFFFFFF) == colore) return true;
  return false;
}

script::DisegnoGrafico Grafico(script::TipoGrafico tipo) {
  script::DisegnoGrafico grafico;
  grafico.titolo = "Prova";
  grafico.titolo_x = "Estrazione";
  grafico.titolo_y = "Ritardo";
  grafico.tipo = tipo;
  grafico.serie.push_back({"rossa", 0xFF0000, {}, {0, 10, 0, 10}});
  grafico.serie.push_back({"blu", 0x0000FF, {}, {5, 5, 5, 5}});
  grafico.impaginazione.larghezza = 400;
  grafico.impaginazione.altezza = 300;
  return grafico;
}

class GraficoImmagine : public ::testing::Test {
 protected:
  void SetUp() override { AssicuraApplicazioneGrafica(); }
};

TEST_F(GraficoImmagine, LeLineePassanoPerIValori) {
  const script::DisegnoGrafico grafico = Grafico(script::TipoGrafico::Linee);
  ConteggioGrafico conteggio;
  const QImage immagine = ImmagineGrafico(grafico, &conteggio);
  EXPECT_EQ(immagine.size(), QSize(400, 300));
  const PianoGrafico piano(grafico, QRectF(0, 0, 400, 300));
  // Three quarters of the way from (1, 0) to (2, 10) the red line is at 7.5.
  EXPECT_TRUE(ColoreVicino(immagine, piano.Punto(1.75, 7.5), 0xFF0000));
  EXPECT_TRUE(ColoreVicino(immagine, piano.Punto(3.5, 5), 0x0000FF))
      << "the later series over the earlier, where they cross";
  EXPECT_EQ(Pixel(immagine, piano.Punto(1.5, 9)), 0xFFFFFFu);
  EXPECT_EQ(conteggio.serie, 2);
  EXPECT_EQ(conteggio.punti, 8);
  EXPECT_EQ(conteggio.voci_legenda, 2);
  EXPECT_EQ(conteggio.tacche_y, 6);  // 0, 2, ... 10
  EXPECT_EQ(conteggio.etichette_x, 4);
  EXPECT_GT(piano.Legenda().left(), piano.Dati().right());
}

TEST_F(GraficoImmagine, BarreFiancoAFiancoDaZero) {
  script::DisegnoGrafico grafico = Grafico(script::TipoGrafico::Barre);
  grafico.impaginazione.legenda = false;
  grafico.impaginazione.sfondo = 0xFFFF00;
  ConteggioGrafico conteggio;
  const QImage immagine = ImmagineGrafico(grafico, &conteggio);
  const PianoGrafico piano(grafico, QRectF(0, 0, 400, 300));
  // Place 2: the red bar on the left half of the group up to 10, the blue on the right up to 5.
  EXPECT_EQ(Pixel(immagine, piano.Punto(1.8, 9)), 0xFF0000u);
  EXPECT_EQ(Pixel(immagine, piano.Punto(2.2, 4)), 0x0000FFu);
  EXPECT_EQ(Pixel(immagine, piano.Punto(2.2, 7)), 0xFFFF00u);
  EXPECT_EQ(Pixel(immagine, piano.Punto(2.5, 1)), 0xFFFF00u) << "the gap between two places";
  EXPECT_EQ(conteggio.barre, 8);
  EXPECT_EQ(conteggio.voci_legenda, 0);
  EXPECT_TRUE(piano.Legenda().isEmpty());
}

// A fixed scale cuts what lies beyond it at the edge of the data.
TEST_F(GraficoImmagine, LaScalaFissaTagliaAlBordo) {
  script::DisegnoGrafico grafico = Grafico(script::TipoGrafico::Linee);
  grafico.impaginazione.minimo_y = 4;
  grafico.impaginazione.massimo_y = 6;
  const QImage immagine = ImmagineGrafico(grafico);
  const PianoGrafico piano(grafico, QRectF(0, 0, 400, 300));
  EXPECT_TRUE(ColoreVicino(immagine, piano.Punto(1.45, 4.5), 0xFF0000));
  // The red line from (1, 0) to (2, 10) would go on above the data, 8 pixels above its top.
  const double sopra = 6 + 8 * (6 - 4) / piano.Dati().height();
  EXPECT_EQ(Pixel(immagine, piano.Punto(1 + sopra / 10, sopra)), 0xFFFFFFu);
}

TEST_F(GraficoImmagine, UnPuntoPerValore) {
  const script::DisegnoGrafico grafico = Grafico(script::TipoGrafico::Punti);
  ConteggioGrafico conteggio;
  const QImage immagine = ImmagineGrafico(grafico, &conteggio);
  const PianoGrafico piano(grafico, QRectF(0, 0, 400, 300));
  EXPECT_EQ(Pixel(immagine, piano.Punto(2, 10)), 0xFF0000u);
  EXPECT_EQ(Pixel(immagine, piano.Punto(1.5, 5)), 0xFFFFFFu) << "no line between the points";
  EXPECT_EQ(conteggio.punti, 8);
}

// A line of many more points than pixels keeps in each column its highest and lowest point.
TEST_F(GraficoImmagine, MoltiPuntiPerColonna) {
  script::DisegnoGrafico grafico;
  grafico.serie.push_back({"", 0xFF0000, {}, {}});
  for (int k = 0; k < 4000; ++k) grafico.serie.front().y.push_back(k % 7 == 3 ? 10 : 0);
  grafico.impaginazione.larghezza = 400;
  grafico.impaginazione.altezza = 300;
  grafico.impaginazione.griglia = false;
  ConteggioGrafico conteggio;
  const QImage immagine = ImmagineGrafico(grafico, &conteggio);
  const PianoGrafico piano(grafico, QRectF(0, 0, 400, 300));
  EXPECT_EQ(conteggio.punti, 4000);
  for (double x : {1000.0, 2345.0, 3900.0}) {
    EXPECT_TRUE(ColoreVicino(immagine, piano.Punto(x, 9.5), 0xFF0000)) << x;
    EXPECT_TRUE(ColoreVicino(immagine, piano.Punto(x, 0.5), 0xFF0000)) << x;
  }
}

// Many labels on few pixels are thinned, not written over each other; the picture keeps its
// bounds whatever the layout asks.
TEST_F(GraficoImmagine, EtichetteDiradateEDimensioniLimitate) {
  script::DisegnoGrafico grafico;
  grafico.serie.push_back({"", std::nullopt, {}, std::vector<double>(1000, 1)});
  for (int k = 1; k <= 1000; ++k) grafico.etichette_x.push_back("Estrazione " + std::to_string(k));
  grafico.impaginazione.larghezza = 400;
  ConteggioGrafico conteggio;
  ImmagineGrafico(grafico, &conteggio);
  EXPECT_GT(conteggio.etichette_x, 1);
  EXPECT_LT(conteggio.etichette_x, 10);
  grafico.impaginazione.larghezza = 100000;
  grafico.impaginazione.altezza = 0;
  EXPECT_EQ(ImmagineGrafico(grafico).size(), QSize(script::kLatoGraficoMassimo, 1));
}

}  // namespace
}  // namespace lottolab::disegno
