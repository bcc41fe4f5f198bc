#pragma once

// A script's chart (script/DisegnoGrafico.h) painted with a QPainter, as a headless run writes it
// to PNG. The desktop shows the same chart with Qt Charts, which needs Widgets; both take their axes
// from DisegnoGrafico.h, so the picture and the window read the same values at the same ticks.

#include <QImage>
#include <QPainter>
#include <QPolygonF>
#include <QRectF>

#include "script/DisegnoGrafico.h"

namespace lottolab::disegno {

// What one painting drew, for the tests and for a caller that reports it.
struct ConteggioGrafico {
  int serie = 0;
  int punti = 0;  // vertices of the lines and dots of the points charts
  int barre = 0;
  int tacche_y = 0;     // labelled ticks of the Y axis
  int etichette_x = 0;  // labels written under the X axis
  int voci_legenda = 0;
};

// Where the chart's values land: the rectangle of the data inside the picture and the two axes.
// It measures the labels with the fonts the painting uses, so it needs a Qt application.
class PianoGrafico {
 public:
  PianoGrafico(const script::DisegnoGrafico& grafico, const QRectF& area);

  // The pixel of the value (x, y).
  QPointF Punto(double x, double y) const;
  const QRectF& Dati() const { return m_dati; }
  const QRectF& Legenda() const { return m_legenda; }
  const script::AsseGrafico& X() const { return m_x; }
  const script::AsseGrafico& Y() const { return m_y; }

 private:
  script::AsseGrafico m_x;
  script::AsseGrafico m_y;
  QRectF m_dati;
  QRectF m_legenda;  // empty when the chart has none
};

// Paints the chart filling `area`: background, title, grid, series, axes with their labels and
// titles, legend. Values beyond a fixed scale are cut at the edge of the data.
ConteggioGrafico DisegnaGrafico(QPainter& pittore, const QRectF& area, const script::DisegnoGrafico& grafico);

// An open line through the points, with round ends, drawn in pieces of a few segments (see
// kPuntiPerTratto) after keeping four points a column of pixels of a line that goes left to right,
// which paints the same pixels. A single point is a dot of the pen's width.
void DisegnaSpezzata(QPainter& pittore, const QPolygonF& punti, QPen penna);

// The chart alone, of the size of its layout (clamped to 1..kLatoGraficoMassimo pixels a side).
QImage ImmagineGrafico(const script::DisegnoGrafico& grafico, ConteggioGrafico* conteggio = nullptr);

}  // namespace lottolab::disegno
